// What the program writes, under faults and concurrency: the log file test opens nothing, the
// report never replaces a good file with a broken one, command-log entries stay whole, and
// rewrites of the LAS file in place are taken in turn or refused with a command-log entry.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>

#include "base/command_log.h"
#include "base/file_helpers.h"
#include "base/file_writer.h"
#include "base/text.h"
#include "checks/report.h"
#include "checks/run_context.h"
#include "support/batch_run.h"
#include "support/failing_writes.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

namespace fs = std::filesystem;
using testing::FailingWrites;
using testing::namesIn;
using testing::ProgramSandbox;
using testing::readBytes;

TEST(LogFileWritable, LooksWithoutOpeningAnything) {
  testing::ScratchDir dir;
  dir.write("kept.log", "old");
  ::mkfifo(dir.file("pipe.log").c_str(), 0644);
  fs::create_directory(dir.file("folder.log"));
  fs::create_symlink("kept.log", dir.file("link.log"));
  fs::create_symlink("absent.log", dir.file("dangling.log"));
  fs::create_symlink("pipe.log", dir.file("pipe-link.log"));
  struct Row {
    std::string name;
    bool writable;
  };
  const Row rows[] = {
      {dir.file("new.log"), true},
      {dir.file("kept.log"), true},
      {dir.file("link.log"), true},
      {dir.file("dangling.log"), true},
      {dir.file("pipe.log"), false},
      {dir.file("pipe-link.log"), false},
      {dir.file("folder.log"), false},
      {dir.file("missing/new.log"), false},
      {dir.file(".hidden.log"), false},
      {"/dev/null", false},
      {"", false},
  };
  for (const Row& row : rows) EXPECT_EQ(logFileWritable(row.name), row.writable) << row.name;
  EXPECT_EQ(readBytes(dir.file("kept.log")), "old");
  EXPECT_FALSE(fs::exists(dir.file("new.log")));
  EXPECT_FALSE(fs::exists(dir.file("absent.log")));
}

