// The 1.2/2.0 driver with scripted checks and a fake window: the paths real files rarely take
// (the plain stop after a failing group is pinned by the whole-report goldens).
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <vector>

#include "cert2/certify2.h"
#include "checks/run_context.h"
#include "support/fake_window.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

constexpr auto kFailed = CheckStatus::Failed;
constexpr std::nullopt_t kThrows = std::nullopt;  // scripted result: the check throws out_of_range

struct Play {  // what one scripted group returns, with text in one row
  int group;
  std::optional<CheckStatus> result;
  int row = 1;
};
std::vector<Play> plays;
std::vector<int> called;

CheckStatus play(int group, Slots& slots) {
  called.push_back(group);
  slots = Slots{};  // every check decides all of its rows
  for (const Play& p : plays) {
    if (p.group != group) continue;
    if (!p.result) throw std::out_of_range("scripted");
    slots[p.row] = RowResult::saying("x");
    return *p.result;
  }
  return CheckStatus::Passed;
}

Certify2Checks scriptedChecks() {
  Certify2Checks c{};
  c.versionSection = [](RunContext&, const ParamTable&, std::string& wrap, Slots& s) {
    wrap = "NO";
    return play(2, s);
  };
  c.sectionStructure = [](RunContext&, Slots& s) { return play(3, s); };
  c.lineSyntax = [](RunContext&, const std::string&, const ParamTable&, Slots& s, int&, int&) {
    return play(4, s);
  };
  c.wellMnemonics = [](const ParamTable&, CheckTable&, Slots& s) { return play(5, s); };
  c.indexRange = [](RunContext&, const WellRange&, const std::string&, const ParamTable&,
                    const ParamTable&, Slots& s) { return play(6, s); };
  c.asciiSection = [](RunContext&, const std::string&, int, int, const ParamTable&, Slots& s) {
    return play(7, s);
  };
  return c;
}

const char* endOf(RunStatus status) {
  switch (status) {
    case RunStatus::Completed:
      return "completed";
    case RunStatus::Fault:
      return "fault";
    case RunStatus::Stopped:
      return "stopped";
  }
  return "?";
}

// Runs the scripted checks on a small file; gives the run in one line: the groups called, the
// group.row results holding text (and notes), how it ended and the command log messages ("2 3 |
// 3.1 | fault Error: ...").
std::string runScript(const testing::RunSandbox& sandbox, RunContext& run, bool dataSections) {
  std::string text = "~Version\r\nVERS. 2.0 :\r\nWRAP. NO :\r\n~Well\r\nSTRT.M 1 :\r\n";
  if (dataSections) text += "~Curve\r\nDEPT.M :\r\n~A\r\n1\r\n2\r\n";
  called.clear();
  run.lasFile = sandbox.dir().write("driver.las", text);
  const RunStatus status = aaCertify2With(run, scriptedChecks());
  std::string outcome;
  for (int group : called) outcome += std::to_string(group) + " ";
  outcome += "|";
  for (int group = 2; group <= 7; ++group) {
    for (int row = 1; row <= 15; ++row) {
      const std::string cell = " " + std::to_string(group) + "." + std::to_string(row);
      if (!run.table2.result(row, group).passed()) outcome += cell;
      if (!run.table2.at(row, COL_NOTE, group).empty()) outcome += cell + "(note)";
    }
  }
  outcome +=
      " | " + std::string(endOf(status)) + " " + testing::commandLogMessages(sandbox.commandLog());
  return outcome.substr(0, outcome.find_last_not_of(" \n") + 1);
}

TEST(Certify2Driver, RunsRecordsAndStopsByTheRules) {
  struct Row {
    const char* name;
    std::vector<Play> plays = {};
    std::string outcome = "";
    int escapeAt = 0;  // Escape pressed before this group's after-check (0 = never)
    bool answerYes = false;
    bool batch = false;
    bool dataSections = true;  // ~Curve and ~ASCII present
  };
  const Row rows[] = {
      {"the country note alone keeps 6 and 7 running",
       {{5, kFailed, 2}, {6, kFailed, 2}, {7, kFailed, 3}},
       "2 3 4 5 6 7 | 5.2(note) 6.2 7.3 | completed"},
      {.name = "no ~Curve or ~ASCII: group 6 passes unrun",
       .outcome = "2 3 4 5 7 | | completed",
       .dataSections = false},
      {"group 6 with nothing to record", {{6, CheckStatus::Nothing}}, "2 3 4 5 6 7 | | completed"},
      {"Escape answered Yes cancels", {{3, kFailed}}, "2 3 | | stopped", 3, true},
      {"Escape answered No drops that group's findings",
       {{4, kFailed, 6}},
       "2 3 4 5 7 | | completed",
       4},
      {"batch mode ignores Escape", {{3, kFailed, 2}}, "2 3 | 3.2 | completed", 3, true, true},
      {"a check's fault ends the run",
       {{3, CheckStatus::Fault}},
       "2 3 | 3.1 | fault Error: Error in aaCertify2:"},
      {"a thrown fault is logged with its number",
       {{4, kThrows}},
       "2 3 4 | | fault Error: VB Error in aaCertify2: Subscript out of range. Error #9"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    testing::RunSandbox sandbox;
    plays = row.plays;
    testing::FakeWindow window;
    window.yesNoAnswer = row.answerYes;
    int events = 0;  // the first after-check is group 2's
    window.onEvents = [&](const std::string&) {
      if (++events + 1 == row.escapeAt) window.cancel = true;
    };
    RunContext run;
    run.observer = row.batch ? nullptr : &window;  // nobody watches a batch run
    run.dialect.version = 2.0f;
    EXPECT_EQ(runScript(sandbox, run, row.dataSections), row.outcome);
    const std::string question =
        "Please Confirm!|Do you want to cancel the certification in progress?";
    const int questions = row.escapeAt != 0 && !row.batch ? 1 : 0;
    EXPECT_EQ(window.questions, std::vector<std::string>(questions, question));
    EXPECT_FALSE(window.cancel && !row.outcome.ends_with("stopped"));
  }
}

}  // namespace
}  // namespace zorvik
