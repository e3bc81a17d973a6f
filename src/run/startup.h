// Start-up: read the settings, and either certify the file named on the command line (batch mode)
// or hand over to the window.
#pragma once

#include <string>

namespace zorvik {

struct Session;

// Runs the window and returns when it closes. The window starts from `session` (the settings read)
// and certifies `lasFile` at once when it is not empty.
using WindowLauncher = int (*)(int argc, char** argv, const Session& session,
                               const std::string& lasFile);

// The whole life of the process: no arguments opens the window; a first word of the command-line
// tool (check, repair, convert, gui, help, or one starting with "-") runs the tool and answers its
// exit status; any other command line is the batch form `zorvik LAS_FILE LOG_FILE [/W]`. The
// batch form and the window send every message to the command log, and answer 0 whatever
// happened (the outcome is in the command log and the log file). `window` is null in a build
// without one: an empty command line then only prints a note to standard error.
int startUp(int argc, char** argv, WindowLauncher window);

// Window mode as start-up enters it (settings read), then the window, which certifies `lasFile`
// at once when it is not empty. Answers the window's status.
int openWindow(int argc, char** argv, const std::string& lasFile, WindowLauncher window);

}  // namespace zorvik
