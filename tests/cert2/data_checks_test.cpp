// Groups 4 and 7 where the fixture reports say nothing: which lines are judged, the cap on
// findings, line length and record boundaries; and group 4's pass feeding groups 6 and 7.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "base/text.h"
#include "cert2/ascii_checks.h"
#include "cert2/las_parts.h"
#include "cert2/line_syntax.h"
#include "checks/data_scan.h"

namespace zorvik {
namespace {

using testing::LasParts;

CheckStatus lineSyntax(RunContext& run, const LasParts& parts, Slots& slots) {
  run = testing::prepareLas("data_checks.las", testing::lasBytes(parts));
  int linesPerRecord = 0;
  int channels = 0;
  return checkLineSyntax(run, parts.wrap, testing::sectionTable(run, "Curve"), slots,
                         linesPerRecord, channels);
}

CheckStatus lineSyntax(const LasParts& parts, Slots& slots) {
  RunContext run;
  return lineSyntax(run, parts, slots);
}

TEST(CheckLineSyntax, FindingsPerSlot) {
  // Each section's turn reads the lines after the title where the previous turn stopped, so the
  // lines of ~Curve (the last header section before the data) are never judged.
  const std::vector<std::string> twoLines = {"1000.0", "1 2 3 4", "1000.5", "1 2 3 4"};
  const std::vector<std::string> curve5 = testing::curveLines(5);
  const std::pair<LasParts, std::string> rows[] = {
      {{.data = {"1000.0 1"}, .curve = {"no delimiters here"}}, ""},
      {{.data = twoLines, .wrap = "no", .curve = curve5},
       "7: WRAP value does not match ~ASCII section structure. WRAP =NO while ~ASCII structure "
       "looks like YES\n"},
      {{.data = twoLines, .wrap = "Y", .curve = curve5}, ""},  // neither YES nor NO: not compared
  };
  for (const auto& [parts, expected] : rows) {
    SCOPED_TRACE(parts.wrap + " " + parts.curve[0]);
    Slots slots;
    EXPECT_EQ(lineSyntax(parts, slots),
              expected.empty() ? CheckStatus::Passed : CheckStatus::Failed);
    EXPECT_EQ(testing::filledSlots(slots, 7), expected);
  }
}

TEST(CheckLineSyntax, FindingsOfAHugeBadDataSectionAreCapped) {
  LasParts parts;
  for (int i = 0; i < 300000; ++i) parts.data.push_back(std::to_string(1000 + i) + "\t1");
  Slots slots;
  lineSyntax(parts, slots);
  const std::string text = slots[5].text();
  EXPECT_EQ(text.rfind("\r\nTab character(s) found.\r\n1000\t1\r\n", 0), 0u);
  EXPECT_GE(text.size(), 8u << 20);
  EXPECT_LT(text.size(), (8u << 20) + 100);
}

TEST(CheckAsciiSection, WrappedRecords) {
  const std::string line79 = std::string(77, '1') + " 2";
  struct Row {
    const char* name;
    std::vector<std::string> data;  // records of three channels over two lines
    CheckStatus code;
    std::string slots = "";
    bool wrapChecks = true;
  };
  const Row rows[] = {
      {"78 characters pass",
       {"1000.0", std::string(76, '1') + " 2", "1000.5", "3 4"},
       CheckStatus::Passed},
      {"a line of 79 characters",
       {"1000.0", line79, "1000.5", "3 4"},
       CheckStatus::Failed,
       "4: Line too long for WRAP YES. Was 79 long. 80 is max.\r\n" + line79 + "\n"},
      // Without the wrap checks no line length is judged, wrapped or not.
      {"a line of 79 characters without the wrap checks",
       {"1000.0", line79, "1000.5", "3 4"},
       CheckStatus::Passed,
       "",
       false},
      {"a record short of a value shows the joined record",
       {"1000.0", "1 2", " 1000.5 ", "3 "},
       CheckStatus::Failed,
       "2: Space delimited column count differs from ~Curve channel count. Expected: 3. Found: "
       "2\r\n1000.5  3\n"},
      {"no data lines is a fault", {}, CheckStatus::Fault},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    LasParts parts{.data = row.data, .wrap = "YES", .curve = testing::curveLines(3)};
    RunContext run = testing::prepareLas("ascii_checks.las", testing::lasBytes(parts));
    run.doWrap = row.wrapChecks;
    Slots slots;
    slots.fill(RowResult::notReachedRow());  // the check decides all four rows
    EXPECT_EQ(checkAsciiSection(run, "YES", 2, 3, testing::sectionTable(run, "Curve"), slots),
              row.code);
    EXPECT_EQ(testing::filledSlots(slots, 4), row.slots);
  }
}

TEST(ScanLineBytes, AgreesWithTheWordCount) {
  std::vector<std::string> lines = {"", "  1000.0488     28.5193  ", "12345678 1234567 9abcdef 1",
                                    "a b c d e f g h i j k l m n o p q r s t u v w x y z",
                                    std::string(300, ' ') + "1 2" + std::string(13, ' ') + "3"};
  for (std::size_t at = 0; at < 20; ++at) {  // every byte position of a word and of the tail
    for (char mark : {'~', '\t'}) {
      lines.push_back(std::string(20, 'x'));
      lines.back()[at] = mark;
    }
  }
  // A line of more blocks than the counters of a block's bytes hold steps for.
  std::string many;
  for (int i = 0; i < 3000; ++i) many += "1 ";
  lines.push_back(many);
  // Lines of every length up to a few blocks, with blanks, tildes and tabs anywhere.
  std::mt19937 random(20261124);
  const std::string alphabet = "12.5   ~\tx";
  for (int n = 0; n < 600; ++n) {
    std::string line(random() % 70, ' ');
    for (char& c : line) c = alphabet[random() % (n % 2 == 0 ? 5 : alphabet.size())];
    lines.push_back(line);
  }
  for (const std::string& line : lines) {
    SCOPED_TRACE("[" + line + "]");
    LineBytes bytes = scanLineBytes(line);
    EXPECT_EQ(bytes.values, countWords(line, " "));
    EXPECT_EQ(bytes.tilde, line.find('~') != std::string::npos);
    EXPECT_EQ(bytes.tab, line.find('\t') != std::string::npos);
  }
}

// Codes and slots of groups 6 and 7 after group 4's pass, its kept answers used or dropped; the
// line length finding (group 7's slot 4) last.
std::string dataGroups(const std::string& path, const std::string& wrap, bool keep) {
  RunContext run;
  run.lasFile = path;
  run.dialect.version = 2.0f;
  run.doWrap = true;
  locateStandardSections(LasFile(path), run.dialect, run.sections);
  ParamTable well = testing::sectionTable(run, "Well");
  ParamTable curve = testing::sectionTable(run, "Curve");
  Slots slots4, slots6, slots7;
  int linesPerRecord = 0;
  int channels = 0;
  checkLineSyntax(run, wrap, curve, slots4, linesPerRecord, channels);
  EXPECT_TRUE(run.dataScan.valid);
  if (!keep) run.dataScan = {};
  const auto code = [](CheckStatus status) { return toText(static_cast<int>(status)); };
  std::string text =
      code(checkIndexRange(run, testing::wellRangeOf(well), wrap, well, curve, slots6, nullptr)) +
      code(checkAsciiSection(run, wrap, linesPerRecord, channels, curve, slots7));
  for (int k = 1; k <= 7; ++k) text += "|" + slots6[k].text();
  for (int k = 1; k <= 4; ++k) text += "|" + slots7[k].text();
  return text;
}

TEST(DataScan, GroupsSixAndSevenReportTheSameFromTheKeptPass) {
  const std::string w80(80, '1');
  const std::string long300 = "1000.5 " + std::string(300, '2');
  struct Row {
    const char* name;
    LasParts parts;
    std::string lengthFinding = "";
  };
  const Row rows[] = {
      {"short record and broken step", {.data = {"1000.0 1", "1000.5", "1000.7 3"}}},
      {"a tilde inside a value", {.data = {"1000.0 1", "1000.5 a~b", "1001.0 3 4"}}},
      {"comments and blanks in the data",
       {.data = {"# c", "1000.0 1", "", "1000.5 2", "1001.0 3"}}},
      {"long unwrapped line",
       {.data = {"1000.0 1", long300}},
       "Line too long for WRAP NO. Was 307 long. 256 is max.\r\n" + long300},
      // The next section's title falls inside a record: the record walk reads on past it.
      {"wrapped, title inside a record, long line after it",
       {.data = {"1000.0", "1 2 3 4 5", "6 7 8 9 10", "1000.5", "1 2 3 4 5", "6 7 8 9 10",
                 "1001.0"},
        .wrap = "YES",
        .curve = testing::curveLines(11),
        .after = {"~Other", w80}},
       "Line too long for WRAP YES. Was 80 long. 80 is max.\r\n" + w80},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path = testing::writeScratchFile("data_scan.las", testing::lasBytes(row.parts));
    const std::string kept = dataGroups(path, row.parts.wrap, true);
    EXPECT_EQ(kept, dataGroups(path, row.parts.wrap, false));
    EXPECT_TRUE(kept.ends_with("|" + row.lengthFinding)) << kept;
  }
}

TEST(DataScan, AChangedFileIsReadAgain) {
  LasParts parts{.data = {"1000.0", "1000.5"}};
  Slots slots;
  RunContext run;
  lineSyntax(run, parts, slots);
  const std::string& path = run.lasFile;
  std::int64_t start = run.sections.entries.back().start;
  ASSERT_NE(keptScan(run.dataScan, path, start), nullptr);
  testing::writeScratchFile("data_checks.las", testing::lasBytes(parts) + "1001.0\r\n");
  EXPECT_EQ(keptScan(run.dataScan, path, start), nullptr);
  EXPECT_EQ(keptScan(run.dataScan, path + "x", start), nullptr);
}

}  // namespace
}  // namespace zorvik
