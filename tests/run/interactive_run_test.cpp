#include "run/interactive_run.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "checks/report.h"
#include "las/text.h"
#include "run/run_state.h"
#include "run/window_ops.h"
#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::readBytes;
using testing::RunSandbox;

// Records what the run asks of the window; questions get the answers set up by the test.
class FakeWindow : public WindowOps {
 public:
  bool okCancelAnswer = true;
  std::vector<std::string> calls;

  void setTitle(const std::string& title) override { calls.push_back("title " + title); }
  void setStatusLine(const std::string& text) override { calls.push_back("status " + text); }
  void setProgress(int, const std::string&) override {}
  void prepareResultTabs(float version) override {
    calls.push_back("prepare " + formatShortest(version));
  }
  void enableResultTabs(bool enabled) override { calls.push_back(enabled ? "enable" : "disable"); }
  void fillResultGrid(const CheckTable& table) override {
    calls.push_back(&table == &runState().table3 ? "grid 3.0" : "grid 1.2/2.0");
  }
  bool yesNoAnswer = false;
  bool askYesNo(const std::string&, const std::string&) override { return yesNoAnswer; }
  bool askOkCancel(const std::string& title, const std::string& text) override {
    calls.push_back("okcancel " + title + "|" + text);
    return okCancelAnswer;
  }
  void showCritical(const std::string& title, const std::string& text) override {
    calls.push_back("critical " + title + "|" + text);
  }
  void processEvents() override {}
  void setBusyPointer(bool) override {}
};

const char* const kNotDetermined =
    "okcancel LAS Version Not Found!|LAS Version was not determined. Proceeding as if Ver 2.0. ";
const char* const kErrorBox =
    "critical Error!|Error occured while processing the LAS file. No certification possible";
const std::string kNoVers = "~VERSION\r\n WRAP.  NO : ONE\r\n~A D\r\n1\r\n";

std::string versionFile(const char* version) {
  return std::string("~VERSION\r\n VERS.  ") + version +
         " : V\r\n WRAP.  NO : ONE\r\n~A D\r\n1\r\n";
}

// A sandbox with the fake window registered and `bytes` (if any) as the current LAS file.
struct WindowRun {
  RunSandbox sandbox;
  FakeWindow window;
  std::string las;

  explicit WindowRun(const std::string& name, const std::string* bytes = nullptr) {
    runState().window = &window;
    las = bytes ? sandbox.dir().write(name, *bytes) : sandbox.dir().file(name);
    runState().lasFile = las;
  }
  ~WindowRun() { runState().window = nullptr; }
};

TEST(InteractiveRun, UnusableFileShowsGroupOneAndWritesTheLogWhenAsked) {
  for (bool writeLog : {true, false}) {
    SCOPED_TRACE(writeLog);
    WindowRun run("missing.las");
    runState().writeLog = writeLog;
    runInteractive();
    const std::vector<std::string> expected{"title Zorvik (" + run.las + ")",
                                            "status Checking in Progress...", "enable",
                                            "grid 1.2/2.0", "status Ready"};
    EXPECT_EQ(run.window.calls, expected);
    EXPECT_EQ(runState().table2.at(1, COL_RESULT, 1), "File does not exist or is not accessible");
    EXPECT_EQ(runState().table3.at(1, COL_RESULT, 1), "File does not exist or is not accessible");
    EXPECT_EQ(runState().statusLine, "Ready");
    std::string log = run.sandbox.dir().file("missing.log");
    EXPECT_EQ(runState().logFile, writeLog ? log : "");
    EXPECT_EQ(std::filesystem::exists(log), writeLog);
    if (writeLog) {
      EXPECT_NE(readBytes(log).find("Failed: a. File exists"), std::string::npos);
    }
  }
}

TEST(InteractiveRun, CancelWhenTheVersionIsNotFound) {
  WindowRun run("nov.las", &kNoVers);
  run.window.okCancelAnswer = false;
  runInteractive();
  const std::vector<std::string> expected{"title Zorvik (" + run.las + ")",
                                          "status Checking in Progress...", kNotDetermined,
                                          kErrorBox, "status Ready"};
  EXPECT_EQ(run.window.calls, expected);
  EXPECT_EQ(runState().lasVersion, 2.0f);
}

TEST(InteractiveRun, ConfirmedCancelDisablesTheTabsAndServesTheEscapePress) {
  const std::string bytes = versionFile("2.0");
  WindowRun run("cancel.las", &bytes);
  run.window.yesNoAnswer = true;
  runState().escapePressed = true;  // pressed before the run: its first poll sees it
  runInteractive();
  const std::vector<std::string>& calls = run.window.calls;
  ASSERT_GE(calls.size(), 2u);
  EXPECT_EQ(calls[calls.size() - 2], "disable");
  EXPECT_FALSE(runState().escapePressed);
}

TEST(InteractiveRun, VersionDecidesTheTabsAndTheDriver) {
  struct Row {
    const char* name;
    std::string bytes;
    bool okAnswer;
    std::vector<std::string> opening;  // the calls before the driver takes over
    float version;
  };
  const Row rows[] = {
      {"NotFoundGoesOnAsTwo", kNoVers, true, {kNotDetermined, "prepare 2"}, 2.0f},
      {"Twelve", versionFile("1.2"), true, {"prepare 1.2"}, 1.2f},
      {"Two", versionFile("2.0"), true, {"prepare 2"}, 2.0f},
      {"Three", versionFile("3.0"), true, {"prepare 3"}, 3.0f},
      // Refused in batch mode, certified as 1.2/2.0 here.
      {"Unknown", versionFile("2.5"), true, {"prepare 2.5"}, 2.5f},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    WindowRun run("file.las", &row.bytes);
    run.window.okCancelAnswer = row.okAnswer;
    runInteractive();
    const std::vector<std::string>& calls = run.window.calls;
    ASSERT_GE(calls.size(), 2 + row.opening.size());
    EXPECT_EQ(std::vector<std::string>(calls.begin() + 2, calls.begin() + 2 + row.opening.size()),
              row.opening);
    EXPECT_EQ(calls.back(), "status Ready");
    EXPECT_EQ(runState().lasVersion, row.version);
  }
}

TEST(InteractiveRun, NoQuestionsWhileTheBatchFlagIsSet) {
  WindowRun run("nov.las", &kNoVers);
  runState().batchMode = true;
  run.window.okCancelAnswer = false;  // would cancel if asked
  runInteractive();
  for (const std::string& call : run.window.calls) {
    EXPECT_NE(call.rfind("okcancel", 0), 0u) << call;
    EXPECT_NE(call.rfind("critical", 0), 0u) << call;
  }
  EXPECT_EQ(run.window.calls.at(2), "prepare 2");
}

TEST(CertifyWork, RemembersTheFileAndDropsAStaleLog) {
  WindowRun run("missing.las");
  std::string stale = run.sandbox.dir().write("missing.log", "stale");
  doCertifyWork();
  EXPECT_FALSE(std::filesystem::exists(stale));
  EXPECT_NE(run.sandbox.settingsText().find("lasFile=" + run.las + "\n"), std::string::npos);
  EXPECT_EQ(run.window.calls.back(), "status Ready");
}

}  // namespace
}  // namespace zorvik
