#include "ui/check_details.h"

#include <charconv>

#include "base/text.h"
#include "checks/check_table.h"

namespace zorvik {

namespace {

bool parseWhole(std::string_view text, int& value) {
  if (text.empty()) return false;
  const char* end = text.data() + text.size();
  const auto [ptr, ec] = std::from_chars(text.data(), end, value);
  return ec == std::errc() && ptr == end;
}

}  // namespace

std::string checkKey(int group, int row) {
  return std::to_string(group) + "^" + std::to_string(row);
}

std::string checkLabel(int group, int row) {
  return std::to_string(group) + static_cast<char>('a' + row - 1);
}

std::string checkDetails(const CheckTable& table, std::string_view key) {
  const std::size_t caret = key.find('^');
  if (caret == std::string_view::npos) return "";
  int group = 0;
  int row = 0;
  if (!parseWhole(key.substr(0, caret), group) || !parseWhole(key.substr(caret + 1), row))
    return "";
  // Row 0 holds the group heading, not a check.
  if (group < 0 || group > table.lastGroup() || row < 1 || row > table.lastRow()) return "";

  const RowResult& result = table.result(row, group);
  std::string text = checkLabel(group, row);
  if (result.passed()) {
    // A passed check may carry a note, shown under it as the report shows it.
    const std::string& note = table.at(row, COL_NOTE, group);
    if (note.empty()) return text + ":  Check OK";
    return text + ":  Check OK\r\nNote: " + replaceAll(note, "\r\n", "\r\nNote: ");
  }
  if (result.notReached()) return text + ":  Check Not Performed";
  return text + ": " + result.text();
}

}  // namespace zorvik
