#include "las/header_line.h"

#include <gtest/gtest.h>

#include <ostream>

#include "run/run_state.h"

namespace zorvik {

void PrintTo(LineKind kind, std::ostream* os) {
  switch (kind) {
    case LINE_OK:
      *os << "LINE_OK";
      return;
    case LINE_COMMENT:
      *os << "LINE_COMMENT";
      return;
    case LINE_TITLE:
      *os << "LINE_TITLE";
      return;
    case LINE_BLANK:
      *os << "LINE_BLANK";
      return;
    case LINE_NO_MNEMONIC:
      *os << "LINE_NO_MNEMONIC";
      return;
    case LINE_HAS_TAB:
      *os << "LINE_HAS_TAB";
      return;
    case LINE_SPACE_IN_MNEMONIC:
      *os << "LINE_SPACE_IN_MNEMONIC";
      return;
    case LINE_NOT_DELIMITED:
      *os << "LINE_NOT_DELIMITED";
      return;
  }
  *os << static_cast<int>(kind);
}

namespace {

const std::string kV20 = std::string(ZORVIK_TEST_DATA) + "/las/sections_v20.las";

class HeaderLine : public ::testing::Test {
 protected:
  void SetUp() override { resetRunState(); }
  void TearDown() override { resetRunState(); }
};

TEST_F(HeaderLine, ClassifiesInRuleOrder) {
  struct Row {
    const char* line;
    LineKind kind;
  };
  const Row rows[] = {
      {"", LINE_BLANK},
      {"     ", LINE_BLANK},
      {"   # .:", LINE_COMMENT},
      {"#DEPT.M 1 : x", LINE_COMMENT},
      {"  ~A  DEPT", LINE_TITLE},
      {"~V.x:y", LINE_TITLE},
      {"DEPT.M 1 : x", LINE_OK},
      {"  STRT .M  1670.0 : START", LINE_OK},
      {".M 1 : x", LINE_NO_MNEMONIC},
      {"DE PT.M 1 : x", LINE_SPACE_IN_MNEMONIC},
      {"DEPT.M\t1 : x", LINE_HAS_TAB},
      {"DE PT.M\t1 : x", LINE_HAS_TAB},  // the tab outranks the bad mnemonic
      {".M\t1 : x", LINE_HAS_TAB},
      {"DEPT.:x", LINE_NOT_DELIMITED},  // nothing between period and colon
      {"DEPT.M 1 x", LINE_NOT_DELIMITED},
      {"DEPT : x . y", LINE_NOT_DELIMITED},  // period after the last colon
      {"\t# x", LINE_NOT_DELIMITED},         // a tab is not trimmed
      {"DEPT.M 1 : x : y", LINE_OK},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    EXPECT_EQ(static_cast<LineKind>(classifyHeaderLine(row.line)), row.kind);
  }
}

TEST_F(HeaderLine, SplitsIntoSixFields) {
  struct Row {
    const char* line;
    const char* mnemonic;
    const char* unit;
    const char* value;
    const char* description;
    const char* format;
    const char* association;
  };
  const Row rows[] = {
      {"DEPT.M        : DEPTH", "DEPT", "M", "", "DEPTH", "", ""},
      {"STRT .M  1670.0 : START", "STRT", "M", "1670.0", "START", "", ""},
      {"UWI .   100/12-34 : UNIQUE WELL ID", "UWI", "", "100/12-34", "UNIQUE WELL ID", "", ""},
      {"TIME.  10:30 : START TIME", "TIME", "", "10:30", "START TIME", "", ""},
      {"DATE.  12:30 : TIME {hh:mm}", "DATE", "", "12:30", "TIME", "hh:mm", ""},
      {"NPHI.V/V  : NEUTRON {F} | DEPT", "NPHI", "V/V", "", "NEUTRON", "F", "DEPT"},
      {"BS.0.1IN 8.5 : BIT SIZE", "BS", "0.1IN", "8.5", "BIT SIZE", "", ""},
      {"STRT.M: x", "STRT", "M", "", "x", "", ""},
      {"WELL.  ANY ET AL 12-34 : WELL", "WELL", "", "ANY ET AL 12-34", "WELL", "", ""},
      {"DATE.D 12 MAY 1957 : LOG DATE", "DATE", "D", "12 MAY 1957", "LOG DATE", "", ""},
      {"X.M 1 : desc | Y", "X", "M", "1", "desc", "", "Y"},
      {"X.M 1 : d {}", "X", "M", "1", "d", "", ""},
      {"X.M 1 : d }{", "X", "M", "1", "d }", "", ""},
      {"A.M 1 : d {AF10.4;x}", "A", "M", "1", "d", "F10.4", ""},
      {"A.M 1 : d { S } | B | C, D", "A", "M", "1", "d", "S", "C, D"},
      {"ABC : x", "", "", "", "x", "", ""},              // no period
      {"DE PT.M 1 : x", "DE PT", "M", "", "x", "", ""},  // value only for well-formed lines
      {"NOTHING", "", "", "", "", "", ""},
      {"", "", "", "", "", "", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    EXPECT_EQ(fieldMnemonic(row.line), row.mnemonic);
    EXPECT_EQ(fieldUnit(row.line), row.unit);
    EXPECT_EQ(fieldValue(row.line), row.value);
    EXPECT_EQ(fieldDescription(row.line), row.description);
    EXPECT_EQ(fieldFormat(row.line), row.format);
    EXPECT_EQ(fieldAssociation(row.line), row.association);
  }
}

TEST_F(HeaderLine, DelimiterColonSkipsColonsInsideATimeFormat) {
  struct Row {
    const char* line;
    int colon;
    int brace;
  };
  const Row rows[] = {
      {"TIME.  10:30 : START TIME", 14, 0},
      {"DATE.  12:30 : TIME {hh:mm}", 14, 21},
      {"DATE.  12:30 : TIME {F}", 14, 21},
      {"A.B {hh:mm}", 0, 5},
      {"NOCOLON", 0, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    int brace = -7;
    EXPECT_EQ(delimiterColon(row.line, brace), row.colon);
    EXPECT_EQ(brace, row.brace);
    EXPECT_EQ(delimiterColon(row.line), row.colon);
  }
}

TEST_F(HeaderLine, AssociationPartsFollowTheDataDelimiter) {
  struct Row {
    const char* delimiter;
    const char* line;
    std::vector<std::string> parts;
  };
  const Row rows[] = {
      {" ", "A.M 1 : d | B   C ", {"B", "C"}},
      {",", "A.M 1 : d | B,C, D", {"B", "C", " D"}},
      {",", "A.M 1 : d", {""}},
      {"\t", "A.M 1 : d |B\tC", {"B", "C"}},
      {" ", "A.M 1 : d |", {""}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    runState().dataDelimiter = row.delimiter;
    std::vector<std::string> parts{"stale", "stale"};
    fieldAssociation(row.line, parts);
    EXPECT_EQ(parts, row.parts);
  }
}

TEST_F(HeaderLine, MnemonicValidityDependsOnVersion) {
  struct Row {
    float version;
    const char* text;
    bool valid;
  };
  const Row rows[] = {
      {2.0f, "DEPT", true},    {2.0f, " DEPT ", true},   {2.0f, "", false},
      {2.0f, "DE PT", false},  {2.0f, "A.B", false},     {2.0f, "A:B", false},
      {2.0f, "A,B", true},     {2.0f, "GR[x", true},     {2.0f, "A\tB", true},
      {3.0f, "DEPT", true},    {3.0f, "A,B", false},     {3.0f, "A\tB", false},
      {3.0f, "A{B", false},    {3.0f, "A|B", false},     {3.0f, "A;B", false},
      {3.0f, "NAME[3]", true}, {3.0f, "NAME[03]", true}, {3.0f, "GR[", false},
      {3.0f, "GR]", false},    {3.0f, "[1]", false},     {3.0f, "GR[1]x", false},
      {3.0f, "GR[-1]", false}, {3.0f, "GR[1.5]", false}, {3.0f, "GR[]", false},
      {3.0f, "GR[x]", false},  {3.0f, "GR]1[", false},   {1.2f, "GR]1[", true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.text) + " in " + std::to_string(row.version));
    runState().lasVersion = row.version;
    EXPECT_EQ(isValidMnemonic(row.text), row.valid);
  }
}

TEST_F(HeaderLine, CountsWordsAndListEntries) {
  struct Row {
    const char* text;
    const char* separator;
    int words;
  };
  const Row rows[] = {
      {"a b  c", " ", 3}, {"  a  ", " ", 1}, {"", " ", 0},    {"   ", " ", 0},
      {"a,,b", ",", 3},   {"a", ",", 1},     {"", ",", 0},    {",", ",", 2},
      {"a, b", ", ", 2},  {"a\tb", "\t", 2}, {" a ", ",", 1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string("[") + row.text + "] on [" + row.separator + "]");
    EXPECT_EQ(countWords(row.text, row.separator), row.words);
  }

  struct Find {
    const char* mnemonic;
    bool found;
  };
  const Find finds[] = {{"gr", true}, {"DEPT", true}, {"NPHI", true},    {"G", false},
                        {"R", false}, {"", false},    {"DEPT GR", false}};
  for (const Find& f : finds) {
    SCOPED_TRACE(f.mnemonic);
    EXPECT_EQ(mnemonicListHas("DEPT GR NPHI ", f.mnemonic), f.found);
  }
}

TEST_F(HeaderLine, ParameterTableOfASection) {
  runState().lasVersion = 2.0f;
  struct Row {
    const char* section;
    const char* delimiter;
    const char* validList;
    std::vector<std::array<std::string, 6>> entries;
  };
  const Row rows[] = {
      {"Well",
       " ",
       "STRT STOP STEP NULL COMP WELL ",
       {{"STRT", "M", "1670.0", "START DEPTH", "", ""},
        {"STOP", "M", "1669.75", "STOP DEPTH", "", ""},
        {"STEP", "M", "-0.125", "STEP", "", ""},
        {"NULL", "", "-999.25", "NULL VALUE", "", ""},
        {"COMP", "", "ANY OIL COMPANY INC.", "COMPANY", "", ""},
        {"WELL", "", "AAAAA 1", "WELL", "", ""}}},
      {"Curve",
       " ",
       "DEPT GR NPHI ",
       {{"DEPT", "M", "", "DEPTH", "", ""},
        {"GR", "GAPI", "", "GAMMA RAY", "", ""},
        {"NPHI", "V/V", "", "NEUTRON POROSITY", "", ""},
        {"DE PT", "M", "", "BAD MNEMONIC", "", ""}}},
      // "RUN.  1" has no colon of its own but the section's last colon lies further right.
      {"Parameter",
       " ",
       "RUN MUD BHT ",
       {{"RUN", "", "", "", "", ""},
        {"MUD", "", "GEL", "MUD TYPE", "", ""},
        {"BHT", "DEGC", "35.5", "BOTTOM HOLE TEMPERATURE", "", ""}}},
      // With a tab delimiter tabs stay, and the line is no longer well formed.
      {"Parameter",
       "\t",
       "RUN MUD BHT ",
       {{"RUN", "", "", "", "", ""},
        {"MUD", "\tGEL", "", "MUD TYPE", "", ""},
        {"BHT", "DEGC", "35.5", "BOTTOM HOLE TEMPERATURE", "", ""}}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.section) + " delimiter [" + row.delimiter + "]");
    runState().dataDelimiter = row.delimiter;
    ParamTable table;
    table.entries.push_back({"stale"});
    ASSERT_EQ(parseSectionTable(kV20, table, row.section), -1);
    EXPECT_EQ(table.validMnemonics(), row.validList);
    ASSERT_EQ(table.lastEntry(), static_cast<int>(row.entries.size()));
    for (int i = 1; i <= table.lastEntry(); ++i) EXPECT_EQ(table.entries[i], row.entries[i - 1]);
  }

  ParamTable table;
  ASSERT_EQ(parseSectionTable(kV20, table, "Well"), -1);
  EXPECT_EQ(mnemonicValue(table, "null"), "-999.25");
  EXPECT_EQ(mnemonicValue(table, "COMM"), " ");  // commented out
  EXPECT_EQ(parseSectionTable(kV20, table, "Tops"), 1);
  EXPECT_EQ(table.lastEntry(), 0);
  EXPECT_EQ(table.validMnemonics(), "");
}

}  // namespace
}  // namespace zorvik
