#include "run/startup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "las/text.h"
#include "run/run_state.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::RunSandbox;

// well.las holds a version that start-up accepts but no driver takes, so its batch run ends the
// same way whatever the drivers do; good.las is certified.
std::string lasFile(const char* version) {
  return std::string("~VERSION\r\n VERS. ") + version +
         " : V\r\n WRAP. NO : W\r\n~A DEPT\r\n1.0\r\n";
}

int runStartUp(const std::string& commandLine) {
  // The process gets its words already split; start-up joins them again with blanks.
  std::vector<std::string> words = split(trim("zorvik " + commandLine), " ");
  std::vector<char*> argv;
  for (std::string& w : words) argv.push_back(w.data());
  argv.push_back(nullptr);
  return startUp(static_cast<int>(words.size()), argv.data());
}

TEST(StartUp, WritesExactlyItsCommandLogEntries) {
  const std::string kMainFault = "Error: VB Error in main: . Error #0\n";
  const std::string kSameNames =
      "Error: LAS file name and Log file are the same. Log file must be different. No processing "
      "is possible\n" +
      kMainFault;
  const std::string kNotLas =
      "Error:Supplied LAS file name, {d}/well.las, must have a .las extension.\n" + kMainFault;
  const std::string kRefused =
      "The LAS Version was not 1.2, 2.0 or 3.0. It was : 2.5. No further processing will be done."
      "\nA processing error occured within the program.\n";
  const char* const kWell = "{d}/well.las";
  struct Row {
    const char* remembered;  // lasFile in the settings store; nullptr for a fresh store
    const char* commandLine;
    std::string messages;  // command log messages after the "Command line :" one
    int wrap = -1;         // the wrap option the run ends with; -1 when not decided
  };
  // {d} stands for the scratch folder. A remembered name comes with a remembered wrap option,
  // which never counts in batch mode.
  const Row rows[] = {
      {kWell, "{d}/nope.las {d}/out.log",
       "Error:LAS file name, {d}/nope.las, is not a valid file name or file is not accessible.\n" +
           kMainFault},
      {nullptr, "{d}/well.las {d}/out.log", kNotLas},          // fresh settings refuse every run
      {"{d}/a.las.bak", "{d}/well.las {d}/out.log", kNotLas},  // ".las" not at the end
      {kWell, "{d}/well.las {d}/no/such/out.log",
       "Error:Log file name, {d}/no/such/out.log is not a valid file name or could not be opened "
       "where indicated. Log file was written as LAS filename with .log extension to LAS file "
       "path.\n" +
           kRefused,
       0},
      {kWell, "{d}/well.las {d}/WELL.LAS", kSameNames},
      {kWell, "{d}/well.las {d}/./well.las", kSameNames},
      {kWell, "{d}/well.las", "Error: VB Error in main: Subscript out of range. Error #9\n"},
      // Quotes go; the option counts anywhere after the first word, in any letter case.
      {kWell, "\"{d}/well.las\" \"{d}/out.log\" x /w", kRefused, 1},
      // A folder such as "/work" must not read as the option.
      {kWell, "{d}/well.las {d}/out.log /wfolder", kRefused, 0},
      // A certified file, failing or not, adds nothing to the command log.
      {"{d}/good.las", "{d}/good.las {d}/out.log", "", 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.commandLine);
    RunSandbox sandbox;
    const std::string d = sandbox.dir().path();
    std::string las = sandbox.dir().write("well.las", lasFile("2.5"));
    sandbox.dir().write("good.las", lasFile("2.0"));
    const std::string remembered = row.remembered ? replaceAll(row.remembered, "{d}", d) : "";
    const std::string stored = "[Startup]\nlasFile=" + remembered + "\ndoWrap=-1\n";
    if (row.remembered != nullptr) sandbox.writeSettings(stored);
    const std::string commandLine = replaceAll(row.commandLine, "{d}", d);
    EXPECT_EQ(runStartUp(commandLine), 0);
    EXPECT_EQ(testing::commandLogMessages(sandbox.commandLog()),
              "Command line :" + commandLine + "\n" + replaceAll(row.messages, "{d}", d));
    EXPECT_TRUE(std::filesystem::exists(las)) << "start-up must never damage the LAS file";
    // Each entry opens with "mmm-dd-yyyy hh:mm:ss", the LAS and log file names and the status
    // line; the first still names the remembered file.
    const std::string header = sandbox.commandLog().substr(0, sandbox.commandLog().find("\r\n"));
    EXPECT_EQ(header.substr(3, 1) + header.substr(20), "-\t" + remembered + "\t\tReady");
    if (row.wrap >= 0) {
      EXPECT_EQ(runState().doWrap, row.wrap == 1);
      EXPECT_EQ(sandbox.settingsText(), stored);
    }
  }
}

int launchedWith = -1;

TEST(StartUp, EmptyCommandLineOpensTheWindowAndLogsNothing) {
  RunSandbox sandbox;
  setWindowLauncher([](int argc, char**) { return launchedWith = argc; });
  EXPECT_EQ(runStartUp(""), 0);
  setWindowLauncher(nullptr);
  EXPECT_EQ(launchedWith, 1);
  EXPECT_EQ(sandbox.commandLog(), "");
}

}  // namespace
}  // namespace zorvik
