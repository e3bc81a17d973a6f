// Start-up: reset the run state, read the settings, and either certify the file named on the
// command line (batch mode) or hand over to the window.
#pragma once

namespace zorvik {

// Runs the window for an empty command line and returns when it closes.
using WindowLauncher = int (*)(int argc, char** argv);

// Registers the window. Without one, an empty command line only prints a note to standard error.
void setWindowLauncher(WindowLauncher launcher);

// The whole life of the process: `zorvik LAS_FILE LOG_FILE [/W]` certifies in batch mode, no
// arguments opens the window. Every message goes to the command log. Never throws; answers 0
// whatever happened (the outcome is in the command log and the log file).
int startUp(int argc, char** argv);

}  // namespace zorvik
