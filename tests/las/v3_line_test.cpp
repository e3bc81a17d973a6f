#include "las/v3_line.h"

#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "las/dialect.h"
#include "las/section_types.h"
#include "las/sections.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

class V3Line : public ::testing::Test {
 protected:
  void SetUp() override {
    dialect_.version = 3.0f;
    sections_.dataName = "ASCII";
    // Roles by name: a header, a parameter, a definition, two data sections and one of no kind.
    buildSectionIndex(
        LasFile(testing::writeScratchFile(
            "v3_line.las", testing::crlfLines({"~Well", "~Parameter", "~Log_Definition",
                                               "~Log_Data[1]", "~Tops", "~ASCII"}))),
        dialect_, sections_);
  }

  Dialect dialect_;
  SectionIndex sections_;
};

// Faults that whole reports already show (a bar before the colon, a missing brace, an empty
// format, an unknown line, a data line without delimiter) are left to the golden reports; these
// rows pin the other slots, and that every slot not named stays empty. Data sections (by the data
// section's name or "_Data") hold column data; before the first title every line is bad.
TEST_F(V3Line, TypesLinesAndFillsSlots) {
  const char* def = "Log_Definition";
  const char* w = "Well";
  const std::string barBeforeFormat = "DEPT.M : Depth | {F}";
  const std::string spaceInCommaFile = "GR.API : g | DEPT, NPHI";
  const std::tuple<const char*, std::string, V3LineType, std::map<int, std::string>> rows[] = {
      {def, "DEPT.M   : Depth {F}", V3LineType::Pdl, {}},
      {def,
       barBeforeFormat,
       V3LineType::Pdl,
       {{SLOT_DESCRIPTION, "Depth |"},
        {SLOT_BAR, V3_MSG_BAR_BEFORE_FORMAT},
        {SLOT_BRACE, V3_MSG_BRACE_AFTER_BAR},
        {SLOT_ASSOCIATION, barBeforeFormat}}},
      {w,
       "X.M 1 : d }F{",
       V3LineType::Pdl,
       {{SLOT_DESCRIPTION, "d }F"}, {SLOT_BRACE, V3_MSG_BRACE_ORDER}}},
      {w,
       "X.M:d {F}{F}",
       V3LineType::Pdl,
       {{SLOT_DESCRIPTION, "d {F}"}, {SLOT_BRACE, V3_MSG_MANY_BRACES}}},
      {w,
       "X.M 1 : d {Q}",
       V3LineType::Pdl,
       {{SLOT_FORMAT, V3_MSG_ILLEGAL_FORMAT},
        {SLOT_BRACE, "Bad Format: 1 doesn't look like this format: {Q}"}}},
      {w, "TIME. 10:30 : start {hh:mm}", V3LineType::Pdl, {}},
      // Only header and parameter values are tested against their format.
      {"Parameter",
       "BHT.DEGC 35.5 : Temp {F10.4}",
       V3LineType::Pdl,
       {{SLOT_BRACE, "Bad Format: 35.5 doesn't look like this format: {F10.4}"}}},
      {def, "BHT.DEGC 35.5 : Temp {F10.4}", V3LineType::Pdl, {}},
      // Association names are separated by the data delimiter alone.
      {def, "GR.API : g | DEPT,NPHI", V3LineType::Pdl, {}},
      {def, spaceInCommaFile, V3LineType::Pdl, {{SLOT_ASSOCIATION, spaceInCommaFile}}},
      {w, "A.:B", V3LineType::Bad, {{SLOT_LINE_TYPE, V3_MSG_UNRECOGNIZABLE}}},
      {"Log_Data[1]", "100.0,2.5", V3LineType::ColumnData, {}},
      {"ASCII", "100.0,2.5", V3LineType::ColumnData, {}},
      {"Tops", "1000,SAND", V3LineType::Bad, {{SLOT_LINE_TYPE, V3_MSG_UNDEFINED_SECTION}}},
      {"Tops", "  # note", V3LineType::Comment, {}},
      {"", "junk", V3LineType::Bad, {{SLOT_LINE_TYPE, "junk"}}},
  };
  dialect_.delimiter = ",";
  for (const auto& [section, line, type, expected] : rows) {
    SCOPED_TRACE(std::string(section) + ": [" + line + "]");
    std::string current = section;
    V3LineDiagnostics slots;
    slots.fill("stale");
    EXPECT_EQ(parseV3Line(line, current, dialect_, sections_, slots), type);
    EXPECT_EQ(current, section);
    for (int i = 0; i < static_cast<int>(slots.size()); ++i) {
      auto it = expected.find(i);
      EXPECT_EQ(slots[i], it == expected.end() ? "" : it->second) << "slot " << i;
    }
  }
}

// Braces, bars and semicolons are field syntax only from 3.0 on.
TEST_F(V3Line, FieldCharacterTestsDependOnVersion) {
  for (float version : {3.0f, 2.0f}) {
    SCOPED_TRACE(version);
    dialect_.version = version;
    const bool older = version < 3.0f;
    EXPECT_EQ(isLegalUnitText("A{B", dialect_), older);
    EXPECT_EQ(isLegalValueText("a|b", dialect_), older);
    EXPECT_EQ(isLegalDescriptionText("x;y", dialect_), older);
    EXPECT_FALSE(isLegalAssociationText("A;B"));
  }
}

}  // namespace
}  // namespace zorvik
