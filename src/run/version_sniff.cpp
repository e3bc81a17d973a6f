#include "run/version_sniff.h"

#include "base/file_helpers.h"
#include "base/text.h"
#include "las/header_line.h"
#include "las/line_reader.h"

namespace zorvik {

float sniffVersion(const std::string& fileName) {
  if (!fileExists(fileName)) return 0.0f;
  LineReader reader;
  if (!reader.open(fileName)) return 0.0f;
  std::string line;
  while (reader.readLine(line)) {
    // "~A" anywhere on the line, a description included, means the data has begun.
    if (icontains(line, "~A") || icontains(line, "~Log_Data")) break;
    if (istartsWith(trimLeftView(line), "VERS") && classifyHeaderLine(line) == LineKind::Ok)
      return static_cast<float>(leadingNumber(fieldValue(line)));
  }
  return 0.0f;
}

}  // namespace zorvik
