#include "ui/result_rows.h"

#include "checks/check_table.h"

namespace zorvik {

namespace {

bool groupHasResults(const CheckTable& table, int group) {
  for (int r = 1; r <= table.lastRow(); ++r)
    if (!table.result(r, group).passed()) return true;
  return false;
}

bool groupHasDisplayMarks(const CheckTable& table, int group) {
  for (int r = 1; r <= table.lastRow(); ++r)
    if (!table.at(r, COL_MARK, group).empty()) return true;
  return false;
}

// The drivers stop after the first group that recorded anything, so groups past the last one
// holding results were never run. A driver may carry on past a mere note, which is why the last
// group with results counts rather than the first; groups a driver marked as run count as well.
bool groupReached(const CheckTable& table, int group, int lastGroupWithResults) {
  if (lastGroupWithResults == 0 || group <= lastGroupWithResults) return true;
  return groupHasDisplayMarks(table, group);
}

std::string twoDigits(int n) {
  return (n < 10 ? "0" : "") + std::to_string(n);
}

}  // namespace

const char* markText(CheckMark mark) {
  switch (mark) {
    case CheckMark::Passed:
      return "Check OK";
    case CheckMark::Failed:
      return "Failed";
    case CheckMark::NotPerformed:
      break;
  }
  return "Check Not Performed";
}

std::vector<std::string> findingLines(const std::string& result) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start <= result.size()) {
    const std::size_t end = result.find_first_of("\r\n", start);
    const std::size_t stop = end == std::string::npos ? result.size() : end;
    if (stop > start) lines.push_back(result.substr(start, stop - start));
    if (end == std::string::npos) break;
    start = end + 1;
  }
  return lines;
}

std::vector<GroupRow> resultRows(const CheckTable& table) {
  int lastGroupWithResults = 0;
  for (int g = 1; g <= table.lastGroup(); ++g)
    if (groupHasResults(table, g)) lastGroupWithResults = g;

  std::vector<GroupRow> groups;
  for (int g = 1; g <= table.lastGroup(); ++g) {
    const std::string& heading = table.at(0, 0, g);  // the group heading cell
    if (heading.empty()) continue;
    GroupRow group;
    group.group = g;
    group.text = twoDigits(g) + ": " + heading;
    const bool reached = groupReached(table, g, lastGroupWithResults);
    bool anyFailed = false;
    bool anyNotPerformed = false;
    for (int r = 1; r <= table.lastRow(); ++r) {
      const std::string& title = table.at(r, COL_TITLE, g);
      if (title.empty()) continue;
      const RowResult& result = table.result(r, g);
      CheckRow check;
      check.row = r;
      check.text = std::string(1, static_cast<char>('a' + r - 1)) + ". " + title;
      if (result.notReached() || (!reached && result.passed())) {
        check.mark = CheckMark::NotPerformed;
      } else if (!result.passed()) {
        check.mark = CheckMark::Failed;
        check.findings = findingLines(result.text());
      }
      anyFailed = anyFailed || check.mark == CheckMark::Failed;
      anyNotPerformed = anyNotPerformed || check.mark == CheckMark::NotPerformed;
      group.checks.push_back(std::move(check));
    }
    if (anyFailed) {
      group.mark = CheckMark::Failed;
    } else if (anyNotPerformed) {
      group.mark = CheckMark::NotPerformed;
    }
    groups.push_back(std::move(group));
  }
  return groups;
}

}  // namespace zorvik
