#include "cert3/certify3.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <vector>

#include "cert3/scratch_file.h"
#include "checks/catalogue.h"
#include "run/command_log.h"
#include "run/run_state.h"
#include "run/window_ops.h"
#include "support/batch_run.h"

namespace zorvik {
namespace {

using testing::readBytes;
using testing::ScratchFile;

const std::string EXAMPLE = std::string(ZORVIK_EXAMPLES) + "/example_30.las";

// Records what the driver shows and answers the cancel question; `onEvents` runs whenever the
// driver lets events run, with the caption last shown.
class FakeWindow : public WindowOps {
 public:
  void setTitle(const std::string&) override {}
  void setStatusLine(const std::string&) override {}
  void setProgress(int percent, const std::string& caption) override {
    percents.push_back(percent);
    captions.push_back(caption);
  }
  void prepareResultTabs(float) override {}
  void enableResultTabs(bool) override {}
  void fillResultGrid(const CheckTable&) override {}
  bool askYesNo(const std::string& title, const std::string& text) override {
    questions.push_back(title + "|" + text);
    return answerYes;
  }
  bool askOkCancel(const std::string&, const std::string&) override { return true; }
  void showCritical(const std::string&, const std::string&) override {}
  void processEvents() override {
    if (onEvents) onEvents(captions.empty() ? std::string() : captions.back());
  }
  void setBusyPointer(bool busy) override { pointer.push_back(busy); }

