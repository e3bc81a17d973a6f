// Value format codes of 3.0 ("F10.4", "I", "S", "E0.00E+00", "DD/MM/YYYY", the degree format)
// and the test of a value against one. The tests never throw; a value that cannot be read fails.
#pragma once

#include <string_view>

namespace zorvik {

// True when the value conforms to the format (braces and array marker already removed). The
// elements of an array value are separated by the data `delimiter`.
bool valueFitsFormat(std::string_view value, std::string_view format, std::string_view delimiter);

bool isFloatValue(std::string_view part, std::string_view spec);
bool isIntegerValue(std::string_view part, std::string_view spec);
bool isStringValue(std::string_view part, std::string_view spec);
bool isExponentialValue(std::string_view part, std::string_view spec);

// Format syntax.
bool isLegalFormat(std::string_view format);
bool isLegalFormatElement(std::string_view element);

}  // namespace zorvik
