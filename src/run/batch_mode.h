// The batch certification run: certify the session's LAS file without a window, write the report
// to its log file and everything else to the command log.
#pragma once

namespace zorvik {

struct Session;

// Certifies session.lasFile into session.logFile (with the /W checks when session.doWrap). Never
// throws: an unexpected fault is recorded in the command log and ends the run.
void doBatchMode(const Session& session);

}  // namespace zorvik
