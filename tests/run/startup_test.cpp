#include "run/startup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "base/text.h"
#include "run/session.h"
#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::RunSandbox;

// The window start-up hands an empty command line to; none, as in a build without one.
WindowLauncher launcher = nullptr;

// well.las holds a version that start-up accepts but no driver takes, so its batch run ends the
// same way whatever the drivers do; good.las is certified.
std::string lasFile(const char* version) {
  return std::string("~VERSION\r\n VERS. ") + version +
         " : V\r\n WRAP. NO : W\r\n~A DEPT\r\n1.0\r\n";
}

// Starts up with the program's name and `words` as the process's arguments.
int runStartUpWith(std::vector<std::string> words) {
  words.insert(words.begin(), "zorvik");
  std::vector<char*> argv;
  for (std::string& w : words) argv.push_back(w.data());
  argv.push_back(nullptr);
  return startUp(static_cast<int>(words.size()), argv.data(), launcher);
}

// The command line as a shell without quoting would split it: at every blank.
int runStartUp(const std::string& commandLine) {
  std::vector<std::string> words = split(trim(commandLine), " ");
  if (words.size() == 1 && words[0].empty()) words.clear();
  return runStartUpWith(words);
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
      // The option is a word of its own, also when another word follows it.
      {kWell, "{d}/well.las {d}/out.log /W {d}/more", kRefused, 1},
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
    // Batch runs leave the settings store alone.
    if (row.wrap >= 0) {
      EXPECT_EQ(sandbox.settingsText(), stored);
    }
  }
}

// Whole batch runs whose report shows how start-up read its words: the arguments are the words as
// the process received them (blanks and all), "/W" counts only as a word of its own, and the
// fallback log is named from the LAS file's own name, never cut in a folder name.
TEST(StartUp, ArgumentsAndDerivedNamesDecideTheReport) {
  const std::string data = std::string(ZORVIK_TEST_DATA);
  struct Row {
    const char* golden;  // under tests/data/run
    const char* las;     // where the LAS file goes in the scratch folder ({d})
    const char* source;  // the fixture copied there
    std::vector<std::string> words;
    const char* report;  // where the report must be written
  };
  const Row rows[] = {
      {"blank_in_name.report",
       "{d}/well copy.las",
       "cert2/v2_passing.las",
       {"{d}/well copy.las", "{d}/out.log"},
       "{d}/out.log"},
      {"folder_with_point.report",
       "{d}/proj.v2/well.las",
       "cert2/v2_passing.las",
       {"{d}/proj.v2/well.las", "{d}/no/such/out.log"},
       "{d}/proj.v2/well.log"},
      {"wrap_option.report",
       "{d}/long.las",
       "cert2/g7_line_too_long.las",
       {"{d}/long.las", "{d}/out.log", "/w"},
       "{d}/out.log"},
      {"wrap_option_not_a_word.report",
       "{d}/long.las",
       "cert2/g7_line_too_long.las",
       {"{d}/long.las", "{d}/out.log", "/wide"},
       "{d}/out.log"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.golden);
    RunSandbox sandbox;
    const std::string d = sandbox.dir().path();
    auto inScratch = [&](const std::string& name) { return replaceAll(name, "{d}", d); };
    const std::filesystem::path las = inScratch(row.las);
    std::filesystem::create_directories(las.parent_path());
    std::filesystem::copy_file(data + "/" + row.source, las);
    // An unrelated file where cutting the whole path at its first point would put the log.
    const std::string unrelated = sandbox.dir().write("proj.log", "unrelated");
    sandbox.writeSettings("[Startup]\nlasFile=" + las.string() + "\n");
    std::vector<std::string> words;
    for (const std::string& word : row.words) words.push_back(inScratch(word));
    EXPECT_EQ(runStartUpWith(words), 0);
    EXPECT_EQ(testing::readBytes(unrelated), "unrelated");
    EXPECT_EQ(testing::compareWithGolden(
                  testing::pinnedReport(testing::readBytes(inScratch(row.report)), d),
                  data + "/run/" + row.golden),
              "");
  }
}

int launchedWith = -1;

TEST(StartUp, EmptyCommandLineOpensTheWindowAndLogsNothing) {
  RunSandbox sandbox;
  launcher = [](int argc, char**, const Session&, const std::string&) {
    return launchedWith = argc;
  };
  EXPECT_EQ(runStartUp(""), 0);
  launcher = nullptr;
  EXPECT_EQ(launchedWith, 1);
  EXPECT_EQ(sandbox.commandLog(), "");
}

}  // namespace
}  // namespace zorvik
