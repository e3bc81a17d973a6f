// The line structure, column data, association and array channel checks run on their own over
// the fixtures, as the 3.0 driver runs them once the section model is built.
#include <gtest/gtest.h>

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
