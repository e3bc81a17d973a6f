#include "checks/report.h"

#include <gtest/gtest.h>

#include "checks/catalogue.h"
#include "run/run_state.h"
#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::compareWithGolden;
using testing::readBytes;
using testing::ScratchDir;

const std::string kDate = "15-Nov-2003 10:20:30";
const std::string kVersionLine = "Zorvik Ver: " + std::to_string(ZORVIK_VERSION_MAJOR) + "." +
                                 std::to_string(ZORVIK_VERSION_MINOR) + "." +
                                 std::to_string(ZORVIK_VERSION_PATCH) + " Date: " + kDate + "\r\n";

// A fresh run state with both catalogues laid out.
void layOut(float version, bool doWrap) {
  resetRunState();
  runState().lasFile = "/logs/well.las";
  runState().lasVersion = version;
  runState().doWrap = doWrap;
  layOutCatalogue();
}

TEST(Report, PassedReportsListTheWholeCatalogue) {
  struct Row {
    const char* golden;
    float version;
    bool doWrap;
  };
  const Row rows[] = {{"passed_20_wrap.report", 2.0f, true},
                      {"passed_12.report", 1.2f, false},
                      {"passed_30.report", 3.0f, false}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.golden);
    layOut(row.version, row.doWrap);
    if (row.version == 3.0f) {
      runState().dataSectionTitle = "Log_Data";
      runState().countryCode = "CA";
      layOutCatalogue();
    }
    // The golden files outlive version bumps: line 2 is compared without its version.
    std::string report = buildReport(reportTable(), kDate);
    report.replace(report.find(kVersionLine), kVersionLine.size(),
                   "Zorvik Ver: <version> Date: <date>\r\n");
    EXPECT_EQ(compareWithGolden(report, std::string(ZORVIK_TEST_DATA) + "/checks/" + row.golden),
              "");
  }
  resetRunState();
}

TEST(Report, FailureEndsTheReportAfterItsGroup) {
  layOut(2.0f, false);
  runState().table2.at(2, COL_RESULT, 2) = "\r\nVERS missing\r\n VERZ. 2.0 : typo";
  runState().table2.at(1, COL_RESULT, 4) = "\r\nnot reached, never listed";
  const std::string expected = "LAS Certification Result for: /logs/well.las\r\n" + kVersionLine +
                               "\r\n"
                               "Result: LAS file FAILS Ver 2 Certification\r\n"
                               "\r\n"
                               "\r\n"
                               "01: File Naming, Availability, Termination and Size\r\n"
                               "        a. File exists\r\n"
                               "        b. File has more than 0 bytes\r\n"
                               "        c. File can be accessed. Locked by any other program??\r\n"
                               "        d. File is correctly PC Windows (CR LF) terminated\r\n"
                               "        e. File has pure ASCII structure\r\n"
                               "        f. File extension is .LAS\r\n"
                               "02: ~Version section VERS and WRAP Checks\r\n"
                               "        a. ~Version section present\r\n"
                               "Failed: b. VERS parameter present in ~Version section\r\n"
                               "Errors: \r\n"
                               "Errors: VERS missing\r\n"
                               "Errors:  VERZ. 2.0 : typo\r\n"
                               "        c. WRAP parameter present in ~Version section\r\n"
                               "        d. VERS Value is 1.2, 2 or 3\r\n"
                               "        e. WRAP Value is YES or NO\r\n"
                               "        f. Only one VERS and WRAP mnemonic in ~Version section\r\n";
  EXPECT_EQ(buildReport(reportTable(), kDate), expected);
  resetRunState();
}

TEST(Report, VerdictNamesOnlyKnownVersionsOfFailingFiles) {
  struct Row {
    float version;
    bool failing;
    const char* line;
  };
  const Row rows[] = {
      {2.0f, false, "Result: LAS file PASSED Ver 2 Certification"},
      {1.2f, false, "Result: LAS file PASSED Ver 1.2 Certification"},
      {3.0f, false, "Result: LAS file PASSED Ver 3 Certification"},
      {2.5f, false, "Result: LAS file PASSED Ver 2.5 Certification"},
      {2.0f, true, "Result: LAS file FAILS Ver 2 Certification"},
      {1.2f, true, "Result: LAS file FAILS Ver 1.2 Certification"},
      {3.0f, true, "Result: LAS file FAILS Ver 3 Certification"},
      {2.5f, true, "Result: LAS file FAILS Certification"},
      {0.0f, true, "Result: LAS file FAILS Certification"},
      {NO_VERSION, true, "Result: LAS file FAILS Certification"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    layOut(row.version, false);
    CheckTable& table = row.version == 3.0f ? runState().table3 : runState().table2;
    if (row.failing) table.at(3, COL_RESULT, 7) = "late finding";
    EXPECT_EQ(&reportTable(), &table);
    EXPECT_EQ(verdictLine(reportTable()), row.line);
  }
  resetRunState();
}

TEST(Report, UntitledRowsAreNotListedButStillFailTheFile) {
  layOut(2.0f, false);  // no wrap checks: 7.4 has no title
  runState().table2.at(4, COL_RESULT, 7) = "line too long";
  std::string report = buildReport(reportTable(), kDate);
  EXPECT_NE(report.find("Result: LAS file FAILS Ver 2 Certification\r\n"), std::string::npos);
  EXPECT_EQ(report.find("Failed:"), std::string::npos);
  EXPECT_EQ(report.find("line too long"), std::string::npos);
  EXPECT_NE(report.find("        c. ASCII section is final ~ section\r\n"), std::string::npos);
  resetRunState();
}

TEST(LogFile, ReplacesTheFileWithNotesAndReport) {
  struct Row {
    const char* firstNote;
    const char* secondNote;
    const char* prefix;
  };
  const Row rows[] = {{"", "", ""},
                      {"first", "", "first\r\n"},
                      {"", "second", "Note: second\r\n\r\n"},
                      {"first", "second", "Note: second\r\n\r\nfirst\r\n"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.prefix);
    ScratchDir dir;
    std::string log = dir.write("out.log", "old contents that must go away\r\n");
    layOut(2.0f, false);
    EXPECT_EQ(writeLogFile(log, row.firstNote, row.secondNote), RUN_COMPLETED);
    std::string text = readBytes(log);
    std::string report = buildReport(reportTable(), "<date>");
    // The date is the only part that may differ between the two builds of the report.
    std::size_t date = text.find(" Date: ");
    ASSERT_NE(date, std::string::npos);
    text.replace(date + 7, 20, "<date>");
    EXPECT_EQ(text, row.prefix + report + "\r\n");
  }
  resetRunState();
}

TEST(LogFile, UnwritablePlaceIsAFault) {
  ScratchDir dir;
  layOut(2.0f, false);
  EXPECT_EQ(writeLogFile(dir.file("no/such/out.log"), "", ""), RUN_FAULT);
  EXPECT_EQ(writeLogFile(dir.path(), "", ""), RUN_FAULT);
  resetRunState();
}

}  // namespace
}  // namespace zorvik
