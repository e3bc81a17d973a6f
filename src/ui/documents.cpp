#include "ui/documents.h"

#include "base/text.h"

namespace zorvik {

std::string standardsDocument(int item, float certifiedVersion) {
  switch (item) {
    case 0:
      if (certifiedVersion == 3.0f) return LAS30_DOCUMENT;
      if (certifiedVersion == 1.2f) return LAS12_DOCUMENT;
      return LAS20_DOCUMENT;
    case 1:
      return LAS30_DOCUMENT;
    case 2:
      return LAS20_DOCUMENT;
    default:
      return LAS12_DOCUMENT;
  }
}

std::string justCertifiedCaption(float certifiedVersion) {
  const std::string version = certifiedVersion > 0.0f ? formatShortest(certifiedVersion) : "0.0";
  return std::string("Just Certified Version: ") + " (Ver " + version + ")";
}

std::string documentNotFoundText(const std::string& document) {
  return "The LAS standards document you requested, \n\n" + document +
         "\n\n, could not be found. Re-install Zorvik to restore.";
}

}  // namespace zorvik
