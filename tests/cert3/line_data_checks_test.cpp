// The line structure, column data, association and array channel checks run on their own over
// the fixtures, as the 3.0 driver runs them once the section model is built.
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "cert3/array_channels.h"
#include "cert3/associations.h"
#include "cert3/column_data.h"
#include "cert3/line_structure3.h"
#include "las/sections.h"
#include "run/run_state.h"

namespace zorvik {
namespace {

using Check = std::function<int(const std::string&, Slots&)>;

const std::string kData = std::string(ZORVIK_TEST_DATA) + "/cert3/";

struct CheckCase {
  std::string fixture;
  Check check;
  int result;
  std::map<int, std::string> findings;  // slot -> text; every other slot decided must be empty
  std::string delimiter = ",";
};

// Runs `c.check` with every slot preset to " " and gives back the slots.
Slots runCheck(const CheckCase& c, int& result) {
  const std::string path = kData + c.fixture + ".las";
  resetRunState();
  runState().lasVersion = 3.0f;
  runState().dataDelimiter = c.delimiter;
  runState().lasFile = path;
  locateStandardSections(path);
  Slots slots;
  slots.fill(" ");
  result = c.check(path, slots);
  return slots;
}

void expectSlots(const CheckCase& c, const std::vector<int>& decided) {
  SCOPED_TRACE(c.fixture);
  int result = 0;
  Slots slots = runCheck(c, result);
  EXPECT_EQ(result, c.result);
  for (int k : decided) {
    SCOPED_TRACE("slot " + std::to_string(k));
    auto found = c.findings.find(k);
    EXPECT_EQ(slots[k], found == c.findings.end() ? std::string() : found->second);
  }
}

const std::string kBsLine = "BS  .MM   215.9               : BIT SIZE {F}";

TEST(LineDataChecks, LineStructure) {
  const std::vector<CheckCase> cases = {
      {"g9_array_passes", checkLineStructure3, CHECK_PASSED, {}},
      {"g7_quoted_space_passes", checkLineStructure3, CHECK_PASSED, {}, " "},
      {"g4_mnemonic_illegal",
       checkLineStructure3,
       CHECK_FAILED,
       {{1, "Mnem :B;S ( in ~Log_Parameter)\r\nB;S .MM   215.9               : BIT SIZE {F}\r\n"}}},
      {"g4_format_empty",
       checkLineStructure3,
       CHECK_FAILED,
       {{7,
         "Format delimiters empty ( in ~Log_Parameter)\r\n"
         "BS  .MM   215.9               : BIT SIZE {}\r\n"}}},
      {"g4_data_without_delimiter",
       checkLineStructure3,
       CHECK_FAILED,
       {{10,
         "Expected COL_DATA line, but no Delimiter found.  ( in ~Log_Data)\r\n1000.5\r\n"
         "No delimiters found in section Log_Data\r\n"}}},
      {"g4_last_line_without_delimiter",
       checkLineStructure3,
       CHECK_FAILED,
       {{10,
         "Expected COL_DATA line, but no Delimiter found.  ( in ~Log_Data)\r\n1001.0\r\n"
         "No Delimiters found in section Log_Data\r\n"}}},
      {"g4_blank_in_data",
       checkLineStructure3,
       CHECK_FAILED,
       {{10, " Comment or blank line within Column Data lines in section Log_Data\r\n"}}},
      {"g4_no_data_lines",
       checkLineStructure3,
       CHECK_FAILED,
       {{11, "\r\nNo Data lines found in section Log_Data"}}},
  };
  for (const CheckCase& c : cases) expectSlots(c, {1, 2, 3, 5, 6, 7, 8, 9, 10, 11});
}

TEST(LineDataChecks, LineStructureNeverDecidesDescriptions) {
  int result = 0;
  Slots slots = runCheck({"g4_mnemonic_illegal", checkLineStructure3, 0, {}}, result);
  EXPECT_EQ(slots[4], " ");
}

TEST(LineDataChecks, ColumnData) {
  const std::vector<CheckCase> cases = {
      {"g9_array_passes", checkColumnData, CHECK_PASSED, {}},
      {"g7_quoted_space_passes", checkColumnData, CHECK_PASSED, {}, " "},
      {"g7_channel_count",
       checkColumnData,
       CHECK_FAILED,
       {{1,
         "~Log_Definition has 4 channel descriptions while ~Log_Data has 3 delimited "
         "channels. \r\n"}}},
      {"g7_item_count",
       checkColumnData,
       CHECK_FAILED,
       {{2,
         "Section Log_Data, expected 3 channels, found 4. Line was\r\n"
         "1000.5,50.1,0.27,9.9\r\n"}}},
      {"g7_short_line",
       checkColumnData,
       CHECK_FAILED,
       {{2, "Section Log_Data, expected 3 channels, found 2. Line was\r\n1000.5,50.1\r\n"}}},
      {"g7_item_format",
       checkColumnData,
       CHECK_FAILED,
       {{3, "Data column item (0.3) in ~Log_Data @ 1000.5 wrong format {F4.2}\r\n"}}},
      {"g4_no_data_lines",
       checkColumnData,
       CHECK_FAILED,
       {{1,
         "~Log_Definition has 3 channel descriptions while ~Log_Data has 0 delimited "
         "channels. \r\n"}}},
  };
  for (const CheckCase& c : cases) expectSlots(c, {1, 2, 3});
}

TEST(LineDataChecks, Associations) {
  const std::vector<CheckCase> cases = {
      {"g9_array_passes", checkAssociations, CHECK_PASSED, {}},
      {"g8_reference_missing",
       checkAssociations,
       CHECK_FAILED,
       {{1,
         "Association mnemonic CASING not found in file. Line was :\r\n"
         "NPHI.V/V     : NEUTRON POROSITY | BS,CASING\r\n"}}},
      {"g8_self_reference",
       checkAssociations,
       CHECK_FAILED,
       {{2, "Line was like : BS.MM    215.9 : BIT SIZE | BS\r\n"}}},
      {"g8_circular",
       checkAssociations,
       CHECK_FAILED,
       {{2,
         "Circular Association at line: \r\nBS.MM    215.9 : BIT SIZE | MUD\r\n"
         "Circular Association at line: \r\nMUD.    WATER : MUD TYPE | BS\r\n"
         "Circular Association at line: \r\nGR.GAPI     : GAMMA RAY | BS\r\n"}}},
  };
  for (const CheckCase& c : cases) expectSlots(c, {1, 2});
}

TEST(LineDataChecks, ArrayChannels) {
  const std::vector<CheckCase> cases = {
      {"g9_array_passes", checkArrayChannels, CHECK_PASSED, {}},
      {"g8_circular", checkArrayChannels, CHECK_PASSED, {}},
      {"g9_unnumbered", checkArrayChannels, CHECK_FAILED, {{1, "NMR\r\n"}}},
      {"g9_sequence", checkArrayChannels, CHECK_FAILED, {{2, "NMR[4]\r\nT1[2]\r\n"}}},
      {"g9_not_grouped", checkArrayChannels, CHECK_FAILED, {{3, "NMR[3]\r\n"}}},
      {"g9_spacing", checkArrayChannels, CHECK_FAILED, {{4, "NMR[3], format was: {AF;1.0}\r\n"}}},
      {"g9_units",
       checkArrayChannels,
       CHECK_FAILED,
       {{5, "NMR[2], unit was: us, first was: ms\r\n"}}},
  };
  for (const CheckCase& c : cases) expectSlots(c, {1, 2, 3, 4, 5});
}

// Nothing to read: every item is decided and passes.
TEST(LineDataChecks, MissingFileFindsNothing) {
  for (const Check& check : std::vector<Check>{checkLineStructure3, checkColumnData,
                                               checkAssociations, checkArrayChannels}) {
    resetRunState();
    runState().lasVersion = 3.0f;
    Slots slots;
    slots.fill(" ");
    EXPECT_EQ(check(kData + "no_such_file.las", slots), CHECK_PASSED);
    EXPECT_EQ(slots[1], "");
  }
}

}  // namespace
}  // namespace zorvik

