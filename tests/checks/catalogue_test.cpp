#include "checks/catalogue.h"

#include <gtest/gtest.h>

#include "run/run_state.h"

namespace zorvik {
namespace {

// The titles are pinned by the golden PASSED reports; these tests cover what layout decides.

TEST(Catalogue, WrapLengthCheckListedOnlyWithWrapChecks) {
  for (bool doWrap : {false, true}) {
    SCOPED_TRACE(doWrap);
    resetRunState();
    runState().doWrap = true;
    layOutCatalogue();  // a stale title must not survive the next layout
    runState().doWrap = doWrap;
    layOutCatalogue();
    EXPECT_EQ(runState().table2.at(4, COL_TITLE, 7).empty(), !doWrap);
  }
  resetRunState();
}

TEST(Catalogue, VersionThreeTitlesCarryTheCurrentFileTexts) {
  struct Row {
    const char* dataTitle;
    const char* country;
    const char* heading6;
    const char* title62;
    const char* title55;
  };
  const Row rows[] = {
      {"", "", " Section STRT/STOP/STEP Checks", "STRT Value matches  section first index",
       "CTRY () based required mnemonics present"},
      {"~Log_Data", "US", "~Log_Data Section STRT/STOP/STEP Checks",
       "STRT Value matches ~Log_Data section first index",
       "CTRY (US) based required mnemonics present"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.heading6);
    resetRunState();
    runState().dataSectionTitle = row.dataTitle;
    runState().countryCode = row.country;
    layOutCatalogue();
    const CheckTable& t = runState().table3;
    EXPECT_EQ(t.at(0, COL_RESULT, 6), row.heading6);
    EXPECT_EQ(t.at(2, COL_TITLE, 6), row.title62);
    EXPECT_EQ(t.at(5, COL_TITLE, 5), row.title55);
  }
  resetRunState();
}

TEST(Catalogue, AnyFailureLooksAtResultCellsOfGroupsOneOn) {
  struct Row {
    int row, column, group;
    const char* text;
    bool failure;
  };
  const Row rows[] = {
      {1, COL_RESULT, 1, "x", true},        {15, COL_RESULT, 9, "x", true},
      {3, COL_RESULT, 4, " ", true},        {3, COL_RESULT, 4, "", false},
      {0, COL_RESULT, 2, "heading", false}, {3, COL_RESULT, 0, "x", false},
      {3, COL_TITLE, 2, "title", false},    {3, COL_MARK, 2, " ", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::to_string(row.group) + "." + std::to_string(row.row));
    CheckTable table(9);
    table.at(row.row, row.column, row.group) = row.text;
    EXPECT_EQ(anyFailure(table), row.failure);
  }
}

}  // namespace
}  // namespace zorvik
