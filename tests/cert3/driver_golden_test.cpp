// Whole reports of batch runs over the examples and the fixtures of the 3.0 driver's own groups
// (title lines, ~Version, section structure, ~Well, STRT/STOP/STEP).
#include <gtest/gtest.h>

#include <string>

#include "support/batch_run.h"

namespace zorvik {
namespace {

using testing::certifyInBatch;
using testing::compareWithGolden;

const std::string DATA = std::string(ZORVIK_TEST_DATA) + "/cert3/";
const std::string GOLDEN = DATA + "golden/";

struct GoldenRow {
  std::string lasPath;
  std::string golden;   // file name under golden/
  const char* verdict;  // expected result line, checked apart from the golden for a clear failure
};

const char* const PASSED = "Result: LAS file PASSED Ver 3 Certification";
const char* const FAILS = "Result: LAS file FAILS Ver 3 Certification";

GoldenRow fixture(const std::string& name, const char* verdict = FAILS) {
  return {DATA + name + ".las", name + ".log", verdict};
}

TEST(DriverGolden, ReportsMatch) {
  const GoldenRow rows[] = {
      {std::string(ZORVIK_EXAMPLES) + "/example_30.las", "example_30.log", PASSED},
      {std::string(ZORVIK_EXAMPLES) + "/example_30_log_sets.las", "example_30_log_sets.log",
       PASSED},
      fixture("g0_title_lines_pass", PASSED),
      fixture("g2_version_missing"),
      fixture("g2_vers_missing"),
      fixture("g2_wrap_missing"),
      fixture("g2_dlm_missing"),
      fixture("g2_vers_value"),
      fixture("g2_wrap_value"),
      fixture("g2_dlm_value"),
      fixture("g2_order"),
      fixture("g2_duplicate"),
      fixture("g3_well_missing"),
      fixture("g3_unknown_section"),
      fixture("g3_well_first"),
      fixture("g3_duplicate_parameter"),
      fixture("g3_data_without_bar"),
      fixture("g3_association_other_set"),
      fixture("g3_association_not_definition"),
      fixture("g3_association_absent"),
      fixture("g3_definition_without_data"),
      fixture("g3_bar_on_header_titles"),
      fixture("g3_set_order"),
      fixture("g3_index_on_parameter"),
      fixture("g3_identical_titles"),
      fixture("g3_index_gap"),
      fixture("g5_required_missing"),
      fixture("g5_ctry_missing"),
      fixture("g5_ctry_length"),
      fixture("g5_ctry_letters"),
      fixture("g5_ctry_requirements"),
      fixture("g5_location_missing"),
      fixture("g6_value_missing"),
      fixture("g6_strt"),
      fixture("g6_stop"),
      fixture("g6_step"),
      fixture("g6_precision"),
      fixture("g6_rounding"),
      fixture("g6_units"),
      fixture("g6_skipped_without_standard_sections", PASSED),
  };
  for (const GoldenRow& row : rows) {
    SCOPED_TRACE(row.golden);
    const testing::BatchResult result = certifyInBatch(row.lasPath);
    ASSERT_TRUE(result.reportWritten) << result.commandLog;
    EXPECT_NE(result.report.find(std::string(row.verdict) + "\r\n"), std::string::npos);
    EXPECT_EQ(compareWithGolden(testing::reportWithoutFolder(result.report), GOLDEN + row.golden),
              "");
    EXPECT_EQ(result.commandLog.find("Error"), std::string::npos) << result.commandLog;
  }
}

}  // namespace
}  // namespace zorvik
