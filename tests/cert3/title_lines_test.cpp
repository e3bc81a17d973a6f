#include "checks/title_lines.h"

#include <gtest/gtest.h>

#include "checks/check_table.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::crlfLines;

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
      {"space after tilde", crlfLines({"~ Version"}), ILLEGAL + "~ Version\r\n",
       NO_CAPITAL + "<space> on line:\r\n~ Version"},
      {"lower case passes only in 3.0", crlfLines({"~version"}), "",
       NO_CAPITAL + "v on line:\r\n~version"},
      {"control and high bytes", crlfLines({"~\x01X", "~\xC3X"}), "",
       NO_CAPITAL + "Unprintable control character ASCII code =1 on line:\r\n~\x01X" + NO_CAPITAL +
           "Unprintable control character ASCII code =195 on line:\r\n~\xC3X"},
      {"comma bar and brackets", crlfLines({"~,A", "~|B", "~[1]", "~]"}),
       ILLEGAL + "~,A\r\n" + ILLEGAL + "~|B\r\n" + ILLEGAL + "~[1]\r\n" + ILLEGAL + "~]\r\n",
       NO_CAPITAL + ", on line:\r\n~,A" + NO_CAPITAL + "| on line:\r\n~|B" + NO_CAPITAL +
           "[ on line:\r\n~[1]" + NO_CAPITAL + "] on line:\r\n~]"},
      {"a lone LF stays inside the line", "~\nx\r\n", "",
       NO_CAPITAL + "Unprintable control character ASCII code =10 on line:\r\n~\nx"},
      {"tilde inside a description, quoted as read", crlfLines({" WELL.  W-1 : name ~ here "}),
       NOT_FIRST + " WELL.  W-1 : name ~ here \r\n", NOT_FIRST + " WELL.  W-1 : name ~ here "},
      {"comment lines are skipped by the 3.0 pass only", crlfLines({"# ~ old title"}), "",
       NOT_FIRST + "# ~ old title"},
      {"entries of the older pass run on after the quoted line", crlfLines({"x ~", "  ~  ", "~a"}),
       NOT_FIRST + "x ~\r\nMissing section title\r\n~\r\n",
       NOT_FIRST + "x ~" + "Missing section title\r\n~\r\n" + NO_CAPITAL + "a on line:\r\n~a"},
  };
  testing::ScratchDir dir;
  for (const TitleRow& row : rows) {
    SCOPED_TRACE(row.what);
    const std::string path = dir.write("titles.las", row.file);
    RowResult slot3, slot2;
    EXPECT_EQ(checkTitleLines3(LasFile(path), slot3),
              row.expected3.empty() ? CheckStatus::Passed : CheckStatus::Failed);
    EXPECT_EQ(slot3.text(), row.expected3);
    EXPECT_EQ(checkTitleLines2(LasFile(path), slot2),
              row.expected2.empty() ? CheckStatus::Passed : CheckStatus::Failed);
    EXPECT_EQ(slot2.text(), row.expected2);
  }
}

TEST(TitleLines, LinesAcrossReadBlocksAreFoundWhole) {
  // The file is searched in blocks of 256 KiB: put the line ends and the tilde line around the
  // first block boundary, and a long line with a tilde late in it across the second one.
  const std::size_t boundary = 256 * 1024;
  testing::ScratchDir dir;
  for (const std::string end : {"\r\n", "\r"}) {
    for (int shift = -3; shift <= 3; ++shift) {
      SCOPED_TRACE(std::to_string(shift) + (end == "\r" ? " after a lone CR" : " after CR LF"));
      const std::string head = "~Version" + end;
      // "x~y" starts `shift` bytes after the boundary.
      const std::string filler(boundary + shift - head.size() - end.size(), 'a');
      const std::string longLine = std::string(boundary, 'b') + "~";
      const std::string path =
          dir.write("blocks.las", head + filler + end + "x~y" + end + longLine + end + "~A" + end);
      RowResult slot3, slot2;
      checkTitleLines3(LasFile(path), slot3);
      checkTitleLines2(LasFile(path), slot2);
      EXPECT_EQ(slot3.text(), NOT_FIRST + "x~y\r\n" + NOT_FIRST + longLine + "\r\n");
      EXPECT_EQ(slot2.text(), NOT_FIRST + "x~y" + NOT_FIRST + longLine);
    }
  }
}

}  // namespace
}  // namespace zorvik
