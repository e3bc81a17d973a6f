// The batch certification run: certify the run state's LAS file without a window, write the
// report to its log file and everything else to the command log.
#pragma once

namespace zorvik {

// Certifies runState().lasFile into runState().logFile. Never throws: an unexpected fault is
// recorded in the command log and ends the run.
void doBatchMode();

}  // namespace zorvik
