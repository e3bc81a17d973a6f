#include "las/header_line.h"

#include <gtest/gtest.h>

#include <tuple>

#include "las/dialect.h"
#include "las/section_types.h"

namespace zorvik {
namespace {

const std::string kV20 = std::string(ZORVIK_TEST_DATA) + "/las/sections_v20.las";

class HeaderLine : public ::testing::Test {
 protected:
  // What a run would have learnt of the file under test.
  Dialect dialect_;
  SectionIndex sections_;
};

// The mnemonic faults are left to the golden reports. A tab outranks a bad mnemonic; a period
// needs something before the last colon; a leading tab is not trimmed, so "\t# x" is no comment.
TEST_F(HeaderLine, ClassifiesInRuleOrder) {
  const std::tuple<const char*, LineKind> rows[] = {
      {"     ", LineKind::Blank},          {"   # .:", LineKind::Comment},
      {"DEPT.M 1 : x : y", LineKind::Ok},  {"DE PT.M\t1 : x", LineKind::HasTab},
      {"DEPT.:x", LineKind::NotDelimited}, {"DEPT : x . y", LineKind::NotDelimited},
      {"\t# x", LineKind::NotDelimited},
  };
  for (const auto& [line, kind] : rows) {
    SCOPED_TRACE(line);
    EXPECT_EQ(classifyHeaderLine(line), kind);
  }
}

TEST_F(HeaderLine, SplitsIntoSixFields) {
  using Fields = std::array<std::string, 6>;  // mnemonic, unit, value, description, format, assoc.
  const std::tuple<const char*, Fields> rows[] = {
      {"TIME.  10:30 : START TIME", {"TIME", "", "10:30", "START TIME", "", ""}},
      {"DATE.  12:30 : TIME {hh:mm}", {"DATE", "", "12:30", "TIME", "hh:mm", ""}},
      {"NPHI.V/V  : NEUTRON {F} | DEPT", {"NPHI", "V/V", "", "NEUTRON", "F", "DEPT"}},
      {"BS.0.1IN 8.5 : BIT SIZE", {"BS", "0.1IN", "8.5", "BIT SIZE", "", ""}},
      {"STRT.M: x", {"STRT", "M", "", "x", "", ""}},
      {"A.M 1 : d {AF10.4;x}", {"A", "M", "1", "d", "F10.4", ""}},
      {"A.M 1 : d { S } | B | C, D", {"A", "M", "1", "d", "S", "C, D"}},
      {"ABC : x", {"", "", "", "x", "", ""}},
      {"DE PT.M 1 : x", {"DE PT", "M", "", "x", "", ""}},  // value only for well-formed lines
  };
  for (const auto& [line, fields] : rows) {
    SCOPED_TRACE(line);
    const Fields got = {fieldMnemonic(line),    fieldUnit(line),   fieldValue(line),
                        fieldDescription(line), fieldFormat(line), fieldAssociation(line)};
    EXPECT_EQ(got, fields);
  }
}

TEST_F(HeaderLine, MnemonicValidityDependsOnVersion) {
  const std::tuple<float, const char*, bool> rows[] = {
      {2.0f, "", false},       {2.0f, "DE PT", false}, {2.0f, "A:B", false},
      {2.0f, "A,B", true},     {2.0f, "A\tB", true},   {3.0f, "A,B", false},
      {3.0f, "A\tB", false},   {3.0f, "A;B", false},   {3.0f, "NAME[03]", true},
      {3.0f, "GR[", false},    {3.0f, "[1]", false},   {3.0f, "GR[1]x", false},
      {3.0f, "GR[-1]", false}, {3.0f, "GR[]", false},  {3.0f, "GR]1[", false},
      {1.2f, "GR]1[", true},
  };
  for (const auto& [version, text, valid] : rows) {
    SCOPED_TRACE(std::string(text) + " in " + std::to_string(version));
    dialect_.version = version;
    EXPECT_EQ(isValidMnemonic(text, dialect_), valid);
  }
}

// A blank separator counts runs of blanks as one; any other separator counts every field.
TEST_F(HeaderLine, CountsWordsAndListEntries) {
  EXPECT_EQ(countWords("  a b  c ", " "), 3);
  EXPECT_EQ(countWords("   ", " "), 0);
  EXPECT_EQ(countWords("a,,b", ","), 3);
  EXPECT_EQ(countWords(",", ","), 2);
  EXPECT_EQ(countWords("", ","), 0);
  EXPECT_TRUE(mnemonicListHas("DEPT GR NPHI ", "gr"));
  for (const char* part : {"G", "R", "", "DEPT GR"})
    EXPECT_FALSE(mnemonicListHas("DEPT GR ", part));
}

TEST_F(HeaderLine, ParameterTableOfASection) {
  dialect_.version = 2.0f;
  using Entries = std::vector<std::array<std::string, 6>>;
  // "RUN.  1" has no colon of its own but the section's last colon lies further right; with a
  // tab delimiter the tab stays, and the line is no longer well formed.
  const Entries blanks = {{"RUN", "", "", "", "", ""},
                          {"MUD", "", "GEL", "MUD TYPE", "", ""},
                          {"BHT", "DEGC", "35.5", "BOTTOM HOLE TEMPERATURE", "", ""}};
  Entries tabs = blanks;
  tabs[1] = {"MUD", "\tGEL", "", "MUD TYPE", "", ""};
  for (const char* delimiter : {" ", "\t"}) {
    SCOPED_TRACE(std::string("delimiter [") + delimiter + "]");
    dialect_.delimiter = delimiter;
    ParamTable table;
    table.entries.push_back({"stale"});
    ASSERT_TRUE(parseSectionTable(LasFile(kV20), dialect_, sections_, table, "Parameter"));
    EXPECT_EQ(table.validMnemonics(), "RUN MUD BHT ");
    EXPECT_EQ(Entries(table.entries.begin() + 1, table.entries.end()),
              *delimiter == ' ' ? blanks : tabs);
  }

  ParamTable table;
  ASSERT_TRUE(parseSectionTable(LasFile(kV20), dialect_, sections_, table, "Well"));
  EXPECT_EQ(mnemonicValue(table, "null"), "-999.25");
  EXPECT_EQ(mnemonicValue(table, "COMM"), " ");  // commented out
}

}  // namespace
}  // namespace zorvik
