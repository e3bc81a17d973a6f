// The ~Version checks of both catalogues, from hand-built line tables. The 1.2/2.0 findings that
// the whole-report tests pin are not repeated here.
#include "cert2/version_checks.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>
#include <vector>

#include "run/run_state.h"

namespace zorvik {
namespace {

ParamTable tableOf(const std::vector<std::pair<std::string, std::string>>& lines) {
  ParamTable table;
  for (const auto& [mnemonic, value] : lines) {
    table.entries.push_back({mnemonic, "", value, "", "", ""});
    table.entries[0][FIELD_MNEMONIC] += mnemonic + " ";
  }
  return table;
}

struct VersionCase {
  const char* name = "";
  float version = 2.0f;
  const char* title = "Version";
  std::vector<std::pair<std::string, std::string>> lines = {};
  std::map<int, std::string> slots = {};  // rows 1..9 not named here must be empty
  std::string wrap = "";
};

const std::string kVersNotNumber =
    "VERS value is invalid (not a number) or VERS not found to read value from. Value read was: ";
const std::string kBadVers = ". Version must be 1.2, 2 or 3 before other checks can be attempted";

TEST(VersionChecks, FindingsPerRow) {
  const std::vector<VersionCase> cases = {
      {.name = "2.0 passes", .lines = {{"VERS", "2.0"}, {"WRAP", "NO"}}, .wrap = "NO"},
      {.name = "VERS 2 passes as 2.0", .lines = {{"VERS", "2"}, {"WRAP", "NO"}}, .wrap = "NO"},
      {.name = "exponent accepted for 2.0",
       .lines = {{"VERS", "2.0E0"}, {"WRAP", "YES"}},
       .wrap = "YES"},
      {.name = "1.2 under the one-letter title",
       .version = 1.2f,
       .title = "V",
       .lines = {{"VERS", "1.20"}, {"WRAP", "yes"}},
       .wrap = "yes"},
      {.name = "VERS empty",
       .lines = {{"VERS", ""}, {"WRAP", "NO"}},
       .slots = {{4, kVersNotNumber}},
       .wrap = "NO"},
      {.name = "VERS 2.5 refused",
       .lines = {{"VERS", "2.5"}, {"WRAP", "NO"}},
       .slots = {{4, "Invalid VERS value, 2.5" + kBadVers}},
       .wrap = "NO"},
      {.name = "VERS missing stops at once",
       .lines = {{"WRAP", "NO"}},
       .slots = {{2, "VERS mnemonic missing. "}, {5, " "}, {6, " "}},
       .wrap = "NO"},
      {.name = "WRAP missing",
       .lines = {{"VERS", "2.0"}},
       .slots = {{3, "WRAP mnemonic missing. "}, {5, " "}, {6, " "}},
       .wrap = " "},
      {.name = "no ~Version section",
       .title = "Parameter",
       .lines = {{"VERS", "2.0"}, {"WRAP", "NO"}},
       .slots =
           {{1, "Version section not found"}, {2, " "}, {3, " "}, {4, " "}, {5, " "}, {6, " "}},
       .wrap = " "},
      {.name = "DLM twice fails a 2.0 file too",
       .lines = {{"VERS", "2.0"}, {"WRAP", "NO"}, {"DLM", "SPACE"}, {"DLM", "SPACE"}},
       .slots = {{6, "More than one VERS, WRAP parameter data line found"},
                 {9, "More than one VERS, WRAP parameter data line found"}},
       .wrap = "NO"},
      {.name = "3.0 passes",
       .version = 3.0f,
       .lines = {{"VERS", "3.0"}, {"WRAP", "NO"}, {"DLM", "COMMA"}},
       .wrap = "NO"},
      {.name = "3.0 exponent refused",
       .version = 3.0f,
       .lines = {{"VERS", "3.0E0"}, {"WRAP", "NO"}, {"DLM", "SPACE"}},
       .slots = {{5, "Invalid VERS value, 3.0E0" + kBadVers}},
       .wrap = "NO"},
      {.name = "3.0 WRAP YES refused",
       .version = 3.0f,
       .lines = {{"VERS", "3.0"}, {"WRAP", "YES"}, {"DLM", "TAB"}},
       .slots = {{6, "Invalid WRAP value was, 'YES'"}},
       .wrap = "YES"},
      {.name = "3.0 DLM word unknown leaves row 7 undecided",
       .version = 3.0f,
       .lines = {{"VERS", "3.0"}, {"WRAP", "NO"}, {"DLM", "SEMICOLON"}},
       .slots = {{7, " "}},
       .wrap = "NO"},
      {.name = "3.0 DLM fifth",
       .version = 3.0f,
       .lines = {{"VERS", "3.0"}, {"WRAP", "NO"}, {"A", "1"}, {"B", "2"}, {"DLM", "SPACE"}},
       .slots = {{8, "DLM not 1st, 2nd or 3rd. It was 5th\r\n"}},
       .wrap = "NO"},
      {.name = "3.0 duplicates leave the order undecided",
       .version = 3.0f,
       .lines = {{"VERS", "3.0"}, {"WRAP", "NO"}, {"DLM", "SPACE"}, {"WRAP", "NO"}},
       .slots = {{8, " "}, {9, "More than one VERS, WRAP or DLM parameter data line found"}},
       .wrap = "NO"},
      {.name = "3.0 DLM missing",
       .version = 3.0f,
       .lines = {{"VERS", "3.0"}, {"WRAP", "NO"}},
       .slots = {{4, "DLM mnemonic missing. "}, {5, " "}, {6, " "}, {7, " "}, {8, " "}, {9, " "}},
       .wrap = "NO"},
      {.name = "3.0 under the one-letter title",
       .version = 3.0f,
       .title = "V",
       .lines = {{"VERS", "3.0"}, {"WRAP", "NO"}, {"DLM", "SPACE"}},
       .slots = {{1, "Version section not found"},
                 {2, " "},
                 {3, " "},
                 {4, " "},
                 {5, " "},
                 {6, " "},
                 {7, " "},
                 {8, " "},
                 {9, " "}},
       .wrap = " "},
  };
  for (const VersionCase& c : cases) {
    SCOPED_TRACE(c.name);
    resetRunState();
    runState().lasVersion = c.version;
    runState().sectionIndex.assign(2, SectionEntry{});
    runState().sectionIndex[0].name = c.title;
    runState().sectionIndex[1].name = "Well";
    Slots slots;
    slots.fill("stale");
    std::string wrap;

    int result = checkVersionSection(tableOf(c.lines), wrap, slots);

    for (int row = 1; row <= 15; ++row) {
      auto expected = c.slots.find(row);
      EXPECT_EQ(slots[row], expected == c.slots.end() ? "" : expected->second) << "row " << row;
    }
    EXPECT_EQ(result, c.slots.empty() ? CHECK_PASSED : CHECK_FAILED);
    EXPECT_EQ(wrap, c.wrap);
    EXPECT_EQ(runState().lasVersion, c.version);
  }
}

TEST(VersionChecks, DelimiterWords) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"SPACE", " "}, {"comma", ","}, {" Tab ", "\t"}, {"PIPE", " "}, {"", " "}, {",", " "}};
  for (const auto& [word, delimiter] : cases) {
    SCOPED_TRACE(word);
    EXPECT_EQ(delimiterForWord(word), delimiter);
  }
}

}  // namespace
}  // namespace zorvik
