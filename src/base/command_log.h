// The command log: "command.log" in the program's folder, appended one entry at a time; when
// that folder takes no file (an installed program), $XDG_STATE_HOME/zorvik/command.log
// (~/.local/state/zorvik/command.log without the variable).
// An entry is a header line (date, LAS file, log file, status line, TAB separated) and the
// message, each ended by CR LF. Faults while writing are swallowed.
//
// Each entry goes out in one append of at most COMMAND_LOG_ENTRY_CAP bytes, so entries of
// processes writing at the same time never break into each other; a longer entry (a long command
// line, say) is cut with a marker.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zorvik {

inline constexpr std::size_t COMMAND_LOG_ENTRY_CAP = 4000;

// What the header line of an entry names: the run's LAS file, its log file and the status line.
struct CommandLogHeader {
  std::string_view lasFile;
  std::string_view logFile;
  std::string_view statusLine;
};

void writeCommandLog(const CommandLogHeader& header, std::string_view message);

// `entry` cut to COMMAND_LOG_ENTRY_CAP bytes with a marker and a line end when longer.
std::string cappedEntry(std::string entry);

// The folder holding the running executable (where command.log lives).
std::string programFolder();
// Where the help page and the standards documents are: <prefix>/share/zorvik when the program
// runs from an installed <prefix>/bin, else the program's folder (a build folder).
std::string dataFolder();
// Lets tests put command.log somewhere of their own; an empty text restores the default.
void setProgramFolder(const std::string& folder);

}  // namespace zorvik
