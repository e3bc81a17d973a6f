// Value formats: the input is a format, a newline and a value. The format syntax test, the
// element test and the value test against the format must answer for any bytes.
#include <string_view>

#include "fuzz/fuzz_target.h"
#include "las/value_format.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t newline = input.find('\n');
  const std::string_view format = input.substr(0, newline);
  const std::string_view value =
      newline == std::string_view::npos ? std::string_view() : input.substr(newline + 1);
  const std::string_view delimiter = size % 2 == 0 ? "," : " ";
  zorvik::isLegalFormat(format);
  zorvik::isLegalFormatElement(format);
  zorvik::valueFitsFormat(value, format, delimiter);
  const std::string_view spec = format.empty() ? format : format.substr(1);
  zorvik::isFloatValue(value, spec);
  zorvik::isIntegerValue(value, spec);
  zorvik::isStringValue(value, spec);
  zorvik::isExponentialValue(value, spec);
  return 0;
}
