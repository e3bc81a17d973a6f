// The command log: "command.log" in the program's folder, appended one entry at a time; when
// that folder takes no file (an installed program), $XDG_STATE_HOME/zorvik/command.log
// (~/.local/state/zorvik/command.log without the variable).
// An entry is a header line (date, LAS file, log file, status line, TAB separated) and the
// message, each ended by CR LF. Faults while writing are swallowed.
#pragma once

#include <functional>
#include <string>

namespace zorvik {

void writeCommandLog(const std::string& message);

// While a sink is set, messages go to it instead of command.log: the command-line tool keeps
// the log for the batch form and the window. An empty sink restores the file.
void setCommandLogSink(std::function<void(const std::string& message)> sink);

// The folder holding the running executable (where command.log lives).
std::string programFolder();
// Where the help page and the standards documents are: <prefix>/share/zorvik when the program
// runs from an installed <prefix>/bin, else the program's folder (a build folder).
std::string dataFolder();
// Lets tests put command.log somewhere of their own; an empty text restores the default.
void setProgramFolder(const std::string& folder);

}  // namespace zorvik
