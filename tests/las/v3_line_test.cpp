#include "las/v3_line.h"

#include <gtest/gtest.h>

#include <map>
#include <ostream>

#include "run/run_state.h"

namespace zorvik {

void PrintTo(V3LineType type, std::ostream* os) {
  switch (type) {
    case V3_PDL:
      *os << "V3_PDL";
      return;
    case V3_COMMENT:
      *os << "V3_COMMENT";
      return;
    case V3_TITLE:
      *os << "V3_TITLE";
      return;
    case V3_COLUMN_DATA:
      *os << "V3_COLUMN_DATA";
      return;
    case V3_BLANK:
      *os << "V3_BLANK";
      return;
    case V3_BAD:
      *os << "V3_BAD";
      return;
  }
  *os << static_cast<int>(type);
}

namespace {

class V3Line : public ::testing::Test {
 protected:
  void SetUp() override {
    resetRunState();
    RunState& rs = runState();
    rs.lasVersion = 3.0f;
    rs.dataSectionName = "ASCII";
    struct Section {
      const char* name;
      int role;
    };
    const Section sections[] = {
        {"Version", ROLE_HEADER},      {"Well", ROLE_HEADER},
        {"Parameter", ROLE_PARAMETER}, {"Log_Definition", ROLE_DEFINITION},
        {"Log_Data", ROLE_DATA},       {"Log_Data[1]", ROLE_DATA},
        {"Tops", ROLE_OTHER},          {"ASCII", ROLE_DATA},
    };
    for (const Section& s : sections) {
      SectionEntry e;
      e.name = s.name;
      e.role = s.role;
      rs.sectionIndex.push_back(e);
    }
  }
  void TearDown() override { resetRunState(); }
};

TEST_F(V3Line, TypesLinesAndFillsSlots) {
  const std::string barBeforeFormat = "DEPT.M : Depth | {F}";
  const std::string commaSpace = "GR.API : g | DEPT, NPHI";
  const std::string commaInSpaceFile = "GR.API : g | DEPT,NPHI";
  const std::string semicolon = "GR.API : g | DEPT;X";
  struct Row {
    const char* section;
    const char* delimiter;
    std::string line;
    V3LineType type;
    std::map<int, std::string> slots;  // every other slot must stay empty
  };
  const Row rows[] = {
      {"Log_Definition", " ", "DEPT.M   : Depth {F}", V3_PDL, {}},
      {"Log_Definition",
       " ",
       barBeforeFormat,
       V3_PDL,
       {{SLOT_DESCRIPTION, "Depth |"},
        {SLOT_BAR, V3_MSG_BAR_BEFORE_FORMAT},
        {SLOT_BRACE, V3_MSG_BRACE_AFTER_BAR},
        {SLOT_ASSOCIATION, barBeforeFormat}}},
      {"Well",
       " ",
       "NAME. Smith | x : Name",
       V3_PDL,
       {{SLOT_VALUE, "Smith | x"}, {SLOT_BAR, V3_MSG_BAR_BEFORE_COLON}}},
      {"Well", " ", "STRT.M 100 : Start {F", V3_PDL, {{SLOT_BRACE, V3_MSG_MISSING_BRACE}}},
      {"Well",
       " ",
       "STRT.M 100 : Start }F{",
       V3_PDL,
       {{SLOT_DESCRIPTION, "Start }F"}, {SLOT_BRACE, V3_MSG_BRACE_ORDER}}},
      {"Well", " ", "X.M 1 : d {}", V3_PDL, {{SLOT_FORMAT, V3_MSG_EMPTY_FORMAT}}},
      {"Well",
       " ",
       "X.M 1 : d {F}{F}",
       V3_PDL,
       {{SLOT_DESCRIPTION, "d {F}"}, {SLOT_BRACE, V3_MSG_MANY_BRACES}}},
      {"Well",
       " ",
       "X.M 1 : d {Q}",
       V3_PDL,
       {{SLOT_FORMAT, V3_MSG_ILLEGAL_FORMAT},
        {SLOT_BRACE, "Bad Format: 1 doesn't look like this format: {Q}"}}},
      {"Well", " ", "TIME. 10:30 : start {hh:mm}", V3_PDL, {}},
      // Only header and parameter values are tested against their format.
      {"Parameter",
       " ",
       "BHT.DEGC 35.5 : Temp {F10.4}",
       V3_PDL,
       {{SLOT_BRACE, "Bad Format: 35.5 doesn't look like this format: {F10.4}"}}},
      {"Log_Definition", " ", "BHT.DEGC 35.5 : Temp {F10.4}", V3_PDL, {}},
      // Field character tests.
      {"Log_Definition", " ", "GR[x].API : gamma", V3_PDL, {{SLOT_MNEMONIC, "GR[x]"}}},
      {"Log_Definition", " ", "GR.A;B : gamma", V3_PDL, {{SLOT_UNIT, "A;B"}}},
      {"Log_Definition", " ", "GR.API : gam;ma", V3_PDL, {{SLOT_DESCRIPTION, "gam;ma"}}},
      // Associations: names separated by the data delimiter only.
      {"Log_Definition", ",", "GR.API : g | DEPT,NPHI", V3_PDL, {}},
      {"Log_Definition", ",", commaSpace, V3_PDL, {{SLOT_ASSOCIATION, commaSpace}}},
      {"Log_Definition", " ", "GR.API : g | DEPT  NPHI", V3_PDL, {}},
      {"Log_Definition", " ", commaInSpaceFile, V3_PDL, {{SLOT_ASSOCIATION, commaInSpaceFile}}},
      {"Log_Definition", " ", semicolon, V3_PDL, {{SLOT_ASSOCIATION, semicolon}}},
      // Lines that are no parameter data lines.
      {"Well", " ", "DEPT", V3_BAD, {{SLOT_LINE_TYPE, V3_MSG_UNKNOWN_LINE}}},
      {"Well", " ", "A:B.C", V3_BAD, {{SLOT_LINE_TYPE, V3_MSG_UNRECOGNIZABLE}}},
      {"Well", " ", "A.:B", V3_BAD, {{SLOT_LINE_TYPE, V3_MSG_UNRECOGNIZABLE}}},
      {"Log_Data", ",", "100.0 2.5", V3_BAD, {{SLOT_LINE_TYPE, V3_MSG_NO_DELIMITER}}},
      {"Log_Data", ",", "100.0,2.5", V3_COLUMN_DATA, {}},
      {"Log_Data[1]", ",", "100.0,2.5", V3_COLUMN_DATA, {}},
      {"ASCII", " ", "100.0 2.5", V3_COLUMN_DATA, {}},
      {"Tops", " ", "1000 SAND", V3_BAD, {{SLOT_LINE_TYPE, V3_MSG_UNDEFINED_SECTION}}},
      {"Well", " ", "   ", V3_BLANK, {}},
      {"Log_Data", ",", "", V3_BLANK, {}},
      {"Tops", " ", "  # note", V3_COMMENT, {}},
      {"", " ", "junk", V3_BAD, {{SLOT_LINE_TYPE, "junk"}}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.section) + ": [" + row.line + "]");
    runState().dataDelimiter = row.delimiter;
    std::string section = row.section;
    V3LineDiagnostics slots;
    slots.fill("stale");
    EXPECT_EQ(static_cast<V3LineType>(parseV3Line(row.line, section, slots)), row.type);
    for (int i = 0; i < static_cast<int>(slots.size()); ++i) {
      auto expected = row.slots.find(i);
      EXPECT_EQ(slots[i], expected == row.slots.end() ? "" : expected->second) << "slot " << i;
    }
    EXPECT_EQ(section, row.section);
  }
}

TEST_F(V3Line, TitleLineOpensTheSectionOnlyBeforeTheFirstSection) {
  V3LineDiagnostics slots;
  std::string section;
  EXPECT_EQ(parseV3Line("  ~Log_Definition | x", section, slots), V3_TITLE);
  EXPECT_EQ(section, "Log_Definition");
  EXPECT_EQ(parseV3Line("DEPT.M : Depth {F}", section, slots), V3_PDL);
}

TEST_F(V3Line, FieldCharacterTestsDependOnVersion) {
  struct Row {
    const char* kind;
    const char* text;
    bool legal3;
    bool legal2;
  };
  const Row rows[] = {
      {"unit", "M", true, true},
      {"unit", "A\tB", false, false},
      {"unit", "A:B", false, false},
      {"unit", "A{B", false, true},
      {"unit", "A|B", false, true},
      {"unit", "A;B", false, true},
      {"value", "1,2 3", true, true},
      {"value", "a|b", false, true},
      {"value", "a\tb", true, true},
      {"value", "a}", false, true},
      {"description", "x\ty", false, true},
      {"description", "x;y", false, true},
      {"description", "x: y", true, true},
      {"association", "A,B", true, true},
      {"association", "A;B", false, false},
      {"association", "A{", false, false},
  };
  for (float version : {3.0f, 2.0f}) {
    runState().lasVersion = version;
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(row.kind) + " [" + row.text + "] in " + std::to_string(version));
      std::string kind = row.kind;
      bool got = kind == "unit"          ? isLegalUnitText(row.text)
                 : kind == "value"       ? isLegalValueText(row.text)
                 : kind == "description" ? isLegalDescriptionText(row.text)
                                         : isLegalAssociationText(row.text);
      EXPECT_EQ(got, version == 3.0f ? row.legal3 : row.legal2);
    }
  }
}

}  // namespace
}  // namespace zorvik
