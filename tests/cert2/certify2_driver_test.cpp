// The 1.2/2.0 driver's order, recording, stop rule, cancelling and error path, with scripted
// check procedures and a fake window.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "cert2/certify2.h"
#include "run/command_log.h"
#include "run/run_state.h"
#include "run/window_ops.h"
#include "support/batch_run.h"

namespace zorvik {
namespace {

constexpr int kThrows = 99;  // scripted result: the check throws out_of_range

// What each scripted group returns and writes; which groups were called.
struct Script {
  int result[8] = {0, 0, -1, -1, -1, -1, -1, -1};
  Slots slots[8];
  std::vector<int> called;
};
Script script;

int play(int group, Slots& slots) {
  script.called.push_back(group);
  if (script.result[group] == kThrows) throw std::out_of_range("scripted");
  slots = script.slots[group];  // every check decides all of its rows
  return script.result[group];
}

Certify2Checks scriptedChecks() {
  Certify2Checks c{};
  c.versionSection = [](const ParamTable&, std::string& wrap, Slots& s) {
    wrap = "NO";
    return play(2, s);
  };
  c.sectionStructure = [](const std::string&, Slots& s) { return play(3, s); };
  c.lineSyntax = [](const std::string&, const std::string&, const ParamTable&, Slots& s, int&,
                    int&) { return play(4, s); };
  c.wellMnemonics = [](const ParamTable&, CheckTable&, Slots& s) { return play(5, s); };
  c.indexRange = [](const std::string&, const WellRange&, const std::string&, const ParamTable&,
                    const ParamTable&, Slots& s) { return play(6, s); };
  c.asciiSection = [](const std::string&, const std::string&, int, int, const ParamTable&,
                      Slots& s) { return play(7, s); };
  return c;
}

// Presses Escape before the after-check of one group and answers the cancel question.
class FakeWindow : public WindowOps {
 public:
  int escapeAfterGroup = 0;  // the n-th after-check (2 = group 2 ...), 0 = never
  bool answerYes = false;
  int questions = 0;
  std::vector<std::string> captions;
  std::vector<int> percents;
  int busyCalls = 0;
  bool busy = false;

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
    EXPECT_EQ(title, "Please Confirm!");
    EXPECT_EQ(text, "Do you want to cancel the certification in progress?");
    ++questions;
    return answerYes;
  }
  bool askOkCancel(const std::string&, const std::string&) override { return true; }
  void showCritical(const std::string&, const std::string&) override {}
  void processEvents() override {
    ++events;
    // Group 2 is the first after-check.
    if (events + 1 == escapeAfterGroup) runState().escapePressed = true;
  }
  void setBusyPointer(bool b) override {
    ++busyCalls;
    busy = b;
  }

