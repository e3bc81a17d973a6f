#include "run/startup.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "base/command_log.h"
#include "base/fault.h"
#include "base/file_helpers.h"
#include "base/text.h"
#include "checks/run_state.h"
#include "run/batch_mode.h"
#include "run/settings.h"
#include "run/tool.h"

namespace zorvik {

namespace {

WindowLauncher& launcher() {
  static WindowLauncher registered = nullptr;
  return registered;
}

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

// Where the steps of start-up go next.
enum class Next { Step, WindowMode, Handler };

int showWindow(int argc, char** argv, const std::string& lasFile = "") {
  if (launcher() != nullptr) return launcher()(argc, argv, lasFile);
  std::fputs("zorvik: this build has no window; try zorvik --help\n", stderr);
  return 0;
}

}  // namespace

void setWindowLauncher(WindowLauncher registered) {
  launcher() = registered;
}

int openWindow(int argc, char** argv, const std::string& lasFile) {
  RunState& state = runState();
  resetRunState();
  state.helpFile = programFolder() + "/zorvik.hlp";
  readSettings();
  state.batchMode = false;
  return showWindow(argc, argv, lasFile);
}

int startUp(int argc, char** argv) {
  // The tool is decided on the first word as the shell gave it, before anything of the batch
  // form (command log, settings) is touched.
  if (argc > 1 && isToolWord(argv[1])) return runTool(argc, argv);

  RunState& state = runState();
  const std::vector<std::string> words = commandWordsOf(argc, argv);
  const std::string commandLine = commandLineOf(words);

  // The statements of start-up, numbered so that a fault can resume after the one that failed.
  auto step = [&](int number) -> Next {
    switch (number) {
      case 2:
        resetRunState();  // also the single empty command-line word and the empty tables
        return Next::Step;
      case 3:
        state.helpFile = programFolder() + "/zorvik.hlp";
        return Next::Step;
      case 4:
        state.dialect.version = NO_VERSION;
        state.lasFile.clear();
        state.spareText.clear();
        return Next::Step;
      case 5:
        readSettings();
        return Next::Step;
      case 6:
        if (iequals(commandLine, "")) {
          state.batchMode = false;
          return Next::WindowMode;
        }
        return Next::Step;
      case 7:
        state.batchMode = true;
        return Next::Step;
      case 9:
        writeCommandLog("Command line :" + commandLine);
        return Next::Step;
      case 10:
        state.commandWords = words;
        return Next::Step;
      case 11:
        state.commandWords.at(0) = withoutQuotes(state.commandWords.at(0));
        state.commandWords.at(1) = withoutQuotes(state.commandWords.at(1));
        return Next::Step;
      case 12: {  // with 13, its "otherwise" branch
        const std::string& word0 = state.commandWords.at(0);
        if (!fileExists(word0)) {
          writeCommandLog("Error:LAS file name, " + word0 +
                          ", is not a valid file name or file is not accessible.");
          return Next::Handler;
        }
        // The extension test looks at the name remembered from the last window session, not at
        // word 0: only a remembered ".las" name lets batch runs through.
        const std::string& remembered = state.lasFile;
        std::size_t at = ifind(remembered, ".las");
        bool lasName = at != 0 && remembered.size() - at == 3;
        state.lasFile = lasName ? word0 : "";
        if (state.lasFile.empty()) {
          writeCommandLog("Error:Supplied LAS file name, " + word0 +
                          ", must have a .las extension.");
          return Next::Handler;
        }
        return Next::Step;
      }
      case 14:
        state.doWrap = hasWrapOption(words);
        return Next::Step;
      case 15:
        state.logFile = state.commandWords.at(1);
        return Next::Step;
      case 16:
        // The writability test empties and deletes its file; never let it touch the LAS file
        // itself (the same-name test below refuses that run anyway).
        if (!sameFile(state.logFile, state.lasFile) && !logFileWritable(state.logFile)) {
          writeCommandLog("Error:Log file name, " + state.logFile +
                          " is not a valid file name or could not be opened where indicated. Log "
                          "file was written as LAS filename with .log extension to LAS file path.");
          state.logFile = changeExtension(state.lasFile, "log");
        }
        return Next::Step;
      case 17:
        if (sameFile(state.lasFile, state.logFile)) {
          writeCommandLog(
              "Error: LAS file name and Log file are the same. Log file must be different. No "
              "processing is possible");
          return Next::Handler;
        }
        return Next::Step;
      default:
        return Next::Step;
    }
  };

  // The failure handler: one entry naming the fault (none after an explicit jump, which gives
  // the "Error #0" entry); "Path not found" resumes after the failing statement, anything else
  // ends start-up.
  auto handle = [&](const Fault& fault) -> bool {
    writeCommandLog(handlerMessage("main", fault));
    if (fault.number == FAULT_PATH_NOT_FOUND) {
      state.lasFile.clear();
      return true;
    }
    return false;
  };

  for (int number = 2; number <= 17; ++number) {
    Next next = Next::Step;
    try {
      next = step(number);
    } catch (...) {
      if (handle(currentFault())) continue;
      return 0;
    }
    if (next == Next::Handler) {
      handle(Fault{});
      return 0;
    }
    if (next == Next::WindowMode) break;
  }

  try {
    if (state.batchMode) {
      doBatchMode();
      return 0;
    }
    showWindow(argc, argv);
    return 0;
  } catch (...) {
    handle(currentFault());
    return 0;
  }
}

}  // namespace zorvik
