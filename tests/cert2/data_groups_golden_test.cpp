// Whole reports of 1.2/2.0 files failing one check row of groups 4, 6 or 7 (line syntax,
// STRT/STOP/STEP/NULL, ~ASCII), each compared with its golden report (date and folder
// normalised). The fixtures are written by tests/data/cert2/write_data_fixtures.py.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/batch_run.h"

namespace zorvik {
namespace {

struct ReportCase {
  std::string fixture;  // name under tests/data/cert2, without ".las"
  bool wrapChecks;
  std::string mustHold;  // a text the report must hold as it stands
};

const std::string kData = std::string(ZORVIK_TEST_DATA) + "/cert2/";

TEST(DataGroupReports, MatchGoldenReports) {
  const std::vector<ReportCase> cases = {
      {"g4_mnemonic_faults", false, "Errors: Missing Mnemonic\r\nErrors: .M  "},
      {"g4_unit_illegal", false, "Errors: Illegal Unit: \r\nErrors:  TIME.HH:MM"},
      {"g4_header_tab", false,
       "Errors: Tab characters used on the line: \r\nErrors:  COMP.<Tab>Zorvik"},
      {"g4_line_type_unknown", false,
       "Errors: Unknown or undetermined line type\r\nErrors: Logged by"},
      {"g4_data_comment_blank", false, "Blank Line in ~Ascii Section"},
      {"g4_data_tab", false, "Errors: Tab character(s) found.\r\nErrors: 1201.0000  \t58.90"},
      {"g4_no_data_lines", false, "No data lines in ASCII section"},
      {"g4_wrap_no_structure_yes", false,
       "WRAP value does not match ~ASCII section structure. WRAP =NO while ~ASCII structure "
       "looks like YES"},
      {"g4_wrap_yes_structure_no", false, "WRAP =YES while ~ASCII structure looks like NO"},
      {"g4_wrap_undetermined", false,
       "Error determining Wrap structure. Likely missing or extra channels at some depths."},
      {"g6_null_value_empty", false, "NULL value missing"},
      {"g6_strt_mismatch", false, "STRT = 1199.5, First ~ASCII index = 1200"},
      {"g6_stop_mismatch", false, "STOP = 1202, Last ~ASCII index = 1201.25"},
      {"g6_step_mismatch", false,
       "~Well STEP value = 0.50000, last read increment @ 1201.2500 was 0.25000"},
      {"g6_step_not_constant", false, "STEP no longer constant at : 1201.00000 (0.50000)"},
      {"g6_step_zero", false, "section was constant @ 0.25000"},
      {"g6_precision", false, " Index has 2 decimals while STEP has 4 decimals"},
      {"g6_rounding", false,
       "Possible rounding error? STEP value = 0.2500, last read increment @ 1200.49999 was "
       "0.24999"},
      {"g6_units", false, " Units don't match: STRT=M, STOP=M, STEP=F, DEPT=M"},
      {"g6_null_stop_repaired", false, "Result: LAS file PASSED Ver 2 Certification"},
      {"g7_channel_count", false,
       "~Curve has 6 channel descriptions while ~ASCII 1st line has 7 delimited channels. "},
      {"g7_value_missing", false, "Expected: 6. Found: 5\r\nErrors: 1201.0000   58.90"},
      {"g7_not_last", false, "~ASCII section is not last section in the file. ~Other was."},
      {"g7_line_too_long_wrap", true, "Line too long for WRAP YES. Was 81 long. 80 is max."},
      // Without /W the row is not listed, but its finding still fails the file.
      {"g7_line_too_long_wrap", false, "Result: LAS file FAILS Ver 2 Certification"},
      {"g7_line_too_long", true, "Line too long for WRAP NO. Was 318 long. 256 is max."},
      // Without /W the length of unwrapped lines is not judged.
      {"g7_line_too_long", false, "Result: LAS file PASSED Ver 2 Certification"},
  };
  for (const ReportCase& c : cases) {
    std::string golden = c.fixture + (c.wrapChecks ? "_wrapchecks" : "") + ".log";
    SCOPED_TRACE(golden);
    testing::BatchResult run = testing::certifyInBatch(kData + c.fixture + ".las", c.wrapChecks);
    ASSERT_TRUE(run.reportWritten) << run.commandLog;
    const std::string report = testing::reportWithoutFolder(run.report);
    EXPECT_NE(report.find(c.mustHold), std::string::npos) << report;
    EXPECT_EQ(testing::compareWithGolden(report, kData + "golden/" + golden), "");
  }
}

}  // namespace
}  // namespace zorvik
