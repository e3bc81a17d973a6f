// The ~Version and ~Well checks of a 2.0 file on values the fixture reports do not show, and the
// delimiter words.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "base/text.h"
#include "cert2/las_parts.h"
#include "cert2/well_checks.h"
#include "checks/version_checks.h"

namespace zorvik {
namespace {

TEST(VersionChecks, FindingsPerRow) {
  const std::string twice = "More than one VERS, WRAP parameter data line found\n";
  const std::pair<std::vector<std::pair<std::string, std::string>>, std::string> rows[] = {
      // The ~Version lines; the WRAP value read, then "row: text" of the rows holding text.
      {{{"VERS", "2"}, {"WRAP", "NO"}}, "NO\n"},
      {{{"VERS", "2.0E0"}, {"WRAP", "YES"}}, "YES\n"},  // an exponent is refused in 3.0 only
      {{{"VERS", "2.5"}, {"WRAP", "NO"}},
       "NO\n4: Invalid VERS value, 2.5. Version must be 1.2, 2 or 3 before other checks can be "
       "attempted\n"},
      {{{"VERS", "2.0"}, {"WRAP", "NO"}, {"DLM", "SPACE"}, {"DLM", "SPACE"}},
       "NO\n6: " + twice + "9: " + twice},
  };
  for (const auto& [lines, expected] : rows) {
    SCOPED_TRACE(lines[0].second);
    RunContext run;
    run.dialect.version = 2.0f;
    run.sections.entries.assign(2, SectionEntry{});
    run.sections.entries[0].name = "Version";
    run.sections.entries[1].name = "Well";
    ParamTable table;
    for (const auto& [mnemonic, value] : lines) {
      table.entries.push_back({mnemonic, "", value, "", "", ""});
      table.entries[0][FIELD_MNEMONIC] += mnemonic + " ";
    }
    Slots slots;
    slots.fill(RowResult::saying("stale"));
    std::string outcome;
    const CheckStatus result = checkVersionSection(run, table, outcome, slots);
    outcome += "\n" + testing::filledSlots(slots, 15);
    EXPECT_EQ(outcome, expected);
    EXPECT_EQ(result,
              expected.find(':') == std::string::npos ? CheckStatus::Passed : CheckStatus::Failed);
    EXPECT_EQ(run.dialect.version, 2.0f);
  }
}

TEST(VersionChecks, DelimiterWords) {
  const std::pair<std::string, std::string> rows[] = {
      {"SPACE", " "}, {"comma", ","}, {" Tab ", "\t"}, {"PIPE", " "}, {"", " "}, {",", " "}};
  for (const auto& [word, delimiter] : rows) EXPECT_EQ(delimiterForWord(word), delimiter) << word;
}

TEST(WellChecks, RequiredAndCountryMnemonics) {
  const std::string required = "STRT STOP STEP NULL COMP WELL FLD LOC DATE SRVC ";
  const std::string title = "Well section contains required Country specific mnemonics";
  const std::pair<std::string, std::string> rows[] = {
      // mnemonics; slot 1 | slot 2 | suffix
      {"api " + required + "STAT CNTY CTRY ", "|| (USA Requirements)"},
      {required + "PROV UWI STAT CNTY CTRY API ", "||"},
      {required + "UWI STAT CNTY ",
       "|Country Specific mnemonics: CDN set missing,  PROV,  ; USA set missing, CTRY, API, |"},
      // A longer mnemonic does not count, lower case does.
      {"STRTX stop STEP NULL COMP WELLS FLD LOC DATE SRVC prov uwi ",
       "Missing required mnemonics are : STRT, WELL, || (CDN Requirements)"},
  };
  for (const auto& [mnemonics, expected] : rows) {
    SCOPED_TRACE(mnemonics);
    ParamTable table;
    table.entries[0][FIELD_MNEMONIC] = mnemonics;
    CheckTable checks(7);
    checks.at(2, COL_TITLE, 5) = title;
    Slots slots;
    slots.fill(RowResult::notReachedRow());
    CheckStatus result = checkWellMnemonics(table, checks, slots);
    const std::string& newTitle = checks.at(2, COL_TITLE, 5);
    ASSERT_EQ(newTitle.rfind(title, 0), 0u);
    EXPECT_EQ(slots[1].text() + "|" + slots[2].text() + "|" + newTitle.substr(title.size()),
              expected);
    for (int row = 3; row <= 15; ++row) EXPECT_TRUE(slots[row].passed());
    EXPECT_EQ(result, expected.starts_with("||") ? CheckStatus::Passed : CheckStatus::Failed);
  }
}

}  // namespace
}  // namespace zorvik
