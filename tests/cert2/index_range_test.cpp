// STRT/STOP/STEP/NULL against the index channel: the index reader, the increment analysis, the
// STEP tolerance and precision, units, and the repair of a null STOP in the file.
#include "cert2/index_range.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "cert2/data_lines.h"
#include "las/sections.h"
#include "las/text.h"
#include "run/run_state.h"
#include "support/batch_run.h"
#include "support/scratch_files.h"

namespace zorvik {
namespace {

using testing::crlfLines;
using testing::readBytes;
using testing::writeScratchFile;

struct WellLines {
  std::string strt = "STRT.M       1000.0 : START DEPTH";
  std::string stop = "STOP.M       1001.0 : STOP DEPTH";
  std::string step = "STEP.M          0.5 : STEP";
  std::string null = "NULL.       -999.25 : NULL VALUE";
};

std::string lasText(const WellLines& well, const std::vector<std::string>& data,
                    const std::string& wrap = "NO", const std::string& indexCurve = "DEPT.M") {
  return crlfLines({"~Version Information", "VERS.   2.0 : CWLS LOG ASCII STANDARD",
                    "WRAP.   " + wrap + " : wrapping", "~Well Information", well.strt, well.stop,
                    well.step, well.null, "~Curve Information", indexCurve + " : DEPTH",
                    "GR  .GAPI : GAMMA RAY", "~A  DEPT  GR"}) +
         crlfLines(data);
}

std::string prepare(const std::string& name, const std::string& bytes) {
  std::string path = writeScratchFile(name, bytes);
  resetRunState();
  runState().lasVersion = 2.0f;
  locateStandardSections(path);
  return path;
}

TEST(ReadIndexEnds, FirstAndLastIndex) {
  struct Row {
    const char* name;
    std::vector<std::string> data;
    std::string wrap = "NO";
    int linesPerRecord = 1;
    int code = INDEX_READ;
    std::string firstText = "1000.0";
    std::string lastText = "1000.5";
  };
  const Row rows[] = {
      {.name = "plain", .data = {" 1000.0  10", "1000.25 11", "1000.5 12"}},
      {.name = "comments and blanks around the data",
       .data = {"# first", "", "1000.0 10", "1000.5 11", "# trailing", "  "}},
      {.name = "wrapped: the last line holding the index alone",
       .data = {"1000.0", "10 11", "1000.5", "12 13"},
       .wrap = "YES",
       .linesPerRecord = 2},
      {.name = "wrapped: a record ending in a single value",
       .data = {"1000.0", "10 11", "12", "1000.5", "13 14", "15"},
       .wrap = "YES",
       .linesPerRecord = 3},
      {.name = "wrapped, record length unknown: the last line holding no delimiter",
       .data = {"1000.0", "10 11", "1000.5", "12 13"},
       .wrap = "YES",
       .linesPerRecord = 0},
      {.name = "no data line", .data = {}, .code = INDEX_NO_DATA, .firstText = "", .lastText = ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path = prepare("index_ends.las", lasText({}, row.data, row.wrap));
    IndexEnds ends;
    EXPECT_EQ(readIndexEnds(path, row.wrap, ends, row.linesPerRecord), row.code);
    EXPECT_EQ(ends.firstText, row.firstText);
    EXPECT_EQ(ends.lastText, row.lastText);
    EXPECT_EQ(ends.first, row.code == INDEX_READ ? 1000.0 : 0.0);
    EXPECT_EQ(ends.last, row.code == INDEX_READ ? 1000.5 : 0.0);
  }
  // Values are those of the "0.00000" text.
  std::string path = prepare("index_ends.las", lasText({}, {"1000.123456 1", "1000.654321 1"}));
  IndexEnds ends;
  ASSERT_EQ(readIndexEnds(path, "NO", ends), INDEX_READ);
  EXPECT_EQ(ends.first, 1000.12346);
  EXPECT_EQ(ends.last, 1000.65432);
}

TEST(ReadIndexEnds, ReadsOnlyTheTailOfALargeDataSection) {
  // A first line that reads as a different number shows which lines the reader looked at: the
  // tail starts in the middle of a line, which must not pass for an index.
  std::vector<std::string> data;
  for (int i = 0; i < 20000; ++i) data.push_back(std::to_string(2000 + i) + ".25 7.5");
  std::string bytes = lasText({}, data);
  ASSERT_GT(bytes.size(), 100000u);
  std::string path = prepare("index_ends_big.las", bytes + crlfLines({"~Other", "NOTE"}));
  IndexEnds ends;
  ASSERT_EQ(readIndexEnds(path, "NO", ends), INDEX_READ);
  EXPECT_EQ(ends.firstText, "2000.25");
  EXPECT_EQ(ends.lastText, "21999.25");  // the ~Other section after the data is not data
}

TEST(AnalyseIncrements, ConstantOrWhereItBreaks) {
  struct Row {
    const char* name;
    std::vector<std::string> data;
    int linesPerRecord;
    int code;
    double increment;
    std::string indexText;
  };
  const Row rows[] = {
      {"constant", {"1000.0 1", "1000.5 1", "1001.0 1"}, 1, STEP_CONSTANT, 0.5, "1001.0"},
      {"decreasing", {"1001.0 1", "1000.5 1", "1000.0 1"}, 1, STEP_CONSTANT, -0.5, "1000.0"},
      {"breaks at the third record",
       {"1000.0 1", "1000.5 1", "1000.99999 1", "1001.5 1"},
       1,
       STEP_VARIES,
       0.49999,
       "1000.99999"},
      {"differences below five decimals do not count",
       {"1000.0 1", "1000.5000001 1", "1001.0 1"},
       1,
       STEP_CONSTANT,
       0.5,
       "1001.0"},
      {"wrapped records, comments passed over",
       {"1000.0", "1 2", "# note", "1000.25", "3 4", "1000.5", "", "5 6"},
       2,
       STEP_CONSTANT,
       0.25,
       "1000.5"},
      {"a single record cannot be analysed", {"1000.0 1"}, 1, STEP_UNANALYSABLE, 0, ""},
      {"an index that is no number cannot be analysed",
       {"10:00:00 1", "10:00:10 1"},
       1,
       STEP_UNANALYSABLE,
       0,
       ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path = prepare("increments.las", lasText({}, row.data));
    IncrementResult result;
    EXPECT_EQ(analyseIncrements(path, row.linesPerRecord, result), row.code);
    EXPECT_NEAR(result.increment, row.increment, 1e-9);
    EXPECT_EQ(result.indexText, row.indexText);
  }
  IncrementResult result;
  EXPECT_EQ(analyseIncrements("/nonexistent/file.las", 1, result), STEP_UNREADABLE);
}

TEST(ParseRoundedNumber, ReadsAsTheFiveDecimalTextWouldReadBack) {
  const char* rows[] = {"1000.0488",
                        "-1000.0488",
                        "+12",
                        "0",
                        "-0.000001",
                        "1000.000005",
                        "1000.123456789",
                        "0.1524",
                        ".5",
                        "5.",
                        "123456789012.5",
                        "1.5e3",
                        " 42.25 ",
                        "99999999999.99999",
                        "-999.25"};
  for (const char* text : rows) {
    SCOPED_TRACE(text);
    double direct = 0;
    ASSERT_TRUE(parseNumber(text, direct));
    double expected = 0;
    ASSERT_TRUE(parseNumber(formatFixed(direct, 5), expected));
    double value = 1;
    ASSERT_TRUE(parseRoundedNumber(text, value));
    EXPECT_EQ(value, expected);
    EXPECT_FALSE(std::signbit(value) && value == 0);
  }
  for (const char* text : {"", ".", "1.2.3", "10:00", "1,5", "- 1"}) {
    double value = 0;
    EXPECT_FALSE(parseRoundedNumber(text, value)) << text;
  }
}

TEST(TrimChar, RemovesTheCharacterAtBothEnds) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"0.1500", ".15"}, {"00100", "1"}, {"10.0", "10."}, {"0", ""}, {"-0.50", "-0.5"}};
  for (const auto& [text, expected] : rows) EXPECT_EQ(trimChar(text, '0'), expected) << text;
}

const std::vector<std::string> kData = {"1000.0 10", "1000.5 11", "1001.0 12"};

TEST(CheckIndexRange, FindingsPerSlot) {
  struct Row {
    const char* name;
    WellLines well = {};
    std::vector<std::string> data = kData;
    std::string indexCurve = "DEPT.M";
    int code = CHECK_FAILED;
    std::map<int, std::string> slots = {};  // slots 1..7 not named here are empty
  };
  const std::string unitsPrefix = " Units don't match: STRT=";
  const Row rows[] = {
      {.name = "matching data passes", .code = CHECK_PASSED},
      {.name = "STRT rounded to five decimals passes",
       .well = {.strt = "STRT.M 1000.000001 : START"},
       .code = CHECK_PASSED},
      {.name = "missing NULL stops at once",
       .well = {.null = "# no null"},
       .slots = {{1, "NULL value missing\r\n"}}},
      {.name = "all four missing",
       .well = {.strt = "#", .stop = "#", .step = "#", .null = "#"},
       .slots = {{1,
                  "STRT value missing\r\nSTOP value missing\r\nSTEP value missing\r\n"
                  "NULL value missing\r\n"}}},
      {.name = "STEP differs from a constant increment",
       .well = {.step = "STEP.M 0.25 : STEP"},
       .slots = {{4, "~Well STEP value = 0.25000, last read increment @ 1001.0 was 0.50000"},
                 {5,
                  "Index channel does not carry enough precision for STEP.  Index has 1 "
                  "decimals while STEP has 2 decimals"}}},
      {.name = "STEP 0 with varying data says nothing",
       .well = {.stop = "STOP.M 1002.0 : STOP", .step = "STEP.M 0 : STEP"},
       .data = {"1000.0 1", "1000.5 1", "1002.0 1"},
       .code = CHECK_PASSED},
      {.name = "an increment beyond the tolerance is a broken step",
       .well = {.stop = "STOP.M 1002.0 : STOP"},
       .data = {"1000.0 1", "1000.5 1", "1000.7 1", "1002.0 1"},
       .slots = {{4, "STEP no longer constant at : 1000.70000 (0.20000)"}}},
      {.name = "index written with fewer decimals than STEP",
       .well = {.stop = "STOP.M 1000.30 : STOP", .step = "STEP.M 0.1524 : STEP"},
       .data = {"1000.00 1", "1000.15 1", "1000.30 1"},
       .slots = {{4, "~Well STEP value = 0.15240, last read increment @ 1000.30 was 0.15000"},
                 {5,
                  "Index channel does not carry enough precision for STEP.  Index has 2 "
                  "decimals while STEP has 4 decimals"}}},
      {.name = "an index without a period is not judged for precision",
       .well = {.strt = "STRT.M 1000 : START",
                .stop = "STOP.M 1002 : STOP",
                .step = "STEP.M 1.00 : STEP"},
       .data = {"1000 1", "1001 1", "1002 1"},
       .code = CHECK_PASSED},
      {.name = "absent units are named",
       .well = {.strt = "STRT. 1000.0 : START", .stop = "STOP. 1001.0 : STOP"},
       .slots = {{7, unitsPrefix + "<absent>, STOP=<absent>, STEP=M, DEPT=M"}}},
      {.name = "index channel unit compared ignoring case",
       .indexCurve = "DEPT.m",
       .code = CHECK_PASSED},
      {.name = "a single data line records nothing", .data = {"1000.0 1"}, .code = CHECK_NOTHING},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path =
        prepare("index_range.las", lasText(row.well, row.data, "NO", row.indexCurve));
    ParamTable well;
    ParamTable curve;
    parseSectionTable(path, well, "Well");
    parseSectionTable(path, curve, "Curve");
    WellRange range{mnemonicValue(well, "STRT"), mnemonicValue(well, "STOP"),
                    mnemonicValue(well, "STEP"), mnemonicValue(well, "NULL")};
    Slots slots;
    slots.fill(" ");
    EXPECT_EQ(checkIndexRange(path, range, "NO", well, curve, slots), row.code);
    if (row.code == CHECK_NOTHING) continue;
    for (int k = 1; k <= 7; ++k) {
      auto it = row.slots.find(k);
      std::string expected = it != row.slots.end() ? it->second : "";
      // An early end leaves the slots it never reached as the driver set them.
      if (row.slots.count(1)) expected = k == 1 ? row.slots.at(1) : " ";
      EXPECT_EQ(slots[k], expected) << "slot " << k;
    }
  }
}

TEST(CheckIndexRange, RepairsANullStopInTheFile) {
  WellLines well;
  well.stop = "STOP.M     -999.25 : STOP DEPTH";
  std::string bytes = lasText(well, kData);
  std::string path = prepare("null_stop.las", bytes);
  ParamTable wellTable;
  ParamTable curve;
  parseSectionTable(path, wellTable, "Well");
  parseSectionTable(path, curve, "Curve");
  WellRange range{"1000.0", "-999.25", "0.5", "-999.25"};
  Slots slots;
  EXPECT_EQ(checkIndexRange(path, range, "NO", wellTable, curve, slots), CHECK_PASSED);
  EXPECT_TRUE(runState().nullStopRepaired);
  std::string repaired = bytes;
  repaired.replace(repaired.find(well.stop), well.stop.size(), "STOP.M  1001.00000 : STOP DEPTH");
  EXPECT_EQ(readBytes(path), repaired);
  // The index was rebuilt: the data section starts where the rewritten file has it.
  EXPECT_EQ(runState().sectionIndex.back().start,
            static_cast<std::int64_t>(repaired.find("~A  DEPT  GR") + 14 + 1));
}

TEST(CheckIndexRange, NullStopNumberWithOtherTextIsCompared) {
  std::string path = prepare("null_stop_text.las", lasText({}, kData));
  ParamTable well;
  ParamTable curve;
  parseSectionTable(path, well, "Well");
  parseSectionTable(path, curve, "Curve");
  // Same number as NULL, different text: the file is not taken for a real-time one.
  WellRange range{"1000.0", "-999.250", "0.5", "-999.25"};
  well.entries[2][FIELD_VALUE] = "-999.250";
  Slots slots;
  EXPECT_EQ(checkIndexRange(path, range, "NO", well, curve, slots), CHECK_FAILED);
  EXPECT_EQ(slots[3], "STOP = -999.25, Last ~ASCII index = 1001");
  EXPECT_FALSE(runState().nullStopRepaired);
}

}  // namespace
}  // namespace zorvik
