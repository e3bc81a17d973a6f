// The line syntax check (group 4) and the ~ASCII checks (group 7) over small files: which lines
// each judges, and the first offending record of the data.
#include <gtest/gtest.h>

#include <map>

#include "cert2/ascii_checks.h"
#include "cert2/line_syntax.h"
#include "las/sections.h"
#include "run/run_state.h"
#include "support/scratch_files.h"

namespace zorvik {
namespace {

using testing::crlfLines;
using testing::writeScratchFile;

const std::vector<std::string> kVersion = {"~Version Information",
                                           "VERS.   2.0 : CWLS LOG ASCII STANDARD",
                                           "WRAP.   NO  : One line per depth step"};
const std::vector<std::string> kWell = {"~Well Information", "STRT.M   1000.0 : START DEPTH",
                                        "STOP.M   1000.5 : STOP DEPTH"};
const std::vector<std::string> kCurve = {"~Curve Information", "DEPT.M   : DEPTH",
                                         "GR  .GAPI : GAMMA RAY"};
const std::vector<std::string> kCurve3 = {"~Curve", "DEPT.M : D", "A.  : A", "B.  : B"};
const std::vector<std::string> kCurve5 = {"~Curve",  "DEPT.M : D", "A.  : A",
                                          "B.  : B", "C.  : C",    "D.  : D"};
const std::vector<std::string> kData = {"~A", "1000.0 10", "1000.5 11"};

std::string join(std::initializer_list<std::vector<std::string>> parts) {
  std::string text;
  for (const auto& part : parts) text += crlfLines(part);
  return text;
}

std::string prepare(const std::string& bytes) {
  std::string path = writeScratchFile("data_checks.las", bytes);
  resetRunState();
  runState().lasVersion = 2.0f;
  locateStandardSections(path);
  return path;
}

ParamTable curveTable(const std::string& path) {
  ParamTable table;
  parseSectionTable(path, table, runState().curveSectionName);
  return table;
}

void expectSlots(const Slots& slots, int last, const std::map<int, std::string>& expected) {
  for (int k = 1; k <= last; ++k) {
    auto it = expected.find(k);
    EXPECT_EQ(slots[k], it == expected.end() ? "" : it->second) << "slot " << k;
  }
}

TEST(CheckLineSyntax, FindingsPerSlot) {
  // Each section's turn reads the lines after the title where the previous turn stopped, so the
  // lines of ~Well are judged in ~Curve's turn and those of ~Curve (the last header section
  // before the data) are never judged.
  struct Row {
    const char* name;
    std::string bytes;
    std::string wrap;
    std::map<int, std::string> slots;
  };
  const Row rows[] = {
      {"a clean file", join({kVersion, kWell, kCurve, kData}), "NO", {}},
      {"well line faults",
       join({kVersion,
             {"~Well", "STRT.M 1000.0 : START", ".M 1 : no mnemonic", "ST RT.M 1 : spaced",
              "STOP\t.M 1 : tab", "no delimiters here"},
             kCurve,
             kData}),
       "NO",
       {{1,
         "\r\nMissing Mnemonic\r\n.M 1 : no mnemonic\r\nMnemonic has embedded space(s)\r\n"
         "ST RT.M 1 : spaced"},
        {5,
         "\r\nTab characters used on the line: \r\nSTOP<Tab>.M 1 : tab\r\n"
         "Unknown or undetermined line type\r\nno delimiters here"}}},
      {"the last header section before the data is not judged",
       join({kVersion, kWell, {"~Curve", "no delimiters here"}, kData}),
       "NO",
       {}},
      {
          "data lines: comment, blank, tab",
          join({kVersion, kWell, kCurve, {"~A", "1000.0 10", "# note", "", "1000.5\t11"}}),
          "NO",
          {{5,
            "\r\nComment Line in ~Ascii Section\r\n# note\r\nBlank Line in ~Ascii Section\r\n"
            "\r\nTab character(s) found.\r\n1000.5\t11"}},
      },
      {"no data lines",
       join({kVersion, kWell, kCurve, {"~A"}}),
       "NO",
       {{6, "No data lines in ASCII section"},
        {7, "Error determining Wrap structure. Likely missing or extra channels at some depths."}}},
      {"WRAP NO with records over two lines",
       join({kVersion, kWell, kCurve5, {"~A", "1000.0", "1 2 3 4", "1000.5", "1 2 3 4"}}),
       "no",
       {{7,
         "WRAP value does not match ~ASCII section structure. WRAP =NO while ~ASCII structure "
         "looks like YES"}}},
      {"a WRAP neither YES nor NO is not compared",
       join({kVersion, kWell, kCurve, kData}),
       "Y",
       {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path = prepare(row.bytes);
    Slots slots;
    int linesPerRecord = 0;
    int channels = 0;
    int code = checkLineSyntax(path, row.wrap, curveTable(path), slots, linesPerRecord, channels);
    EXPECT_EQ(code, row.slots.empty() ? CHECK_PASSED : CHECK_FAILED);
    expectSlots(slots, 7, row.slots);
  }
}

TEST(CheckLineSyntax, FindingsOfAHugeBadDataSectionAreCapped) {
  std::vector<std::string> data = {"~A"};
  for (int i = 0; i < 300000; ++i) data.push_back(std::to_string(1000 + i) + "\t1");
  std::string path = prepare(join({kVersion, kWell, kCurve, data}));
  Slots slots;
  int linesPerRecord = 0;
  int channels = 0;
  checkLineSyntax(path, "NO", curveTable(path), slots, linesPerRecord, channels);
  EXPECT_EQ(slots[5].rfind("\r\nTab character(s) found.\r\n1000\t1\r\n", 0), 0u);
  EXPECT_GE(slots[5].size(), 8u << 20);
  EXPECT_LT(slots[5].size(), (8u << 20) + 100);
}

TEST(CheckLineSyntax, HandsTheRecordShapeOn) {
  struct Row {
    const char* name;
    std::vector<std::string> data;
    int linesPerRecord;
    int channels;
  };
  const Row rows[] = {
      {"unwrapped: the first line's values", {"~A", "1000.0 10 20", "1000.5 11 21"}, 1, 3},
      {"wrapped: the values of the record's lines",
       {"~A", "1000.0", "10 20", "1000.5", "11 21", "1001.0", "12 22"},
       2,
       3},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path =
        prepare(join({kVersion,
                      kWell,
                      {"~Curve", "DEPT.M : D", "A.  : A", "B.  : B", "C.  : C", "D.  : D"},
                      row.data}));
    Slots slots;
    int linesPerRecord = 0;
    int channels = 0;
    checkLineSyntax(path, "NO", curveTable(path), slots, linesPerRecord, channels);
    EXPECT_EQ(linesPerRecord, row.linesPerRecord);
    EXPECT_EQ(channels, row.channels);
  }
}

TEST(CheckAsciiSection, FindingsPerSlot) {
  const std::string longLine = "1000.5 " + std::string(293, '1');  // 300 characters
  struct Row {
    const char* name;
    std::vector<std::string> data;
    std::vector<std::string> curve = kCurve;
    std::string wrap = "NO";
    int linesPerRecord = 1;
    int channels = 2;
    bool doWrap = false;
    std::vector<std::string> after = {};
    int code = CHECK_FAILED;
    std::map<int, std::string> slots = {};
  };
  const Row rows[] = {
      {.name = "a clean file", .data = kData, .code = CHECK_PASSED},
      {.name = "a long unwrapped line is judged only on request",
       .data = {"~A", "1000.0 10", longLine},
       .code = CHECK_PASSED},
      {.name = "a long unwrapped line with the wrap checks on",
       .data = {"~A", "1000.0 10", longLine},
       .doWrap = true,
       .slots = {{4, "Line too long for WRAP NO. Was 300 long. 256 is max.\r\n" + longLine}}},
      {.name = "wrapped records of lines up to 78 characters pass",
       .data = {"~A", "1000.0", std::string(76, '1') + " 2", "1000.5", "3 4"},
       .curve = kCurve3,
       .wrap = "YES",
       .linesPerRecord = 2,
       .channels = 3,
       .code = CHECK_PASSED},
      {.name = "a wrapped line of 79 characters",
       .data = {"~A", "1000.0", std::string(77, '1') + " 2", "1000.5", "3 4"},
       .curve = kCurve3,
       .wrap = "YES",
       .linesPerRecord = 2,
       .channels = 3,
       .slots = {{4, "Line too long for WRAP YES. Was 79 long. 80 is max.\r\n" +
                         std::string(77, '1') + " 2"}}},
      {.name = "a wrapped record short of a value shows the joined record",
       .data = {"~A", "1000.0", "1 2", " 1000.5 ", "3 "},
       .curve = kCurve3,
       .wrap = "YES",
       .linesPerRecord = 2,
       .channels = 3,
       .slots = {{2,
                  "Space delimited column count differs from ~Curve channel count. Expected: "
                  "3. Found: 2\r\n1000.5  3"}}},
      {.name = "no data lines is a fault", .data = {"~A"}, .code = CHECK_FAULT},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path = prepare(join({kVersion, kWell, row.curve, row.data, row.after}));
    runState().doWrap = row.doWrap;
    Slots slots;
    slots.fill(" ");
    EXPECT_EQ(checkAsciiSection(path, row.wrap, row.linesPerRecord, row.channels, curveTable(path),
                                slots),
              row.code);
    expectSlots(slots, 4, row.slots);
  }
}

}  // namespace
}  // namespace zorvik
