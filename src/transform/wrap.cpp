#include "transform/wrap.h"

namespace zorvik {

int analyseWrap(const std::string&, int& linesPerRecord, int& bufferLength, int& channels, int) {
  linesPerRecord = 0;
  bufferLength = 0;
  channels = 0;
  return WRAP_UNDETERMINED;
}

bool unwrapFile(const std::string&, const std::string&) {
  return false;
}

}  // namespace zorvik