  std::vector<int> percents;
  std::vector<std::string> captions;
  std::vector<std::string> questions;
  std::vector<bool> pointer;
  bool answerYes = false;
  std::function<void(const std::string&)> onEvents;
};

class Certify3 : public ::testing::Test {
 protected:
  void SetUp() override {
    resetRunState();
    folder_ =
        std::filesystem::temp_directory_path() / ("zorvik-certify3-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder_);
    std::filesystem::remove(folder_ / "command.log");
    setProgramFolder(folder_.string());
    runState().lasVersion = 3.0f;
    runState().window = &window;
    layOutCatalogue();
  }
  void TearDown() override {
    runState().window = nullptr;
    resetRunState();
    setProgramFolder("");
    std::filesystem::remove_all(folder_);
  }
  std::string commandLog() const { return readBytes((folder_ / "command.log").string()); }

  // Presses Escape once, the first time events run while the caption of `group` is shown.
  void pressEscapeAfter(int group) {
    const std::string caption =
        "Doing check " + std::to_string(group) + " (Press ESC to cancel...)";
    window.onEvents = [caption, pressed = false](const std::string& shown) mutable {
      if (shown != caption || pressed) return;
      pressed = true;
      runState().escapePressed = true;
    };
  }

  FakeWindow window;
  std::filesystem::path folder_;
};

bool marked(int group) {
  for (int r = 1; r <= 15; ++r)
    if (runState().table3.at(r, COL_MARK, group) != " ") return false;
  return true;
}

bool untouched(int group) {
  for (int r = 1; r <= 15; ++r)
    if (!runState().table3.at(r, COL_MARK, group).empty() ||
        !runState().table3.at(r, COL_RESULT, group).empty())
      return false;
  return true;
}

std::string exampleWith(const std::string& from, const std::string& to) {
  std::string text = readBytes(EXAMPLE);
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  if (at != std::string::npos) text.replace(at, from.size(), to);
  return text;
}

TEST_F(Certify3, PassingFileRunsEveryGroupAndReportsProgress) {
  EXPECT_EQ(aaCertify3(EXAMPLE), RUN_COMPLETED);
  EXPECT_FALSE(anyFailure(runState().table3));
  for (int g : {0, 2, 3, 4, 5, 6, 7, 8, 9}) EXPECT_TRUE(marked(g)) << "group " << g;
  EXPECT_EQ(window.percents, (std::vector<int>{0, 22, 33, 44, 56, 67, 78, 89, 100}));
  EXPECT_EQ(window.captions.front(), "Doing check 0 (Press ESC to cancel...)");
  EXPECT_EQ(window.captions.back(), "Doing check 9 (Press ESC to cancel...)");
  EXPECT_EQ(window.pointer, (std::vector<bool>{true, false}));
  EXPECT_EQ(runState().dataDelimiter, ",");
  EXPECT_EQ(runState().dataSectionTitle, "~ASCII");
  EXPECT_EQ(runState().countryCode, "CA");
  EXPECT_EQ(commandLog(), "");
}

TEST_F(Certify3, TitleLineFindingsAreKeptApartAndNeverStopTheRun) {
  ScratchFile file(exampleWith("FLD.       Example Field", "FLD.       Example~Field"));
  EXPECT_EQ(aaCertify3(file.path()), RUN_COMPLETED);
  EXPECT_TRUE(marked(9));
  EXPECT_EQ(runState().table3.at(7, COL_RESULT, 0),
            "Tilde not first non-space character of the line\r\n"
            "FLD.       Example~Field : Field\r\n");
  EXPECT_FALSE(anyFailure(runState().table3));
}

TEST_F(Certify3, FailingGroupStopsTheRunAfterRecordingIt) {
  ScratchFile file(exampleWith("WRAP.                 NO", "WRAP.                YES"));
  EXPECT_EQ(aaCertify3(file.path()), RUN_COMPLETED);
  EXPECT_TRUE(marked(2));
  EXPECT_EQ(runState().table3.at(6, COL_RESULT, 2), "Invalid WRAP value was, 'YES'");
  for (int g = 3; g <= 9; ++g) EXPECT_TRUE(untouched(g)) << "group " << g;
}

TEST_F(Certify3, FileLevelFindingsSurviveAndStopAfterTheVersionChecks) {
  runState().table3.at(6, COL_RESULT, 1) = "not a .las name";
  runState().table3.at(6, COL_MARK, 1) = " ";
  runState().table3.at(3, COL_RESULT, 4) = "left from an earlier run";
  EXPECT_EQ(aaCertify3(EXAMPLE), RUN_COMPLETED);
  EXPECT_EQ(runState().table3.at(6, COL_RESULT, 1), "not a .las name");
  EXPECT_TRUE(marked(0));
  EXPECT_TRUE(marked(2));
  for (int g = 3; g <= 9; ++g) EXPECT_TRUE(untouched(g)) << "group " << g;
}

TEST_F(Certify3, EscapeAndTheCancelQuestion) {
  struct Row {
    const char* what;
    bool answerYes;
    bool suppressed;
    bool withWindow;
    int result;
    bool reachesGroup9;
    std::size_t questions;
  };
  const Row rows[] = {
      {"answered Yes", true, false, true, RUN_STOPPED, false, 1},
      {"answered No", false, false, true, RUN_COMPLETED, true, 1},
      {"question suppressed", true, true, true, RUN_COMPLETED, true, 0},
      {"no window to ask", true, false, false, RUN_COMPLETED, true, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    SetUp();
    window = FakeWindow{};
    window.answerYes = row.answerYes;
    runState().suppressCancelQuestion = row.suppressed;
    if (row.withWindow) {
      pressEscapeAfter(5);
    } else {
      runState().window = nullptr;
      runState().escapePressed = true;
    }
    EXPECT_EQ(aaCertify3(EXAMPLE), row.result);
    EXPECT_EQ(window.questions.size(), row.questions);
    if (row.questions > 0 && !window.questions.empty()) {
      EXPECT_EQ(window.questions[0],
                "Please Confirm!|Do you want to cancel the certification in progress?");
    }
    EXPECT_EQ(marked(9), row.reachesGroup9);
    EXPECT_EQ(runState().escapePressed, row.result == RUN_STOPPED);
    EXPECT_EQ(commandLog(), "");  // a cancel is no fault
    if (row.result == RUN_STOPPED) {
      EXPECT_TRUE(marked(5));
      EXPECT_TRUE(untouched(6));
    }
  }
}

TEST_F(Certify3, UnreadableFileEndsThroughTheTrap) {
  EXPECT_EQ(aaCertify3((folder_ / "missing.las").string()), RUN_FAULT);
  const std::string log = commandLog();
  EXPECT_NE(log.find("Error: VB Error in aaCertify3: . Error #0\r\n"), std::string::npos) << log;
  EXPECT_TRUE(marked(0));
  EXPECT_TRUE(untouched(2));
  EXPECT_EQ(window.pointer, (std::vector<bool>{true, false}));
}

}  // namespace
}  // namespace zorvik
