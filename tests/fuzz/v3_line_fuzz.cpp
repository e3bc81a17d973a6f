// The 3.0 line parser over every line of the input, carrying the current section from line to
// line as a run does. The first byte picks the data delimiter.
#include <string>
#include <string_view>

#include "fuzz/fuzz_target.h"
#include "las/v3_line.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static const char* const delimiters[] = {" ", ",", "\t"};
  const zorvik::Dialect dialect{3.0f, delimiters[data[0] % 3]};
  const zorvik::SectionIndex sections;
  std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  std::string section;
  zorvik::V3LineDiagnostics diagnostics;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    zorvik::parseV3Line(line, section, dialect, sections, diagnostics);
    zorvik::isLegalAssociationList(line, dialect.delimiter);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  }
  return 0;
}
