#include "run/startup.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "base/command_log.h"
#include "base/fault.h"
#include "base/file_helpers.h"
#include "base/text.h"
#include "run/batch_mode.h"
#include "run/session.h"
#include "run/settings.h"
#include "run/tool.h"

namespace zorvik {

namespace {

// The words of the command line are the arguments as the process received them, one word each:
// the shell has split them already, so a quoted name with blanks stays one word.
std::vector<std::string> commandWordsOf(int argc, char** argv) {
  std::vector<std::string> words;
  for (int i = 1; i < argc; ++i) words.emplace_back(argv[i]);
  return words;
}

// The command line as one text, for the command log: the words joined by single blanks.
std::string commandLineOf(const std::vector<std::string>& words) {
  std::string line;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) line += ' ';
    line += words[i];
  }
  return line;
}

// "/W" is looked for anywhere after the first word, in any letter case. Here absolute paths
// begin with "/", so a log file under "/work" would read as the option too: "/W" counts only as
// a word of its own.
bool hasWrapOption(const std::vector<std::string>& words) {
  for (std::size_t i = 1; i < words.size(); ++i)
    if (iequals(trimView(words[i]), "/W")) return true;
  return false;
}

std::string withoutQuotes(const std::string& word) {
  return trim(replaceAll(word, "\"", ""));
}

// Equal names (in any letter case), or two names of one file ("./a.las" and "a.las"): the log
// writer would otherwise empty the LAS file.
bool sameFile(const std::string& a, const std::string& b) {
  if (iequals(a, b)) return true;
  std::error_code ec;
  return std::filesystem::equivalent(a, b, ec) && !ec;
}

int showWindow(int argc, char** argv, const Session& session, const std::string& lasFile,
               WindowLauncher window) {
  if (window != nullptr) return window(argc, argv, session, lasFile);
  std::fputs("zorvik: this build has no window; try zorvik --help\n", stderr);
  return 0;
}

// Command-log entries of start-up carry the session's files and status line as they stand.
void log(const Session& session, const std::string& message) {
  writeCommandLog(CommandLogHeader{session.lasFile, session.logFile, session.statusLine}, message);
}

// The batch form's files and options from its words, each refusal logged. False when the run
// cannot go on. Word 1 must exist: a missing one is the "Subscript out of range" fault.
bool readBatchWords(const std::vector<std::string>& words, Session& session) {
  const std::string word0 = withoutQuotes(words.at(0));
  const std::string word1 = withoutQuotes(words.at(1));
  if (!fileExists(word0)) {
    log(session,
        "Error:LAS file name, " + word0 + ", is not a valid file name or file is not accessible.");
    return false;
  }
  // The extension test looks at the name remembered from the last window session, not at word 0:
  // only a remembered ".las" name lets batch runs through.
  const std::string& remembered = session.lasFile;
  std::size_t at = ifind(remembered, ".las");
  bool lasName = at != std::string::npos && remembered.size() - at == 4;
  session.lasFile = lasName ? word0 : "";
  if (session.lasFile.empty()) {
    log(session, "Error:Supplied LAS file name, " + word0 + ", must have a .las extension.");
    return false;
  }

  session.doWrap = hasWrapOption(words);
  session.logFile = word1;
  // The writability test opens nothing, but never let a log file stand for the LAS file itself
  // (the same-name test below refuses that run anyway).
  if (!sameFile(session.logFile, session.lasFile) && !logFileWritable(session.logFile)) {
    log(session, "Error:Log file name, " + session.logFile +
                     " is not a valid file name or could not be opened where indicated. Log "
                     "file was written as LAS filename with .log extension to LAS file path.");
    session.logFile = changeExtension(session.lasFile, "log");
  }
  if (sameFile(session.lasFile, session.logFile)) {
    log(session,
        "Error: LAS file name and Log file are the same. Log file must be different. No "
        "processing is possible");
    return false;
  }
  return true;
}

}  // namespace

int openWindow(int argc, char** argv, const std::string& lasFile, WindowLauncher window) {
  Session session;
  readSettings(session);
  return showWindow(argc, argv, session, lasFile, window);
}

int startUp(int argc, char** argv, WindowLauncher window) {
  // The tool is decided on the first word as the shell gave it, before anything of the batch
  // form (command log, settings) is touched.
  if (argc > 1 && isToolWord(argv[1])) return runTool(argc, argv, window);

  const std::vector<std::string> words = commandWordsOf(argc, argv);
  const std::string commandLine = commandLineOf(words);
  Session session;
  // Every fault of start-up ends it with one entry naming the fault; a refusal that was logged
  // already ends it with the "Error #0" entry.
  try {
    readSettings(session);
    if (commandLine.empty()) {
      showWindow(argc, argv, session, "", window);
      return 0;
    }

    log(session, "Command line :" + commandLine);
    if (!readBatchWords(words, session)) {
      log(session, handlerMessage("main", Fault{}));
      return 0;
    }
    doBatchMode(session);
  } catch (...) {
    log(session, handlerMessage("main", currentFault()));
  }
  return 0;
}

}  // namespace zorvik
