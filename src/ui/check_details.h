// What the check details panel shows for a row of the result grid.
//
// Rows carry a key "group^check" (for example "2^3"); the panel shows the check's label ("2c")
// and its finding, or that it passed or was not performed. None of these functions can fail:
// a key that is malformed or outside the table gives an empty text.
#pragma once

#include <string>
#include <string_view>

namespace zorvik {

class CheckTable;

std::string checkKey(int group, int row);
// The group number followed by the check's letter: row 1 is "a", row 15 is "o".
std::string checkLabel(int group, int row);
std::string checkDetails(const CheckTable& table, std::string_view key);

}  // namespace zorvik
