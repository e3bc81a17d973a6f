#include "run/batch_mode.h"

#include "base/fault.h"
#include "base/text.h"
#include "cert2/certify2.h"
#include "cert3/certify3.h"
#include "checks/report.h"
#include "checks/run_context.h"
#include "run/run_start.h"
#include "run/session.h"
#include "run/version_sniff.h"

namespace zorvik {

namespace {

void writeHandlerEntry(const RunContext& run, const Fault& fault) {
  run.log(handlerMessage("doBatchMode", fault) + ". LAS file was: ");
}

void certify(RunContext& run) {
  Slots group1;
  RunStatus fileStatus = beginRun(run, group1);

  RunStatus status = RunStatus::Fault;
  if (fileStatus == RunStatus::Stopped) {
    // An unusable file still gets its report; the run then goes on to the version sniff, which
    // fails and leaves its own entries in the command log.
    storeFileResults(run, group1);
    status = writeLogFile(run, run.logFile, "", "");
  }

  float version = sniffVersion(run.lasFile);
  if (version == 0.0f) {
    run.log("LAS Version was not read from the file correctly. (" + formatShortest(version) +
            "). It is either absent, not a numerical value or the file does not have "
            "basic LAS properties. No further processing is possible.");
    writeHandlerEntry(run, Fault{});
    return;
  }

  run.dialect.version = version;
  if (version == 1.2f || version == 2.0f) {
    status = aaCertify2(run);
  } else if (version == 3.0f) {
    status = aaCertify3(run);
  } else {
    run.log("The LAS Version was not 1.2, 2.0 or 3.0. It was : " + formatShortest(version) +
            ". No further processing will be done.");
  }

  if (status == RunStatus::Completed) {
    writeLogFile(run, run.logFile, "", "");
  } else if (status != RunStatus::Stopped) {
    run.log("A processing error occured within the program.");
  }
}

}  // namespace

void doBatchMode(const Session& session) {
  RunContext run;
  run.lasFile = session.lasFile;
  run.logFile = session.logFile;
  run.statusLine = session.statusLine;
  run.doWrap = session.doWrap;
  try {
    certify(run);
  } catch (...) {
    writeHandlerEntry(run, currentFault());
  }
}

}  // namespace zorvik
