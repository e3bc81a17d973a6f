#include "checks/catalogue.h"

#include <gtest/gtest.h>

#include "checks/run_context.h"

namespace zorvik {
namespace {

// Whole-report goldens pin every title, the stop rule and the verdicts; these cover what layout
// decides that no report shows.
TEST(Catalogue, LayoutFollowsTheCurrentOptionsAndFileTexts) {
  RunContext run;
  run.doWrap = true;
  layOutCatalogue(run);
  run.doWrap = false;
  layOutCatalogue(run);  // a stale wrap length title must not survive
  EXPECT_EQ(run.table2.at(4, COL_TITLE, 7), "");
  // Without a data section title or country the 3.0 titles keep their blanks.
  const CheckTable& t = run.table3;
  EXPECT_EQ(t.at(0, COL_HEADING, 6), " Section STRT/STOP/STEP Checks");
  EXPECT_EQ(t.at(2, COL_TITLE, 6), "STRT Value matches  section first index");
  EXPECT_EQ(t.at(5, COL_TITLE, 5), "CTRY () based required mnemonics present");
}

}  // namespace
}  // namespace zorvik
