#include "ui/result_rows.h"

#include <gtest/gtest.h>

#include "checks/check_table.h"

namespace zorvik {
namespace {

// A catalogue of three groups: group 1 with three checks, group 2 with two, group 3 with one,
// and an untitled row 3 in group 2 that must not be listed.
CheckTable smallCatalogue() {
  CheckTable table(4);
  const char* headings[] = {"", "Files", "Version", "Data", ""};
  for (int g = 1; g <= 3; ++g) table.at(0, 0, g) = headings[g];
  table.at(1, COL_TITLE, 1) = "File exists";
  table.at(2, COL_TITLE, 1) = "File has more than 0 bytes";
  table.at(3, COL_TITLE, 1) = "File can be accessed";
  table.at(1, COL_TITLE, 2) = "VERS present";
  table.at(2, COL_TITLE, 2) = "WRAP present";
  table.at(1, COL_TITLE, 3) = "Data lines";
  return table;
}

std::string marks(const std::vector<GroupRow>& groups) {
  const char letters[] = {'P', 'F', 'N'};
  std::string text;
  for (const GroupRow& group : groups) {
    text += letters[static_cast<int>(group.mark)];
    text += ':';
    for (const CheckRow& check : group.checks) text += letters[static_cast<int>(check.mark)];
    text += ' ';
  }
  return text;
}

TEST(ResultRows, MarksFollowResultsAndHowFarTheRunGot) {
  struct Result {
    int row, group;
    const char* text;
  };
  struct Row {
    const char* name;
    std::vector<Result> results;
    std::vector<std::pair<int, int>> displayMarks;  // (row, group) marked as run
    const char* marks;  // per group: group mark, then each check's; P passed F failed N not run
  };
  const Row rows[] = {
      {"all passed", {}, {}, "P:PPP P:PP P:P "},
      {"group 1 failed, later groups never ran", {{2, 1, "empty"}}, {}, "F:PFP N:NN N:N "},
      {"failure in group 2 stops before 3", {{2, 2, "no WRAP"}}, {}, "P:PPP F:PF N:N "},
      {"single blank is not performed", {{1, 2, " "}}, {}, "P:PPP N:NP N:N "},
      {"a note in 2 and a failure in 3: both groups ran",
       {{2, 2, "note"}, {1, 3, "bad"}},
       {},
       "P:PPP F:PF F:F "},
      {"display marks show a group ran", {{1, 2, "bad"}}, {{1, 3}}, "P:PPP F:FP P:P "},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    CheckTable table = smallCatalogue();
    for (const Result& r : row.results) table.at(r.row, COL_RESULT, r.group) = r.text;
    for (const auto& [r, g] : row.displayMarks) table.at(r, COL_MARK, g) = " ";
    EXPECT_EQ(marks(resultRows(table)), row.marks);
  }
}

TEST(ResultRows, FindingLinesSplitAtEveryLineEnd) {
  struct Row {
    const char* text;
    std::vector<std::string> lines;
  };
  const Row rows[] = {
      {"", {}},
      {"one", {"one"}},
      {"\r\na\r\nb", {"a", "b"}},
      {"a\rb\nc\r\n\r\n", {"a", "b", "c"}},
      {" \r\n", {" "}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(findingLines(row.text), row.lines);
  }
}

}  // namespace
}  // namespace zorvik
