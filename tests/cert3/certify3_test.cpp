#include "cert3/certify3.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "checks/catalogue.h"
#include "checks/run_context.h"
#include "support/batch_run.h"
#include "support/fake_window.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

const std::string EXAMPLE = std::string(ZORVIK_EXAMPLES) + "/example_30.las";

// One driver run: a sandboxed program folder and settings store, and a recording window.
struct DriverRun {
  DriverRun() {
    context.dialect.version = 3.0f;
    context.observer = &window;
    layOutCatalogue(context);
  }

  // Certifies `file` in this run's context.
  RunStatus certify(const std::string& file) {
    context.lasFile = file;
    return aaCertify3(context);
  }

  testing::RunSandbox sandbox;
  testing::FakeWindow window;
  RunContext context;
};

// "done" when every row of the group is marked as run, "untouched" when the run left it empty.
std::string groupState(const DriverRun& run, int group) {
  bool done = true, untouched = true;
  for (int r = 1; r <= 15; ++r) {
    const std::string& mark = run.context.table3.at(r, COL_MARK, group);
    done = done && mark == " ";
    untouched = untouched && mark.empty() && run.context.table3.result(r, group).passed();
  }
  return done ? "done" : untouched ? "untouched" : "partly";
}

// A tilde inside a value: the title line pass records it apart, and the run goes on to the end.
TEST(Certify3, RunsEveryGroupReportingProgress) {
  DriverRun run;
  std::string text = testing::readBytes(EXAMPLE);
  const std::size_t at = text.find("Example Field");
  ASSERT_NE(at, std::string::npos);
  text[at + 7] = '~';
  EXPECT_EQ(run.certify(run.sandbox.dir().write("tilde.las", text)), RunStatus::Completed);
  EXPECT_EQ(run.context.table3.result(7, 0).text(),
            "Tilde not first non-space character of the line\r\n"
            "FLD.       Example~Field : Field\r\n");
  EXPECT_FALSE(anyFailure(run.context.table3));
  for (int g : {0, 2, 3, 4, 5, 6, 7, 8, 9}) EXPECT_EQ(groupState(run, g), "done") << "group " << g;
  EXPECT_EQ(run.window.percents, (std::vector<int>{0, 22, 33, 44, 56, 67, 78, 89, 100}));
  EXPECT_EQ(run.window.captions.front(), "Doing check 0 (Press ESC to cancel...)");
  EXPECT_EQ(run.window.pointer, (std::vector<bool>{true, false}));
  EXPECT_EQ(run.sandbox.commandLog(), "");
}

TEST(Certify3, FileLevelFindingsSurviveAndStopAfterTheVersionChecks) {
  DriverRun run;
  run.context.table3.result(6, 1) = RowResult::saying("not a .las name");
  run.context.table3.at(6, COL_MARK, 1) = " ";
  run.context.table3.result(3, 4) = RowResult::saying("left from an earlier run");
  EXPECT_EQ(run.certify(EXAMPLE), RunStatus::Completed);
  EXPECT_EQ(run.context.table3.result(6, 1).text(), "not a .las name");
  for (int g : {0, 2}) EXPECT_EQ(groupState(run, g), "done") << "group " << g;
  for (int g = 3; g <= 9; ++g) EXPECT_EQ(groupState(run, g), "untouched") << "group " << g;
}

TEST(Certify3, EscapeAndTheCancelQuestion) {
  struct Row {
    const char* what;
    bool answerYes, withWindow;
    RunStatus result;
  };
  const Row rows[] = {
      {"answered Yes", true, true, RunStatus::Stopped},
      {"answered No", false, true, RunStatus::Completed},
      {"no window to ask", true, false, RunStatus::Completed},
  };
  const std::string question =
      "Please Confirm!|Do you want to cancel the certification in progress?";
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    DriverRun run;
    run.window.yesNoAnswer = row.answerYes;
    if (!row.withWindow) run.context.observer = nullptr;
    // Escape pressed once, while group 5 is shown.
    run.window.onEvents = [&window = run.window,
                           pressed = false](const std::string& caption) mutable {
      if (pressed || caption != "Doing check 5 (Press ESC to cancel...)") return;
      pressed = window.cancel = true;
    };
    EXPECT_EQ(run.certify(EXAMPLE), row.result);
    EXPECT_EQ(run.window.questions, std::vector<std::string>(row.withWindow ? 1 : 0, question));
    EXPECT_EQ(groupState(run, 9), row.result == RunStatus::Completed ? "done" : "untouched");
    EXPECT_EQ(run.window.cancel, row.result == RunStatus::Stopped);
    EXPECT_EQ(run.sandbox.commandLog(), "");  // a cancel is no fault
    if (row.result == RunStatus::Stopped) {
      EXPECT_EQ(groupState(run, 5), "done");
      EXPECT_EQ(groupState(run, 6), "untouched");
    }
  }
}

TEST(Certify3, UnreadableFileEndsThroughTheTrap) {
  DriverRun run;
  EXPECT_EQ(run.certify(run.sandbox.dir().file("missing.las")), RunStatus::Fault);
  EXPECT_NE(run.sandbox.commandLog().find("Error: VB Error in aaCertify3: . Error #0\r\n"),
            std::string::npos);
  EXPECT_EQ(groupState(run, 0), "done");
  EXPECT_EQ(groupState(run, 2), "untouched");
  EXPECT_EQ(run.window.pointer, (std::vector<bool>{true, false}));
}

}  // namespace
}  // namespace zorvik
