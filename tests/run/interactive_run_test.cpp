#include "run/interactive_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "checks/run_context.h"
#include "run/session.h"
#include "support/batch_run.h"
#include "support/fake_window.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

std::string versionFile(const char* versLine) {
  return std::string("~VERSION\r\n") + versLine + " WRAP.  NO : ONE\r\n~A D\r\n1\r\n";
}

// Opening a file in the window: a stale log goes, the name is remembered, and the run's calls
// follow from the version, the answers and the flags.
TEST(CertifyWork, VersionQuestionsAndCancelsDecideTheCalls) {
  const std::string kNotDetermined =
      "okcancel LAS Version Not Found!|LAS Version was not determined. Proceeding as if Ver 2.0. "
      "\n";
  const std::string kErrorBox =
      "critical Error!|Error occured while processing the LAS file. No certification possible\n";
  const std::string kUnusable = "enable\ngrid 1.2/2.0\nstatus Ready\n";
  struct Row {
    const char* name;
    std::string bytes;  // "<missing>": no file
    // 'w' write-log option, 'c' cancel answer, 'e' Escape pressed before the run.
    const char* options;
    float version;
    // The calls after title and status, one a line: all of them when the last is "status Ready",
    // else the ones before the driver takes over.
    std::string calls;
    // The progress caption the run ends with: the verdict, or how it stopped ("" when unchanged).
    std::string caption;
  };
  const std::string noVers = versionFile("");
  const Row rows[] = {
      {"Missing", "<missing>", "", NO_VERSION, kUnusable, "LAS file FAILS Certification"},
      {"MissingWithLog", "<missing>", "w", NO_VERSION, kUnusable, "LAS file FAILS Certification"},
      {"NotFoundGoesOnAsTwo", noVers, "", 2.0f, kNotDetermined + "prepare 2\n",
       "LAS file FAILS Ver 2 Certification"},
      {"NotFoundCancelled", noVers, "c", 2.0f, kNotDetermined + kErrorBox + "status Ready\n", ""},
      {"Three", versionFile(" VERS. 3.0 : V\r\n"), "", 3.0f, "prepare 3\n",
       "LAS file FAILS Ver 3 Certification"},
      // Refused in batch mode, certified as 1.2/2.0 here.
      {"Unknown", versionFile(" VERS. 2.5 : V\r\n"), "", 2.5f, "prepare 2.5\n",
       "LAS file FAILS Certification"},
      // Pressed before the run: its first poll sees it, and the confirmed cancel serves it.
      {"EscapeConfirmed", versionFile(" VERS. 2.0 : V\r\n"), "e", 2.0f,
       "prepare 2\nyesno Please Confirm!|Do you want to cancel the certification in progress?\n"
       "disable\nstatus Ready\n",
       "Certification cancelled"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string options = row.options;
    testing::RunSandbox sandbox;
    testing::FakeWindow window;
    window.okCancelAnswer = options.find('c') == std::string::npos;
    window.yesNoAnswer = true;
    Session session;
    session.lasFile = sandbox.dir().file("file.las");
    if (row.bytes != "<missing>") sandbox.dir().write("file.las", row.bytes);
    const std::string log = sandbox.dir().write("file.log", "stale");
    session.writeLog = options.find('w') != std::string::npos;
    window.cancel = options.find('e') != std::string::npos;
    RunContext run;
    doCertifyWork(session, run, &window);

    ASSERT_GE(window.calls.size(), 2u);
    EXPECT_EQ(window.calls[0], "title Zorvik (" + session.lasFile + ")");
    EXPECT_EQ(window.calls.back(), "status Ready");
    std::string calls;
    for (std::size_t i = 2; i < window.calls.size(); ++i) calls += window.calls[i] + "\n";
    if (!row.calls.ends_with("status Ready\n"))
      calls.resize(std::min(calls.size(), row.calls.size()));
    EXPECT_EQ(calls, row.calls);
    EXPECT_EQ(run.dialect.version, row.version);
    EXPECT_EQ(window.captions.empty() ? "" : window.captions.back(), row.caption);
    // A 3.0 file is certified by the 3.0 checks, and only a 3.0 file is.
    EXPECT_EQ(std::count(window.calls.begin(), window.calls.end(), "grid 3.0"),
              row.version == 3.0f ? 1 : 0);
    EXPECT_FALSE(window.cancel);
    EXPECT_EQ(std::filesystem::exists(log), session.writeLog);
    if (session.writeLog) {
      EXPECT_NE(testing::readBytes(log).find("Failed: a. File exists"), std::string::npos);
    }
    EXPECT_NE(sandbox.settingsText().find("lasFile=" + session.lasFile + "\n"), std::string::npos);
  }
}

}  // namespace
}  // namespace zorvik
