#include "run/batch_mode.h"

#include "base/command_log.h"
#include "base/fault.h"
#include "base/text.h"
#include "cert2/certify2.h"
#include "cert3/certify3.h"
#include "checks/report.h"
#include "checks/run_state.h"
#include "run/run_start.h"
#include "run/version_sniff.h"

namespace zorvik {

namespace {

void writeHandlerEntry(const Fault& fault) {
  writeCommandLog(handlerMessage("doBatchMode", fault) + ". LAS file was: ");
}

void certify() {
  RunState& state = runState();
  Slots group1;
  int fileStatus = beginRun(group1);

  int status = RUN_FAULT;
  if (fileStatus == RUN_STOPPED) {
    // An unusable file still gets its report; the run then goes on to the version sniff, which
    // fails and leaves its own entries in the command log.
    storeFileResults(group1);
    status = writeLogFile(state.logFile, "", "");
  }

  float version = sniffVersion(state.lasFile);
  if (version == 0.0f) {
    writeCommandLog("LAS Version was not read from the file correctly. (" +
                    formatShortest(version) +
                    "). It is either absent, not a numerical value or the file does not have "
                    "basic LAS properties. No further processing is possible.");
    writeHandlerEntry(Fault{});
    return;
  }

  state.dialect.version = version;
  if (version == 1.2f || version == 2.0f) {
    status = aaCertify2(state.lasFile);
  } else if (version == 3.0f) {
    status = aaCertify3(state.lasFile);
  } else {
    writeCommandLog("The LAS Version was not 1.2, 2.0 or 3.0. It was : " + formatShortest(version) +
                    ". No further processing will be done.");
  }

  if (status == RUN_COMPLETED) {
    writeLogFile(state.logFile, "", "");
  } else if (status != RUN_STOPPED) {
    writeCommandLog("A processing error occured within the program.");
  }
}

}  // namespace

void doBatchMode() {
  try {
    certify();
  } catch (...) {
    writeHandlerEntry(currentFault());
  }
}

}  // namespace zorvik
