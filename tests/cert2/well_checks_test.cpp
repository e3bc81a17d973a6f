// The ~Well required and country mnemonics, and the title suffix of the country row.
#include "cert2/well_checks.h"

#include <gtest/gtest.h>

#include <vector>

#include "las/text.h"

namespace zorvik {
namespace {

const std::string kRequired = "STRT STOP STEP NULL COMP WELL FLD LOC DATE SRVC ";
const std::string kCountryTitle = "Well section contains required Country specific mnemonics";

struct WellCase {
  const char* name = "";
  std::string mnemonics = "";  // the table's mnemonic list
  std::string slot1 = "";
  std::string slot2 = "";
  std::string titleSuffix = "";
};

TEST(WellChecks, RequiredAndCountryMnemonics) {
  const std::vector<WellCase> cases = {
      {.name = "Canadian set",
       .mnemonics = kRequired + "PROV UWI ",
       .titleSuffix = " (CDN Requirements)"},
      {.name = "United States set",
       .mnemonics = "api " + kRequired + "STAT CNTY CTRY ",
       .titleSuffix = " (USA Requirements)"},
      {.name = "both sets", .mnemonics = kRequired + "PROV UWI STAT CNTY CTRY API "},
      {.name = "neither set",
       .mnemonics = kRequired,
       .slot2 =
           "Country Specific mnemonics: CDN set missing,  PROV, UWI,  ; USA set missing, STAT, "
           "CNTY, CTRY, API, "},
      {.name = "half of each set",
       .mnemonics = kRequired + "UWI STAT CNTY ",
       .slot2 =
           "Country Specific mnemonics: CDN set missing,  PROV,  ; USA set missing, CTRY, API, "},
      {.name = "required missing, lower case counts",
       .mnemonics = "strt STOP STEP NULL WELL FLD LOC DATE prov uwi ",
       .slot1 = "Missing required mnemonics are : COMP, SRVC, ",
       .titleSuffix = " (CDN Requirements)"},
      {.name = "a longer mnemonic does not count",
       .mnemonics = "STRTX STOP STEP NULL COMP WELLS FLD LOC DATE SRVC PROV UWI ",
       .slot1 = "Missing required mnemonics are : STRT, WELL, ",
       .titleSuffix = " (CDN Requirements)"},
      {.name = "empty section",
       .slot1 = "Missing required mnemonics are : STRT, STOP, STEP, NULL, COMP, WELL, FLD, LOC, "
                "DATE, SRVC, ",
       .slot2 =
           "Country Specific mnemonics: CDN set missing,  PROV, UWI,  ; USA set missing, STAT, "
           "CNTY, CTRY, API, "},
  };
  for (const WellCase& c : cases) {
    SCOPED_TRACE(c.name);
    ParamTable table;
    table.entries[0][FIELD_MNEMONIC] = c.mnemonics;
    CheckTable checks(7);
    checks.at(2, COL_TITLE, 5) = kCountryTitle;
    Slots slots;
    slots.fill(" ");

    int result = checkWellMnemonics(table, checks, slots);

    EXPECT_EQ(slots[1], c.slot1);
    EXPECT_EQ(slots[2], c.slot2);
    for (int row = 3; row <= 15; ++row) EXPECT_EQ(slots[row], "");
    EXPECT_EQ(checks.at(2, COL_TITLE, 5), kCountryTitle + c.titleSuffix);
    EXPECT_EQ(result, c.slot1.empty() && c.slot2.empty() ? CHECK_PASSED : CHECK_FAILED);
  }
}

}  // namespace
}  // namespace zorvik
