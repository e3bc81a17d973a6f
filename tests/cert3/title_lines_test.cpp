#include "cert3/title_lines.h"

#include <gtest/gtest.h>

#include "cert3/scratch_file.h"
#include "checks/check_table.h"

namespace zorvik {
namespace {

using testing::crlfLines;
using testing::ScratchFile;

struct TitleRow {
  const char* what;
  std::string file;
  std::string expected3;  // slot after the 3.0 pass
  std::string expected2;  // slot after the 1.2/2.0 pass
};

const std::string NOT_FIRST = "Tilde not first non-space character of the line\r\n";
const std::string ILLEGAL = "Tilde followed by illegal characters; space, comma, tab, | or [ ]\r\n";
const std::string NO_CAPITAL = "Tilde not followed by upper case letter, A-Z. Character was ";

TEST(TitleLines, EachPassJudgesTildeLinesByItsOwnRules) {
  const TitleRow rows[] = {
      {"clean titles", crlfLines({"~Version", "VERS. 3.0 : v", "  ~Well Information"}), "", ""},
      {"no tilde at all", crlfLines({"VERS. 3.0 : v", "WRAP. NO : w"}), "", ""},
      {"bare tilde", crlfLines({"  ~  "}), "Missing section title\r\n~\r\n",
       "Missing section title\r\n~\r\n"},
      {"space after tilde", crlfLines({"~ Version"}), ILLEGAL + "~ Version\r\n",
       NO_CAPITAL + "<space> on line:\r\n~ Version"},
      {"lower case passes only in 3.0", crlfLines({"~version"}), "",
       NO_CAPITAL + "v on line:\r\n~version"},
      {"tab after tilde", crlfLines({"~\tWell"}), ILLEGAL + "~\tWell\r\n",
       NO_CAPITAL + "<TAB> on line:\r\n~\tWell"},
      {"control and high bytes", crlfLines({"~\x01X", "~\xC3X"}), "",
       NO_CAPITAL + "Unprintable control character ASCII code =1 on line:\r\n~\x01X" + NO_CAPITAL +
           "Unprintable control character ASCII code =195 on line:\r\n~\xC3X"},
      {"comma bar and brackets", crlfLines({"~,A", "~|B", "~[1]", "~]"}),
       ILLEGAL + "~,A\r\n" + ILLEGAL + "~|B\r\n" + ILLEGAL + "~[1]\r\n" + ILLEGAL + "~]\r\n",
       NO_CAPITAL + ", on line:\r\n~,A" + NO_CAPITAL + "| on line:\r\n~|B" + NO_CAPITAL +
           "[ on line:\r\n~[1]" + NO_CAPITAL + "] on line:\r\n~]"},
      {"tilde inside a description, quoted as read", crlfLines({" WELL.  W-1 : name ~ here "}),
       NOT_FIRST + " WELL.  W-1 : name ~ here \r\n", NOT_FIRST + " WELL.  W-1 : name ~ here "},
      {"comment lines are skipped by the 3.0 pass only", crlfLines({"# ~ old title"}), "",
       NOT_FIRST + "# ~ old title"},
      {"entries of the older pass run on after the quoted line", crlfLines({"x ~", "~", "~a"}),
       NOT_FIRST + "x ~\r\nMissing section title\r\n~\r\n",
       NOT_FIRST + "x ~" + "Missing section title\r\n~\r\n" + NO_CAPITAL + "a on line:\r\n~a"},
  };
  for (const TitleRow& row : rows) {
    SCOPED_TRACE(row.what);
    ScratchFile file(row.file);
    std::string slot3, slot2;
    EXPECT_EQ(checkTitleLines3(file.path(), slot3),
              row.expected3.empty() ? CHECK_PASSED : CHECK_FAILED);
    EXPECT_EQ(slot3, row.expected3);
    EXPECT_EQ(checkTitleLines2(file.path(), slot2),
              row.expected2.empty() ? CHECK_PASSED : CHECK_FAILED);
    EXPECT_EQ(slot2, row.expected2);
  }
}

TEST(TitleLines, LinesAcrossReadBlocksAreFoundWhole) {
  // The file is searched in blocks of 256 KiB: put the line ends and the tilde line around the
  // first block boundary, and a long line with a tilde late in it across the second one.
  const std::size_t boundary = 256 * 1024;
  for (const std::string end : {"\r\n", "\r"}) {
    for (int shift = -3; shift <= 3; ++shift) {
      SCOPED_TRACE(std::to_string(shift) + (end == "\r" ? " after a lone CR" : " after CR LF"));
      const std::string head = "~Version" + end;
      // "x~y" starts `shift` bytes after the boundary.
      const std::string filler(boundary + shift - head.size() - end.size(), 'a');
      const std::string longLine = std::string(boundary, 'b') + "~";
      ScratchFile file(head + filler + end + "x~y" + end + longLine + end + "~A" + end);
      std::string slot3, slot2;
      checkTitleLines3(file.path(), slot3);
      checkTitleLines2(file.path(), slot2);
      EXPECT_EQ(slot3, NOT_FIRST + "x~y\r\n" + NOT_FIRST + longLine + "\r\n");
      EXPECT_EQ(slot2, NOT_FIRST + "x~y" + NOT_FIRST + longLine);
    }
  }
}

TEST(TitleLines, FindingsAreAppendedToWhatTheSlotHeld) {
  ScratchFile file(crlfLines({"~"}));
  std::string slot = "before\r\n";
  EXPECT_EQ(checkTitleLines3(file.path(), slot), CHECK_FAILED);
  EXPECT_EQ(slot, "before\r\nMissing section title\r\n~\r\n");
}

TEST(TitleLines, UnreadableFileIsAFaultAndLeavesTheSlot) {
  std::string slot;
  EXPECT_EQ(checkTitleLines3("/nonexistent/zorvik/file.las", slot), CHECK_FAULT);
  EXPECT_EQ(checkTitleLines2("/nonexistent/zorvik/file.las", slot), CHECK_FAULT);
  EXPECT_EQ(slot, "");
}

TEST(TitleLines, LoneLineFeedStaysInsideTheLine) {
  // Lines end at CR LF or CR only, so "~\n" followed by text is one line of three characters.
  ScratchFile file(std::string("~\nx\r\n"));
  std::string slot;
  EXPECT_EQ(checkTitleLines3(file.path(), slot), CHECK_PASSED);
  EXPECT_EQ(checkTitleLines2(file.path(), slot), CHECK_FAILED);
}

}  // namespace
}  // namespace zorvik
