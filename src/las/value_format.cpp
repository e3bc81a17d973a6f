#include "las/value_format.h"

#include "las/text.h"

namespace zorvik {

bool isIntegerValue(std::string_view part, std::string_view spec) {
  double value = 0;
  if (!parseNumber(part, value) || value < 0) return false;
  if (part.find_first_of("eE.") != std::string_view::npos) return false;
  double width = 0;
  if (parseNumber(spec, width) && width > 0) return static_cast<double>(part.size()) == width;
  return true;
}

}  // namespace zorvik