TEST(Report, AFailedWriteKeepsThePreviousLogFileAndSaysWhy) {
  testing::RunSandbox sandbox;
  RunContext run;
  run.lasFile = sandbox.dir().file("a.las");
  run.logFile = sandbox.dir().write("out.log", "previous report\r\n");
  FailingWrites full(".zorvik-", false);
  RunStatus status = RunStatus::Completed;
  {
    ScopedFileSystemCalls installed(full);
    status = writeLogFile(run, run.logFile, "", "");
  }
  EXPECT_EQ(status, RunStatus::Fault);
  EXPECT_EQ(readBytes(run.logFile), "previous report\r\n");
  EXPECT_EQ(testing::commandLogMessages(sandbox.commandLog()),
            "Error: Log file " + run.logFile +
                " could not be written: writing failed: No space left on device.\n");
  EXPECT_EQ(writeLogFile(run, run.logFile, "", ""), RunStatus::Completed);
  EXPECT_TRUE(readBytes(run.logFile).starts_with("LAS Certification Result for: "));
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines = split(text, "\r\n");
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

std::size_t tabsIn(const std::string& line) {
  return static_cast<std::size_t>(std::count(line.begin(), line.end(), '\t'));
}

TEST(CommandLog, EntriesAreCutToOneAppendAndNeverGluedToABrokenOne) {
  testing::RunSandbox sandbox;
  const CommandLogHeader header{"", "", "Ready"};
  const std::string longMessage = "x" + std::string(COMMAND_LOG_ENTRY_CAP, 'y') + "z";
  writeCommandLog(header, longMessage);
  FailingWrites fullOnce("command.log", true);
  {
    ScopedFileSystemCalls installed(fullOnce);
    writeCommandLog(header, "broken by a full disk");
  }
  writeCommandLog(header, "whole");

  const std::string log = sandbox.commandLog();
  std::vector<std::string> lines = linesOf(log);
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(tabsIn(lines[0]), 3u);
  EXPECT_TRUE(lines[1].starts_with("xyyy"));
  EXPECT_TRUE(lines[1].ends_with("y [entry cut: too long]"));
  EXPECT_EQ(lines[0].size() + lines[1].size() + 4, COMMAND_LOG_ENTRY_CAP);
  // Half of an entry, then the next one on lines of its own.
  EXPECT_EQ(tabsIn(lines[2]), 3u);
  EXPECT_EQ(tabsIn(lines[3]), 3u);
  EXPECT_EQ(lines[4], "whole");
  EXPECT_TRUE(log.ends_with("\r\nwhole\r\n"));
}

TEST(CommandLog, ConcurrentBatchRunsLeaveEveryEntryWhole) {
  ProgramSandbox sandbox;
  constexpr int kRuns = 32;
  std::vector<pid_t> runs;
  for (int i = 0; i < kRuns; ++i) {
    // Words after the log file name are ignored, but the command-line entry carries them all:
    // every second run is too long for one entry and is cut.
    std::string padding(i % 2 == 0 ? 3000 : 9000, 'p');
    runs.push_back(sandbox.start({sandbox.work("missing" + std::to_string(i) + ".las"),
                                  sandbox.work("out.log"), padding, "END" + std::to_string(i)}));
  }
  for (pid_t run : runs) EXPECT_EQ(ProgramSandbox::wait(run), 0);

  std::vector<std::string> lines = linesOf(sandbox.commandLog());
  ASSERT_EQ(lines.size(), 3u * 2 * kRuns);
  std::set<std::string> ended;
  int cut = 0;
  for (std::size_t i = 0; i < lines.size(); i += 2) {
    SCOPED_TRACE(i);
    EXPECT_EQ(tabsIn(lines[i]), 3u);
    const std::string& message = lines[i + 1];
    if (message.starts_with("Command line :")) {
      if (message.ends_with(" [entry cut: too long]")) {
        ++cut;
      } else {
        ended.insert(message.substr(message.rfind(' ') + 1));
      }
    } else {
      EXPECT_TRUE(message == "Error: VB Error in main: . Error #0" ||
                  (message.starts_with("Error:LAS file name, ") &&
                   message.ends_with(".las, is not a valid file name or file is not accessible.")))
          << message;
    }
  }
  EXPECT_EQ(cut, kRuns / 2);
  EXPECT_EQ(ended.size(), static_cast<std::size_t>(kRuns / 2));
}

// A 2.0 file written in real time: STOP holds the null value; the data is long enough that a
// rewrite takes a while.
std::string realTimeLas(int rows) {
  std::string text = readBytes(std::string(ZORVIK_TEST_DATA) + "/cert2/g6_null_stop_repaired.las");
  text = text.substr(0, text.find("~ASCII\r\n") + 8);
  for (int i = 0; i < rows; ++i)
    text += formatFixed(1200.0 + 0.25 * i) + "  45.10   2.450   0.210   262.5   216.0\r\n";
  return text;
}

std::size_t countOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

TEST(NullStopRepair, TwoRunsOnOneFileRepairItOnceAndBothReport) {
  ProgramSandbox sandbox;
  const std::string las = sandbox.work("live.las");
  const std::string original = realTimeLas(40000);
  std::ofstream(las, std::ios::binary) << original;
  pid_t first = sandbox.start({las, sandbox.work("first.log")});
  pid_t second = sandbox.start({las, sandbox.work("second.log")});
  EXPECT_EQ(ProgramSandbox::wait(first), 0);
  EXPECT_EQ(ProgramSandbox::wait(second), 0);

  const std::string stop = formatFixed(1200.0 + 0.25 * 39999);
  const std::string messages = testing::commandLogMessages(sandbox.commandLog());
  EXPECT_EQ(countOf(messages, "LAS file " + las + " rewritten: STOP value -999.25 replaced by " +
                                  stop + ".\n"),
            1u);
  EXPECT_EQ(countOf(messages, "Error"), 0u) << messages;
  const std::string now = readBytes(las);
  EXPECT_NE(now.find(" STOP.M         " + stop + " "), std::string::npos);
  EXPECT_TRUE(now.substr(now.find("~ASCII")) == original.substr(original.find("~ASCII")));

  const std::string firstReport = readBytes(sandbox.work("first.log"));
  const std::string secondReport = readBytes(sandbox.work("second.log"));
  EXPECT_TRUE(firstReport.starts_with("LAS Certification Result for: " + las));
  EXPECT_EQ(firstReport.substr(firstReport.find("Result:")),
            secondReport.substr(secondReport.find("Result:")));
  EXPECT_EQ(namesIn(sandbox.work("")),
            (std::vector<std::string>{"first.log", "live.las", "second.log"}));
}

TEST(BatchRun, WritesThroughLinksAndRefusesWhatItMustNotReplace) {
  struct Row {
    const char* name;
    const char* logName;
    std::function<void(const ProgramSandbox&, const std::string& las)> prepare;
    std::string messages;  // after the command-line entry; <las> and <work> stand for names
    const char* reportIn;  // file of the work folder holding the report, nullptr when none
  };
  const Row rows[] = {
      {"log file is a pipe", "pipe.log",
       [](const ProgramSandbox& s, const std::string&) {
         ::mkfifo(s.work("pipe.log").c_str(), 0644);
       },
       "Error:Log file name, <work>pipe.log is not a valid file name or could not be opened where "
       "indicated. Log file was written as LAS filename with .log extension to LAS file path.\n"
       "LAS file <las> rewritten: STOP value -999.25 replaced by 1201.75000.\n",
       "live.log"},
      {"log file is a link", "link.log",
       [](const ProgramSandbox& s, const std::string&) {
         std::ofstream(s.work("real.log")) << "old";
         fs::create_symlink("real.log", s.work("link.log"));
       },
       "LAS file <las> rewritten: STOP value -999.25 replaced by 1201.75000.\n", "real.log"},
      {"read-only LAS file with a null STOP", "out.log",
       [](const ProgramSandbox&, const std::string& las) { ::chmod(las.c_str(), 0444); },
       "Error: LAS file <las> could not be rewritten: it is read-only.\n"
       "Error: Error in aaCertify2:\nA processing error occured within the program.\n",
       nullptr},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ProgramSandbox sandbox;
    const std::string las = sandbox.work("live.las");
    const std::string original = realTimeLas(8);
    std::ofstream(las, std::ios::binary) << original;
    row.prepare(sandbox, las);
    const std::string logFile = sandbox.work(row.logName);
    EXPECT_EQ(ProgramSandbox::wait(sandbox.start({las, logFile})), 0);

    std::string expected = "Command line :" + las + " " + logFile + "\n" + row.messages;
    expected = replaceAll(replaceAll(expected, "<las>", las), "<work>", sandbox.work(""));
    EXPECT_EQ(testing::commandLogMessages(sandbox.commandLog()), expected);
    // Links stay links and pipes stay pipes.
    EXPECT_EQ(fs::is_symlink(sandbox.work("link.log")), std::string(row.logName) == "link.log");
    EXPECT_EQ(fs::is_fifo(sandbox.work("pipe.log")), std::string(row.logName) == "pipe.log");
    if (row.reportIn != nullptr) {
      EXPECT_TRUE(readBytes(sandbox.work(row.reportIn)).starts_with("LAS Certification Result"));
    } else {
      EXPECT_EQ(readBytes(las), original);
    }
  }
}

TEST(BatchRun, ClearsTemporaryFilesThatKilledRunsLeftBesideItsFiles) {
  ProgramSandbox sandbox;
  const std::string las = sandbox.work("live.las");
  std::ofstream(las, std::ios::binary) << realTimeLas(8);
  // Process 0x7fffffff cannot exist: the run that made these files is gone.
  const std::string stale[] = {"live.las.zorvik-2147483647-0000beef.tmp",
                               "out.log.zorvik-2147483647-0000cafe.tmp"};
  for (const std::string& name : stale) {
    std::ofstream(sandbox.work(name)) << "partial";
    struct timespec old[2] = {{std::time(nullptr) - 60, 0}, {std::time(nullptr) - 60, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, sandbox.work(name).c_str(), old, 0), 0);
  }
  EXPECT_EQ(ProgramSandbox::wait(sandbox.start({las, sandbox.work("out.log")})), 0);
  EXPECT_EQ(namesIn(sandbox.work("")), (std::vector<std::string>{"live.las", "out.log"}));
}

}  // namespace
}  // namespace zorvik
