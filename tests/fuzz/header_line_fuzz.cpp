// The header-line fields of one line: kind, delimiting colon, the six fields and the word tests,
// none of which may read outside the line whatever it holds.
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/fuzz_target.h"
#include "las/header_line.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view line(reinterpret_cast<const char*>(data), size);
  zorvik::classifyHeaderLine(line);
  std::size_t brace = 0;
  zorvik::delimiterColon(line, brace);
  const std::string mnemonic = zorvik::fieldMnemonic(line);
  zorvik::fieldUnit(line);
  const std::string value = zorvik::fieldValue(line);
  zorvik::fieldDescription(line);
  zorvik::fieldFormat(line);
  std::vector<std::string> parts;
  zorvik::fieldAssociation(line, " ", parts);
  for (float version : {2.0f, 3.0f})
    zorvik::isValidMnemonic(mnemonic, zorvik::Dialect{version, " "});
  for (const char* separator : {" ", ",", "\t"}) zorvik::countWords(value, separator);
  zorvik::mnemonicListHas(value, mnemonic);
  return 0;
}
