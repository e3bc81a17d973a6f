// Group 4's pass feeds the walks of groups 6 and 7; what those groups then report must be exactly
// what their own reading of the data would give.
#include "cert2/data_scan.h"

#include <gtest/gtest.h>

#include "cert2/ascii_checks.h"
#include "cert2/index_range.h"
#include "cert2/line_syntax.h"
#include "las/sections.h"
#include "run/run_state.h"
#include "support/scratch_files.h"

namespace zorvik {
namespace {

using testing::crlfLines;
using testing::writeScratchFile;

TEST(ScanLineBytes, AgreesWithTheWordCount) {
  const std::string rows[] = {"",
                              " ",
                              "1",
                              "1000.0488",
                              "  1000.0488     28.5193  ",
                              "a b c d e f g h i j k l m n o p q r s t u v w x y z",
                              "        x",
                              "x        ",
                              "12345678 12345678 12345678",
                              "1234567 9abcdef 1",
                              "\ttab\tseparated is one value",
                              std::string(300, ' ') + "1 2" + std::string(13, ' ') + "3"};
  for (const std::string& line : rows) {
    SCOPED_TRACE("[" + line + "]");
    LineBytes bytes = scanLineBytes(line);
    EXPECT_EQ(bytes.values, countWords(line, " "));
    EXPECT_FALSE(bytes.tilde);
    EXPECT_EQ(bytes.tab, line.find('\t') != std::string::npos);
  }
  // Every byte position of a word and of the tail, for both marks.
  for (std::size_t at = 0; at < 20; ++at) {
    std::string line(20, 'x');
    line[at] = '~';
    EXPECT_TRUE(scanLineBytes(line).tilde) << at;
    EXPECT_FALSE(scanLineBytes(line).tab) << at;
    line[at] = '\t';
    EXPECT_TRUE(scanLineBytes(line).tab) << at;
    EXPECT_FALSE(scanLineBytes(line).tilde) << at;
  }
}

struct Outcome {
  int code6 = 0;
  int code7 = 0;
  Slots slots6;
  Slots slots7;
  bool kept = false;
};

Outcome certifyDataGroups(const std::string& path, const std::string& wrap, bool keep) {
  resetRunState();
  runState().lasVersion = 2.0f;
  runState().doWrap = true;
  locateStandardSections(path);
  ParamTable well;
  ParamTable curve;
  parseSectionTable(path, well, "Well");
  parseSectionTable(path, curve, "Curve");
  Outcome out;
  Slots slots4;
  int linesPerRecord = 0;
  int channels = 0;
  checkLineSyntax(path, wrap, curve, slots4, linesPerRecord, channels);
  out.kept = runState().dataScan.valid;
  if (!keep) runState().dataScan = {};
  WellRange range{mnemonicValue(well, "STRT"), mnemonicValue(well, "STOP"),
                  mnemonicValue(well, "STEP"), mnemonicValue(well, "NULL")};
  out.code6 = checkIndexRange(path, range, wrap, well, curve, out.slots6);
  out.code7 = checkAsciiSection(path, wrap, linesPerRecord, channels, curve, out.slots7);
  return out;
}

TEST(DataScan, GroupsSixAndSevenReportTheSameFromTheKeptPass) {
  auto file = [](const std::string& wrap, int curves, const std::vector<std::string>& data,
                 const std::vector<std::string>& after = {}) {
    std::vector<std::string> lines = {
        "~Version",       "VERS. 2.0 : v",     "WRAP. " + wrap + " : w",
        "~Well",          "STRT.M 1000.0 : s", "STOP.M 1001.0 : s",
        "STEP.M 0.5 : s", "NULL. -999.25 : n", "~Curve",
        "DEPT.M : d"};
    for (int i = 1; i < curves; ++i) lines.push_back("C" + std::to_string(i) + ". : c");
    lines.push_back("~A");
    lines.insert(lines.end(), data.begin(), data.end());
    lines.insert(lines.end(), after.begin(), after.end());
    return crlfLines(lines);
  };
  const std::string w80(80, '1');
  struct Row {
    const char* name;
    std::string bytes;
    std::string wrap;
    std::string lengthFinding = "";
  };
  const Row rows[] = {
      {"clean", file("NO", 2, {"1000.0 1", "1000.5 2", "1001.0 3"}), "NO"},
      {"short record and broken step", file("NO", 2, {"1000.0 1", "1000.5", "1000.7 3"}), "NO"},
      {"a tilde inside a value", file("NO", 2, {"1000.0 1", "1000.5 a~b", "1001.0 3 4"}), "NO"},
      {"long unwrapped line", file("NO", 2, {"1000.0 1", "1000.5 " + std::string(300, '2')}), "NO",
       "Line too long for WRAP NO. Was 307 long. 256 is max.\r\n1000.5 " + std::string(300, '2')},
      {"wrapped and clean",
       file("YES", 6, {"1000.0", "1 2 3 4 5", "1000.5", "1 2 3 4 5", "1001.0", "1 2 3 4 5"}),
       "YES"},
      // The next section's title falls inside a record: the record walk reads on past it.
      {"wrapped, title inside a record, long line after it",
       file("YES", 11,
            {"1000.0", "1 2 3 4 5", "6 7 8 9 10", "1000.5", "1 2 3 4 5", "6 7 8 9 10", "1001.0"},
            {"~Other", w80}),
       "YES", "Line too long for WRAP YES. Was 80 long. 80 is max.\r\n" + w80},
      {"comments and blanks in the data",
       file("NO", 2, {"# c", "1000.0 1", "", "1000.5 2", "1001.0 3"}), "NO"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path = writeScratchFile("data_scan.las", row.bytes);
    Outcome kept = certifyDataGroups(path, row.wrap, true);
    Outcome own = certifyDataGroups(path, row.wrap, false);
    EXPECT_TRUE(kept.kept);
    EXPECT_EQ(kept.slots7[4], row.lengthFinding);
    EXPECT_EQ(kept.code6, own.code6);
    EXPECT_EQ(kept.code7, own.code7);
    for (int k = 1; k <= 7; ++k) EXPECT_EQ(kept.slots6[k], own.slots6[k]) << "group 6 slot " << k;
    for (int k = 1; k <= 4; ++k) EXPECT_EQ(kept.slots7[k], own.slots7[k]) << "group 7 slot " << k;
  }
}

TEST(DataScan, AChangedFileIsReadAgain) {
  std::string bytes =
      crlfLines({"~Version", "VERS. 2.0 : v", "WRAP. NO : w", "~Well", "STRT.M 1000.0 : s",
                 "~Curve", "DEPT.M : d", "~A", "1000.0", "1000.5"});
  std::string path = writeScratchFile("data_scan_changed.las", bytes);
  resetRunState();
  runState().lasVersion = 2.0f;
  locateStandardSections(path);
  ParamTable curve;
  parseSectionTable(path, curve, "Curve");
  Slots slots;
  int linesPerRecord = 0;
  int channels = 0;
  checkLineSyntax(path, "NO", curve, slots, linesPerRecord, channels);
  std::int64_t start = runState().sectionIndex.back().start;
  ASSERT_NE(keptScan(path, start), nullptr);
  writeScratchFile("data_scan_changed.las", bytes + "1001.0\r\n");
  EXPECT_EQ(keptScan(path, start), nullptr);
  EXPECT_EQ(keptScan(path + "x", start), nullptr);
}

}  // namespace
}  // namespace zorvik