namespace zorvik {
namespace {

// A 3.0 file written for one test: ~Version (comma), a ~Log_Parameter section of `parameters`
// lines, a two-channel ~Log_Definition and `data` lines.
std::string writeLargeFile(const std::string& name, const std::vector<std::string>& parameters,
                           const std::vector<std::string>& data) {
  std::string text =
      "~Version\r\nVERS. 3.0 : V\r\nWRAP. NO : W\r\nDLM . COMMA : D\r\n~Log_Parameter\r\n";
  for (const std::string& line : parameters) text += line + "\r\n";
  text += "~Log_Definition\r\nDEPT.M : DEPTH {F}\r\nGR  .GAPI : GAMMA {F}\r\n";
  text += "~Log_Data | Log_Definition\r\n";
  for (const std::string& line : data) text += line + "\r\n";
  std::string path = ::testing::TempDir() + name;
  std::ofstream(path, std::ios::binary) << text;
  return path;
}

Slots runOn(const std::string& path, const Check& check, int& result) {
  resetRunState();
  runState().lasVersion = 3.0f;
  runState().dataDelimiter = ",";
  locateStandardSections(path);
  Slots slots;
  slots.fill(" ");
  result = check(path, slots);
  return slots;
}

std::size_t countOf(const std::string& text, const std::string& what) {
  std::size_t n = 0;
  for (std::size_t p = text.find(what); p != std::string::npos; p = text.find(what, p + 1)) ++n;
  return n;
}

// Thousands of lines that refer each to the next, the last back to the first: every one is in
// the loop, and the check ends.
TEST(LineDataChecks, LongAssociationLoopEnds) {
  const int n = 5000;
  std::vector<std::string> lines;
  for (int i = 0; i < n; ++i) {
    lines.push_back("P" + std::to_string(i) + ". 1 : p {F} | P" + std::to_string((i + 1) % n));
  }
  std::string path = writeLargeFile("cert3b_long_loop.las", lines, {"1,2"});
  int result = 0;
  Slots slots = runOn(path, checkAssociations, result);
  EXPECT_EQ(result, CHECK_FAILED);
  EXPECT_EQ(slots[1], "");
  EXPECT_EQ(countOf(slots[2], "Circular Association at line: "), static_cast<std::size_t>(n));
}

// Data lines that all fail are listed up to a bound and then counted, so findings about a large
// data section stay readable and small.
TEST(LineDataChecks, DataLineFindingsAreBounded) {
  std::vector<std::string> data{"0.5,1"};
  for (int i = 1; i <= 1000; ++i) data.push_back(std::to_string(i) + ".5,x,9");
  std::string path = writeLargeFile("cert3b_bounded.las", {}, data);
  int result = 0;
  Slots slots = runOn(path, checkColumnData, result);
  EXPECT_EQ(result, CHECK_FAILED);
  EXPECT_EQ(countOf(slots[3], "Data column item (x) in ~Log_Data @ "), 100u);
  EXPECT_NE(slots[3].find("Data column item (x) in ~Log_Data @ 1.5 wrong format {F}\r\n"),
            std::string::npos);
  EXPECT_NE(slots[3].find("\r\n900 more findings of this kind not listed\r\n"), std::string::npos);
  EXPECT_EQ(countOf(slots[2], "Line was\r\n"), 100u);
  EXPECT_NE(slots[2].find("\r\n900 more findings of this kind not listed\r\n"), std::string::npos);

  // Lines without the delimiter: the parser's findings are bounded too, the section's own
  // finding is told once.
  data.erase(data.begin());
  for (std::string& line : data) line = line.substr(0, line.find(','));
  path = writeLargeFile("cert3b_bounded_g4.las", {}, data);
  slots = runOn(path, checkLineStructure3, result);
  EXPECT_EQ(countOf(slots[10], "Expected COL_DATA line"), 100u);
  EXPECT_EQ(countOf(slots[10], "No delimiters found in section Log_Data"), 1u);
  EXPECT_EQ(countOf(slots[10], "No Delimiters found in section Log_Data"), 1u);
  EXPECT_NE(slots[10].find("\r\n900 more findings of this kind not listed\r\n"), std::string::npos);
}

}  // namespace
}  // namespace zorvik
