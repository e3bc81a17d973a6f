// Whole reports of 1.2/2.0 files: the passing examples and one failing file per check row of
// groups 2, 3 and 5, each compared with its golden report (date and folder normalised).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/batch_run.h"

namespace zorvik {
namespace {

struct ReportCase {
  std::string las;     // path of the LAS file
  std::string golden;  // file name under tests/data/cert2/golden
  bool wrapChecks = false;
  std::string resultLine = "";  // must appear as it stands
};

const std::string kData = std::string(ZORVIK_TEST_DATA) + "/cert2/";
const std::string kExamples = std::string(ZORVIK_EXAMPLES) + "/";
const std::string kFails2 = "Result: LAS file FAILS Ver 2 Certification";

TEST(Cert2Reports, MatchGoldenReports) {
  const std::vector<ReportCase> cases = {
      {kExamples + "example_12.las", "example_12.log", false,
       "Result: LAS file PASSED Ver 1.2 Certification"},
      {kExamples + "example_12.las", "example_12_wrapchecks.log", true,
       "~ASCII line length conforms to WRAP line length requirements (256 NO, 80 YES)"},
      {kExamples + "example_20_wrapped.las", "example_20_wrapped.log", false,
       "Result: LAS file PASSED Ver 2 Certification"},
      {kExamples + "example_20_wrapped.las", "example_20_wrapped_wrapchecks.log", true,
       "Result: LAS file PASSED Ver 2 Certification"},
      {kData + "v2_passing.las", "v2_passing.log", false, "(CDN Requirements)"},
      {kData + "v12_one_letter_titles.las", "v12_one_letter_titles.log", false,
       "Result: LAS file PASSED Ver 1.2 Certification"},
      {kData + "v2_no_version_section.las", "v2_no_version_section.log", false,
       "Errors: Version section not found"},
      {kData + "v2_vers_missing.las", "v2_vers_missing.log", false,
       "Errors: VERS mnemonic missing. "},
      {kData + "v2_wrap_missing.las", "v2_wrap_missing.log", false,
       "Errors: WRAP mnemonic missing. "},
      {kData + "v2_vers_not_number.las", "v2_vers_not_number.log", false, "Value read was: 2.0.1"},
      {kData + "v2_vers_mismatch.las", "v2_vers_mismatch.log", false,
       "Errors: Mismatched VERS value, 1.2and 2. Version intially determined"},
      {kData + "v2_wrap_invalid.las", "v2_wrap_invalid.log", false,
       "Errors: Invalid WRAP value was, 'Y', must be NO or YES"},
      {kData + "v2_wrap_twice.las", "v2_wrap_twice.log", false,
       "Errors: More than one VERS, WRAP parameter data line found"},
      {kData + "v2_curve_missing.las", "v2_curve_missing.log", false,
       "sections missing are : ~Curve "},
      {kData + "v2_duplicate_titles.las", "v2_duplicate_titles.log", false,
       "Errors: Duplicate section titles : "},
      {kData + "v2_title_lowercase.las", "v2_title_lowercase.log", false,
       "Tilde not followed by upper case letter, A-Z. Character was c on line:"},
      {kData + "v2_well_required_missing.las", "v2_well_required_missing.log", false,
       "Errors: Missing required mnemonics are : DATE, SRVC, "},
      {kData + "v2_well_required_and_country_missing.las",
       "v2_well_required_and_country_missing.log", false,
       "Errors: Missing required mnemonics are : COMP, "},
      {kData + "v2_well_country_note.las", "v2_well_country_note.log", false,
       "Errors: Country Specific mnemonics: CDN set missing,  PROV, UWI,  ; USA set missing, STAT, "
       "CNTY, CTRY, API, "},
  };
  for (const ReportCase& c : cases) {
    SCOPED_TRACE(c.golden);
    testing::BatchResult run = testing::certifyInBatch(c.las, c.wrapChecks);
    ASSERT_TRUE(run.reportWritten) << run.commandLog;
    const std::string report = testing::reportWithoutFolder(run.report);
    EXPECT_NE(report.find(c.resultLine), std::string::npos) << report;
    EXPECT_EQ(testing::compareWithGolden(report, kData + "golden/" + c.golden), "");
  }
}

// A file whose only fault is the missing country set fails, and its report ends after group 5.
TEST(Cert2Reports, CountryNoteEndsTheReportAfterGroupFive) {
  testing::BatchResult run = testing::certifyInBatch(kData + "v2_well_country_note.las");
  EXPECT_NE(run.report.find(kFails2), std::string::npos);
  EXPECT_NE(run.report.find("05: ~Well Section Mnemonics and Content Checks"), std::string::npos);
  EXPECT_EQ(run.report.find("06: "), std::string::npos);
}

}  // namespace
}  // namespace zorvik
