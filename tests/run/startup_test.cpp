#include "run/startup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "las/text.h"
#include "run/run_state.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::commandLogMessages;
using testing::RunSandbox;

// A file that start-up accepts but whose version no driver takes: its batch run ends the same
// way whatever the version drivers do.
const char* const kVersion25 =
    "~VERSION\r\n VERS.   2.5 : VERSION\r\n WRAP.   NO : ONE LINE\r\n~A DEPT\r\n1.0\r\n";

int runStartUp(const std::string& commandLine) {
  std::vector<std::string> words{"zorvik"};
  if (!commandLine.empty()) {
    // The process gets its words already split; start-up joins them again with blanks.
    std::vector<std::string> parts = split(commandLine, " ");
    words.insert(words.end(), parts.begin(), parts.end());
  }
  std::vector<char*> argv;
  for (std::string& w : words) argv.push_back(w.data());
  argv.push_back(nullptr);
  return startUp(static_cast<int>(words.size()), argv.data());
}

struct StartUpCase {
  const char* name;
  const char* remembered;  // lasFile in the settings store; nullptr for a fresh store
  const char* commandLine;
  const char* messages;  // command log messages, one per line
};

void PrintTo(const StartUpCase& row, std::ostream* out) {
  *out << row.name;
}

// {d} stands for the scratch folder; well.las exists there and holds kVersion25.
const StartUpCase kStartUpCases[] = {
    {"LasFileMissing", "{d}/well.las", "{d}/nope.las {d}/out.log",
     "Command line :{d}/nope.las {d}/out.log\n"
     "Error:LAS file name, {d}/nope.las, is not a valid file name or file is not accessible.\n"
     "Error: VB Error in main: . Error #0\n"},
    {"FreshSettingsRefuseEveryRun", nullptr, "{d}/well.las {d}/out.log",
     "Command line :{d}/well.las {d}/out.log\n"
     "Error:Supplied LAS file name, {d}/well.las, must have a .las extension.\n"
     "Error: VB Error in main: . Error #0\n"},
    {"RememberedLasNotAtEnd", "{d}/a.las.bak", "{d}/well.las {d}/out.log",
     "Command line :{d}/well.las {d}/out.log\n"
     "Error:Supplied LAS file name, {d}/well.las, must have a .las extension.\n"
     "Error: VB Error in main: . Error #0\n"},
    {"LogFileNotWritable", "{d}/well.las", "{d}/well.las {d}/no/such/out.log",
     "Command line :{d}/well.las {d}/no/such/out.log\n"
     "Error:Log file name, {d}/no/such/out.log is not a valid file name or could not be opened "
     "where indicated. Log file was written as LAS filename with .log extension to LAS file "
     "path.\n"
     "The LAS Version was not 1.2, 2.0 or 3.0. It was : 2.5. No further processing will be done.\n"
     "A processing error occured within the program.\n"},
    {"SameNames", "{d}/well.las", "{d}/well.las {d}/well.las",
     "Command line :{d}/well.las {d}/well.las\n"
     "Error: LAS file name and Log file are the same. Log file must be different. No processing "
     "is possible\n"
     "Error: VB Error in main: . Error #0\n"},
    {"SameNamesInOtherCase", "{d}/well.las", "{d}/well.las {d}/WELL.LAS",
     "Command line :{d}/well.las {d}/WELL.LAS\n"
     "Error: LAS file name and Log file are the same. Log file must be different. No processing "
     "is possible\n"
     "Error: VB Error in main: . Error #0\n"},
    {"SameFileByAnotherName", "{d}/well.las", "{d}/well.las {d}/./well.las",
     "Command line :{d}/well.las {d}/./well.las\n"
     "Error: LAS file name and Log file are the same. Log file must be different. No processing "
     "is possible\n"
     "Error: VB Error in main: . Error #0\n"},
    {"OneWord", "{d}/well.las", "{d}/well.las",
     "Command line :{d}/well.las\n"
     "Error: VB Error in main: Subscript out of range. Error #9\n"},
    {"QuotesRemoved", "{d}/well.las", "\"{d}/well.las\" \"{d}/out.log\" /W",
     "Command line :\"{d}/well.las\" \"{d}/out.log\" /W\n"
     "The LAS Version was not 1.2, 2.0 or 3.0. It was : 2.5. No further processing will be done.\n"
     "A processing error occured within the program.\n"},
};

