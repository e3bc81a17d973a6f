#include "cert3/well_checks3.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "checks/run_context.h"

namespace zorvik {
namespace {

// The context of a run on a file that does not exist.
RunContext& missingFile() {
  static RunContext run;
  run = RunContext{};
  run.lasFile = "/nonexistent/zorvik.las";
  run.dialect.version = 3.0f;
  return run;
}

using Lines = std::vector<std::pair<std::string, std::string>>;

// A ~Well table holding the required mnemonics, the latitude/longitude set unless told otherwise,
// and then `more` (units and descriptions empty).
ParamTable wellTable(const Lines& more, bool latitudeSet = true) {
  Lines lines = {{"STRT", "1"}, {"STOP", "2"}, {"STEP", "1"}, {"NULL", "-999.25"}, {"COMP", "c"},
                 {"WELL", "w"}, {"FLD", "f"},  {"LOC", "l"},  {"DATE", "d"},       {"SRVC", "s"}};
  if (latitudeSet) lines.insert(lines.end(), {{"LATI", "1"}, {"LONG", "2"}, {"GDAT", "g"}});
  lines.insert(lines.end(), more.begin(), more.end());
  ParamTable table;
  for (const auto& [mnemonic, value] : lines)
    table.entries.push_back({mnemonic, "", value, "", "", ""});
  return table;
}

TEST(WellChecks3, CountryCodes) {
  struct Row {
    const char* what;
    Lines lines;
    int failedItem;  // 0: passes
    std::string finding;
  };
  const Row rows[] = {
      {"lower case", {{"ctry", "us"}, {"stat", "TX"}, {"cnty", "x"}, {"api", "4"}}, 0, ""},
      {"two bytes that are no ASCII letters", {{"CTRY", "\xC3\xA9"}}, 4, "CTRY. \xC3\xA9 : \r\n"},
      {"empty code passes", {{"CTRY", ""}}, 0, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    Slots slots;
    for (int k = 1; k <= 6; ++k) slots[k].markNotReached();
    // No such file: the CTRY line is quoted as rebuilt from its fields.
    EXPECT_EQ(checkWellSection3(missingFile(), wellTable(row.lines), slots),
              row.failedItem == 0 ? CheckStatus::Passed : CheckStatus::Failed);
    for (int k = 1; k <= 6; ++k)
      EXPECT_EQ(slots[k].text(), k == row.failedItem ? row.finding : "") << "item " << k;
  }
}

// Item 6 names what each location set lacks in one finding, set A's list first; a missing GDAT
// leaves a line break in both lists and is named once at the end.
TEST(WellChecks3, LocationSets) {
  const std::pair<Lines, std::string> rows[] = {
      {{{"X", "1"}, {"Y", "2"}, {"GDAT", "g"}, {"HZCS", "h"}}, ""},
      {{{"LATI", "1"}, {"LONG", "2"}, {"GDAT", "g"}}, ""},
      {{{"X", "1"}, {"LONG", "2"}, {"GDAT", "g"}}, "Y, HZCS, LATI, "},
      {{}, "X, Y, \r\n, HZCS, LATI, LONG, \r\n, GDAT"},
  };
  for (const auto& [lines, finding] : rows) {
    SCOPED_TRACE(finding);
    Slots slots;
    Lines withCountry = lines;
    withCountry.emplace_back("CTRY", "");  // an empty code requires nothing
    EXPECT_EQ(checkWellSection3(missingFile(), wellTable(withCountry, false), slots),
              finding.empty() ? CheckStatus::Passed : CheckStatus::Failed);
    EXPECT_EQ(slots[6].text(), finding);
  }
}

}  // namespace
}  // namespace zorvik