 private:
  int events = 0;
};

Slots withRow(int row, const std::string& text) {
  Slots s;
  s[row] = text;
  return s;
}

struct DriverCase {
  const char* name = "";
  std::vector<std::pair<int, int>> results = {};  // group, result
  std::vector<std::pair<int, Slots>> slots = {};  // group, what it writes
  bool batch = false;
  int escapeAfterGroup = 0;
  bool answerYes = false;
  bool withDataSections = true;  // ~Curve and ~ASCII present
  int expectedStatus = RUN_COMPLETED;
  std::vector<int> expectedCalls = {};
  std::vector<std::pair<int, int>> recordedRows = {};  // group, row that must hold text
  std::vector<int> emptyGroups = {};                   // groups that must hold no result
  int expectedQuestions = 0;
  std::string expectedLog = {};  // command log must contain it ("" = empty)
};

class Certify2Driver : public ::testing::Test {
 protected:
  void SetUp() override {
    // One folder per test and process: ctest runs the tests of this suite side by side.
    const char* test = ::testing::UnitTest::GetInstance()->current_test_info()->name();
    folder_ = std::filesystem::temp_directory_path() /
              ("zorvik_certify2_" + std::string(test) + "_" + std::to_string(getpid()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    setProgramFolder(folder_.string());
    resetRunState();
    runState().window = nullptr;
  }
  void TearDown() override {
    runState().window = nullptr;
    setProgramFolder("");
    std::filesystem::remove_all(folder_);
  }
  std::string writeLas(bool withDataSections) {
    std::string text =
        "~Version\r\nVERS.   2.0 :\r\nWRAP.   NO :\r\n~Well\r\nSTRT.M 1 :\r\nSTOP.M 2 :\r\n";
    if (withDataSections) text += "~Curve\r\nDEPT.M :\r\n~A\r\n1\r\n2\r\n";
    std::string path = (folder_ / "driver.las").string();
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
  std::string commandLog() { return testing::readBytes((folder_ / "command.log").string()); }

  std::filesystem::path folder_;
};

TEST_F(Certify2Driver, RunsRecordsAndStopsByTheRules) {
  const std::string note = "Country Specific mnemonics: CDN set missing,  PROV, UWI, ";
  const std::vector<DriverCase> cases = {
      {.name = "all pass", .expectedCalls = {2, 3, 4, 5, 6, 7}, .emptyGroups = {2, 3, 4, 5, 6, 7}},
      {.name = "stop after group 2",
       .results = {{2, 1}},
       .slots = {{2, withRow(2, "VERS mnemonic missing. ")}},
       .expectedCalls = {2},
       .recordedRows = {{2, 2}},
       .emptyGroups = {3, 4, 5, 6, 7}},
      {.name = "stop after group 4",
       .results = {{4, 1}},
       .slots = {{4, withRow(1, "x")}},
       .expectedCalls = {2, 3, 4},
       .recordedRows = {{4, 1}},
       .emptyGroups = {5, 6, 7}},
      {.name = "country note alone keeps 6 and 7 running",
       .results = {{5, 1}, {6, 1}, {7, 1}},
       .slots = {{5, withRow(2, note)}, {6, withRow(2, "six")}, {7, withRow(3, "seven")}},
       .expectedCalls = {2, 3, 4, 5, 6, 7},
       .recordedRows = {{5, 2}, {6, 2}, {7, 3}}},
      {.name = "required mnemonics missing stop after 5",
       .results = {{5, 1}},
       .slots = {{5, withRow(1, "Missing required mnemonics are : COMP, ")}},
       .expectedCalls = {2, 3, 4, 5},
       .recordedRows = {{5, 1}},
       .emptyGroups = {6, 7}},
      {.name = "no ~Curve or ~ASCII: group 6 passes unrun",
       .withDataSections = false,
       .expectedCalls = {2, 3, 4, 5, 7},
       .emptyGroups = {6}},
      {.name = "group 6 with nothing to record",
       .results = {{6, 2}},
       .slots = {{6, withRow(1, "ignored")}},
       .expectedCalls = {2, 3, 4, 5, 6, 7},
       .emptyGroups = {6}},
      {.name = "escape answered yes cancels",
       .results = {{3, 1}},
       .slots = {{3, withRow(1, "x")}},
       .escapeAfterGroup = 3,
       .answerYes = true,
       .expectedStatus = RUN_STOPPED,
       .expectedCalls = {2, 3},
       .emptyGroups = {3, 4},
       .expectedQuestions = 1},
      {.name = "escape answered no drops that group's findings",
       .results = {{4, 1}},
       .slots = {{4, withRow(6, "No data")}},
       .escapeAfterGroup = 4,
       .expectedCalls = {2, 3, 4, 5, 7},
       .emptyGroups = {4, 6},
       .expectedQuestions = 1},
      {.name = "batch mode ignores escape",
       .results = {{3, 1}},
       .slots = {{3, withRow(2, "dup")}},
       .batch = true,
       .escapeAfterGroup = 3,
       .answerYes = true,
       .expectedCalls = {2, 3},
       .recordedRows = {{3, 2}},
       .emptyGroups = {4}},
      {.name = "a check's fault ends the run",
       .results = {{3, 0}},
       .slots = {{3, withRow(1, "partial")}},
       .expectedStatus = RUN_FAULT,
       .expectedCalls = {2, 3},
       .recordedRows = {{3, 1}},
       .emptyGroups = {4},
       .expectedLog = "Error: Error in aaCertify2:"},
      {.name = "a thrown fault is logged with its number",
       .results = {{4, kThrows}},
       .expectedStatus = RUN_FAULT,
       .expectedCalls = {2, 3, 4},
       .emptyGroups = {4},
       .expectedLog = "Error: VB Error in aaCertify2: Subscript out of range. Error #9"},
  };
  for (const DriverCase& c : cases) {
    SCOPED_TRACE(c.name);
    resetRunState();
    script = Script{};
    for (auto [group, result] : c.results) script.result[group] = result;
    for (const auto& [group, slots] : c.slots) script.slots[group] = slots;
    FakeWindow window;
    window.escapeAfterGroup = c.escapeAfterGroup;
    window.answerYes = c.answerYes;
    runState().window = &window;
    runState().batchMode = c.batch;
    runState().lasVersion = 2.0f;
    std::filesystem::remove(folder_ / "command.log");

    int status = aaCertify2With(writeLas(c.withDataSections), scriptedChecks());

    EXPECT_EQ(status, c.expectedStatus);
    EXPECT_EQ(script.called, c.expectedCalls);
    const CheckTable& table = runState().table2;
    for (auto [group, row] : c.recordedRows) {
      EXPECT_FALSE(table.at(row, COL_RESULT, group).empty()) << "group " << group << " row " << row;
    }
    for (int group : c.emptyGroups) {
      for (int row = 1; row <= 15; ++row) {
        EXPECT_EQ(table.at(row, COL_RESULT, group), "") << "group " << group << " row " << row;
      }
    }
    EXPECT_EQ(window.questions, c.expectedQuestions);
    EXPECT_FALSE(runState().escapePressed && c.expectedStatus != RUN_STOPPED);
    if (c.expectedLog.empty()) {
      EXPECT_EQ(commandLog(), "");
    } else {
      EXPECT_NE(commandLog().find(c.expectedLog), std::string::npos) << commandLog();
    }
    runState().window = nullptr;
  }
}

TEST_F(Certify2Driver, WindowShowsProgressAndBusyPointer) {
  script = Script{};
  FakeWindow window;
  runState().window = &window;
  runState().lasVersion = 1.2f;
  EXPECT_EQ(aaCertify2With(writeLas(true), scriptedChecks()), RUN_COMPLETED);
  ASSERT_EQ(window.captions.size(), 6u);
  EXPECT_EQ(window.captions[2], "Doing check 4 (Press ESC to cancel...)");
  EXPECT_EQ(window.percents, (std::vector<int>{29, 43, 57, 71, 86, 100}));
  EXPECT_FALSE(window.busy);
  EXPECT_EQ(window.busyCalls, 2);
}

}  // namespace
}  // namespace zorvik
