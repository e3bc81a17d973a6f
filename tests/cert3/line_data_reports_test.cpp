// Whole reports of 3.0 files that fail one row of the line structure, column data, association
// or array channel checks, each compared with its golden report (date and folder normalised).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/batch_run.h"

namespace zorvik {
namespace {

const std::string kData = std::string(ZORVIK_TEST_DATA) + "/cert3/";
const std::string kPassed = "Result: LAS file PASSED Ver 3 Certification";
const std::string kFails = "Result: LAS file FAILS Ver 3 Certification";

struct ReportCase {
  std::string fixture;  // name under tests/data/cert3, without ".las"
  std::string failed;   // the report line of the failing row; "" for a passing file
};

TEST(LineDataReports, MatchGoldenReports) {
  const std::vector<ReportCase> cases = {
      {"g4_mnemonic_illegal", "Failed: a. Legal Mnemonic"},
      {"g4_unit_illegal", "Failed: b. Legal UNIT"},
      {"g4_value_illegal", "Failed: c. Legal VALUE"},
      {"g4_bar_before_colon",
       "Failed: e. Correct use of association delimiter | and association "
       "formatting"},
      {"g4_brace_missing", "Failed: f. Correct use of formats and format delimiters {}"},
      {"g4_format_empty", "Failed: g. Legal {} FORMAT"},
      {"g4_association_illegal", "Failed: h. Legal ASSOCIATED Mnemonics"},
      {"g4_line_type_header", "Failed: j. Legal line type for section type"},
      {"g4_data_without_delimiter", "Failed: j. Legal line type for section type"},
      {"g4_last_line_without_delimiter", "Failed: j. Legal line type for section type"},
      {"g4_blank_in_data", "Failed: j. Legal line type for section type"},
      {"g4_no_data_lines", "Failed: k. Log Data section(s) contains data lines"},
      {"g7_channel_count",
       "Failed: a. Column Data section channel count matches Column "
       "Definition line count"},
      {"g7_item_count",
       "Failed: b. Delimited channel count consistent for all lines of Column "
       "Data section"},
      {"g7_short_line",
       "Failed: b. Delimited channel count consistent for all lines of Column "
       "Data section"},
      {"g7_item_format",
       "Failed: c. Stated Column Definition Format matches data items in Column "
       "Data section"},
      {"g7_quoted_space_passes", ""},
      {"g8_reference_missing", "Failed: a. Referenced Association mnemonic(s) found"},
      {"g8_self_reference", "Failed: b. No Circular Association References"},
      {"g8_circular", "Failed: b. No Circular Association References"},
      {"g9_array_passes", ""},
      {"g9_unnumbered",
       "Failed: a. Channels indicated as Array channels have [n] appended to "
       "channel names"},
      {"g9_sequence", "Failed: b. Array channels have sequential indexes from [1] to [n]"},
      {"g9_not_grouped", "Failed: c. Array channels are grouped together"},
      {"g9_spacing",
       "Failed: d. Array channel spacing indexes in {} format field consistent for "
       "all"},
      {"g9_units", "Failed: e. Array channels of a group have same units"},
  };
  for (const ReportCase& c : cases) {
    SCOPED_TRACE(c.fixture);
    testing::BatchResult run = testing::certifyInBatch(kData + c.fixture + ".las");
    ASSERT_TRUE(run.reportWritten) << run.commandLog;
    const std::string report = testing::reportWithoutFolder(run.report);
    if (c.failed.empty()) {
      EXPECT_NE(report.find(kPassed), std::string::npos) << report;
      EXPECT_NE(report.find("09: Array Channel Checks"), std::string::npos) << report;
    } else {
      EXPECT_NE(report.find(kFails), std::string::npos) << report;
      EXPECT_NE(report.find("\r\n" + c.failed + "\r\n"), std::string::npos) << report;
    }
    EXPECT_EQ(testing::compareWithGolden(report, kData + "golden/" + c.fixture + ".log"), "");
  }
}

}  // namespace
}  // namespace zorvik