class StartUpOutcome : public ::testing::TestWithParam<StartUpCase> {};

TEST_P(StartUpOutcome, WritesExactlyItsCommandLogEntries) {
  const StartUpCase& row = GetParam();
  RunSandbox sandbox;
  const std::string d = sandbox.dir().path();
  std::string las = sandbox.dir().write("well.las", kVersion25);
  if (row.remembered != nullptr)
    sandbox.writeSettings("[Startup]\nlasFile=" + replaceAll(row.remembered, "{d}", d) + "\n");

  EXPECT_EQ(runStartUp(replaceAll(row.commandLine, "{d}", d)), 0);

  EXPECT_EQ(commandLogMessages(sandbox.commandLog()), replaceAll(row.messages, "{d}", d));
  EXPECT_TRUE(std::filesystem::exists(las)) << "start-up must never damage the LAS file";
}

INSTANTIATE_TEST_SUITE_P(Rows, StartUpOutcome, ::testing::ValuesIn(kStartUpCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(StartUp, EntryHeadersCarryDateNamesAndStatusLine) {
  RunSandbox sandbox;
  const std::string d = sandbox.dir().path();
  sandbox.dir().write("well.las", kVersion25);
  sandbox.writeSettings("[Startup]\nlasFile=" + d + "/old.las\n");
  runStartUp(d + "/well.las " + d + "/no/such/out.log");
  // The first entry still names the remembered file; later ones the fallback log file.
  std::vector<std::string> lines = split(sandbox.commandLog(), "\r\n");
  ASSERT_GE(lines.size(), 5u);
  std::vector<std::string> first = split(lines[0], "\t"), later = split(lines[4], "\t");
  ASSERT_EQ(first.size(), 4u);
  EXPECT_EQ(first[0].size(), 20u);  // "mmm-dd-yyyy hh:mm:ss"
  EXPECT_EQ(first[0][3], '-');
  EXPECT_EQ(first[1] + "|" + first[2] + "|" + first[3], d + "/old.las||Ready");
  ASSERT_EQ(later.size(), 4u);
  EXPECT_EQ(later[1] + "|" + later[2], d + "/well.las|" + d + "/well.log");
}

TEST(StartUp, WrapOptionFoundAnywhereAfterTheFirstWord) {
  struct Row {
    const char* tail;
    bool wrap;
  };
  const Row rows[] = {{" {d}/out.log /w", true},
                      {" {d}/out.log", false},
                      {" {d}/out.log x /W", true},
                      {" {d}/out.log/W", false},
                      // A log folder starting with "w" is not the option.
                      {" /wzorvik-no-such-folder/out.log", false},
                      {" /wzorvik-no-such-folder/out.log /W", true}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.tail);
    RunSandbox sandbox;
    const std::string d = sandbox.dir().path();
    sandbox.dir().write("well.las", kVersion25);
    // The remembered wrap option never counts in batch mode, and the store is left alone.
    const std::string stored = "[Startup]\nlasFile=" + d + "/well.las\ndoWrap=-1\n";
    sandbox.writeSettings(stored);
    runStartUp(d + "/well.las" + replaceAll(row.tail, "{d}", d));
    EXPECT_EQ(runState().doWrap, row.wrap);
    EXPECT_EQ(sandbox.settingsText(), stored);
  }
}

int launchedWith = -1;
int fakeWindow(int argc, char**) {
  launchedWith = argc;
  return 3;
}

TEST(StartUp, EmptyCommandLineOpensTheWindowAndLogsNothing) {
  RunSandbox sandbox;
  launchedWith = -1;
  setWindowLauncher(&fakeWindow);
  EXPECT_EQ(runStartUp(""), 0);
  setWindowLauncher(nullptr);
  EXPECT_EQ(launchedWith, 1);
  EXPECT_FALSE(runState().batchMode);
  EXPECT_EQ(sandbox.commandLog(), "");
  EXPECT_EQ(runState().helpFile, sandbox.dir().file("bin") + "/zorvik.hlp");
}

}  // namespace
}  // namespace zorvik
