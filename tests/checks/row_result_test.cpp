#include "checks/row_result.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zorvik {
namespace {

Finding finding(std::string words, std::optional<std::string> quoted, FindingBreak lineBreak) {
  return Finding{std::move(words), std::move(quoted), 0, lineBreak};
}

// A row's text is its findings one after the other, each with its line break where the check put
// it; the report and the grid read nothing else, so these joins are what users see.
TEST(RowResult, TextJoinsFindingsAsTheirBreaksSay) {
  struct Row {
    const char* name;
    bool notReachedFirst;
    std::vector<Finding> findings;
    std::string text;
    bool passed, notReached, failed;
  };
  const Row rows[] = {
      {"nothing found", false, {}, "", true, false, false},
      {"not reached", true, {}, " ", false, true, false},
      {"words and line below them",
       false,
       {finding("Bad", "A.M 1 : x", FindingBreak::Before),
        finding("Worse", "B.M 2 : y", FindingBreak::Before)},
       "\r\nBad\r\nA.M 1 : x\r\nWorse\r\nB.M 2 : y",
       false,
       false,
       true},
      {"closed by a line break",
       false,
       {finding("STRT value missing", std::nullopt, FindingBreak::After),
        finding("Not first", "x~y", FindingBreak::After)},
       "STRT value missing\r\nNot first\r\nx~y\r\n",
       false,
       false,
       true},
      {"run on",
       false,
       {finding("Not first", "x~y", FindingBreak::None),
        finding("Not first", "z~", FindingBreak::None)},
       "Not first\r\nx~yNot first\r\nz~",
       false,
       false,
       true},
      {"an empty quoted line still takes its line",
       false,
       {finding("Blank Line", "", FindingBreak::Before)},
       "\r\nBlank Line\r\n",
       false,
       false,
       true},
      {"findings without text are not kept",
       false,
       {finding("", std::nullopt, FindingBreak::None)},
       "",
       true,
       false,
       false},
      {"findings after a not-reached mark keep the blank in front",
       true,
       {finding("late", std::nullopt, FindingBreak::None)},
       " late",
       false,
       false,
       true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RowResult result;
    if (row.notReachedFirst) result.markNotReached();
    for (const Finding& f : row.findings) result.add(f);
    EXPECT_EQ(result.text(), row.text);
    EXPECT_EQ(result.textSize(), row.text.size());
    EXPECT_EQ(result.passed(), row.passed);
    EXPECT_EQ(result.notReached(), row.notReached);
    EXPECT_EQ(result.failed(), row.failed);
  }
}

TEST(RowResult, SayingAndClearing) {
  EXPECT_EQ(RowResult::saying("File extension is not .LAS ").text(), "File extension is not .LAS ");
  EXPECT_TRUE(RowResult::saying("").passed());
  RowResult row = RowResult::saying("x");
  row.append(RowResult::saying("y"));
  EXPECT_EQ(row.text(), "xy");
  row.markNotReached();
  EXPECT_TRUE(row.notReached());
  row.clear();
  EXPECT_TRUE(row.passed());
  EXPECT_EQ(row, RowResult{});
}

}  // namespace
}  // namespace zorvik
