// The command-line tool: `zorvik check|repair|convert|gui|help ...` and `zorvik --help`.
//
// It certifies without a remembered file, takes paths as the shell gives them, and leaves the
// settings store and command.log to the batch form and the window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "run/startup.h"

namespace zorvik {

// Exit statuses of the tool.
inline constexpr int EXIT_ALL_PASSED = 0;
inline constexpr int EXIT_SOME_FAILED = 1;
inline constexpr int EXIT_TROUBLE = 2;  // a usage error, or a file that could not be read

// True when the first word of a command line belongs to the tool rather than the batch form.
bool isToolWord(std::string_view firstWord);

// Runs the tool on the process's words (argv[1] is the command or an option); answers the exit
// status. argc and argv go on to `window` for `zorvik gui`.
int runTool(int argc, char** argv, WindowLauncher window);

struct ParsedOptions;

// `zorvik check [options] PATH...`, its options read.
int runCheck(const ParsedOptions& options);

// `zorvik repair`: repairs `file` in place (empty `output`) or into `output`, taking `units` as
// the index units of added ~Well lines (empty: those lines are skipped); prints the changes and
// the new verdict.
int repairCommand(const std::string& file, const std::string& output, const std::string& units);
// `zorvik convert`: writes `file` as 3.0 to `output` (empty: NAME_ver3.las beside it); prints
// the changes and the verdict of the new file.
int convertCommand(const std::string& file, const std::string& output, bool logTitles,
                   char delimiter);

// Prints "zorvik COMMAND: MESSAGE" and where to find help on standard error; answers
// EXIT_TROUBLE.
int usageError(std::string_view command, const std::string& message);

// The usage text (`zorvik --help`) and the manual page made from the same texts.
std::string usageText();
std::string manualPage();

}  // namespace zorvik
