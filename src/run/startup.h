// Start-up: reset the run state, read the settings, and either certify the file named on the
// command line (batch mode) or hand over to the window.
#pragma once

#include <string>

namespace zorvik {

// Runs the window and returns when it closes; a non-empty `lasFile` is certified at once.
using WindowLauncher = int (*)(int argc, char** argv, const std::string& lasFile);

// Registers the window. Without one, an empty command line only prints a note to standard error.
void setWindowLauncher(WindowLauncher launcher);

// The whole life of the process: no arguments opens the window; a first word of the command-line
// tool (check, repair, convert, gui, help, or one starting with "-") runs the tool and answers its
// exit status; any other command line is the batch form `zorvik LAS_FILE LOG_FILE [/W]`. The
// batch form and the window send every message to the command log, and answer 0 whatever
// happened (the outcome is in the command log and the log file).
int startUp(int argc, char** argv);

// Window mode as start-up enters it (run state reset, settings read), then the window, which
// certifies `lasFile` at once when it is not empty. Answers the window's status.
int openWindow(int argc, char** argv, const std::string& lasFile);

}  // namespace zorvik
