// The certification report of a finished run and the log file that carries it.
//
// The report is plain text, every line ended by CR LF: the file name, the program's version and
// the date, the verdict, then the groups in order up to and including the first group with a
// failed check. The batch log file, the window's log file, print and copy all use this one text.
#pragma once

#include <string>

#include "checks/check_table.h"

namespace zorvik {

struct RunContext;

// The verdict of the run's results (3.0 table for a 3.0 file, else the 1.2/2.0 table) for its
// version: "LAS file PASSED Ver 2 Certification" or a FAILS text.
std::string verdict(const RunContext& run);
// The report's "Result: " line: the verdict after that word (without CR LF).
std::string verdictLine(const RunContext& run);

// The report of the run's results for its LAS file and version, dated now. Cannot fail.
std::string buildReport(const RunContext& run);
// The same with a given date text in place of the current date and time.
std::string buildReport(const RunContext& run, const std::string& dateText);

// Replaces `logFile` with the report of the run: "Note: " + `secondNote` and an empty
// line when that note is not empty, `firstNote` as a line when not empty, the report and one more
// line end. Returns RunStatus::Completed, or RunStatus::Fault when the file could not be written:
// the previous file is then left as it was and the command log says why.
RunStatus writeLogFile(const RunContext& run, const std::string& logFile,
                       const std::string& firstNote, const std::string& secondNote);

}  // namespace zorvik
