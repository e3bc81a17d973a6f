#include "run/interactive_run.h"

#include <cstdio>

#include "base/file_helpers.h"
#include "cert2/certify2.h"
#include "cert3/certify3.h"
#include "checks/report.h"
#include "checks/run_state.h"
#include "checks/window_ops.h"
#include "run/run_start.h"
#include "run/settings.h"
#include "run/version_sniff.h"

namespace zorvik {

namespace {

// The command log copies the status line, so the run state keeps it as well as the window.
void setStatus(const std::string& text) {
  runState().statusLine = text;
  if (runState().window != nullptr) runState().window->setStatusLine(text);
}

bool windowShown() {
  return runState().window != nullptr && !runState().batchMode;
}

void prepareTabs(float version) {
  if (runState().window != nullptr) runState().window->prepareResultTabs(version);
}

void enableTabs(bool enabled) {
  if (runState().window != nullptr) runState().window->enableResultTabs(enabled);
}

// The progress caption names the check just finished while a run goes on; once it has ended it
// says how it ended, so a finished run never shows a stale "Doing check".
void showOutcome(int percent, const std::string& caption) {
  if (runState().window != nullptr) runState().window->setProgress(percent, caption);
}

// Runs the version's driver; an unknown version is certified by the 1.2/2.0 driver here, unlike
// in batch mode, so the user still sees what can be checked.
int dispatch(RunState& state) {
  float version = sniffVersion(state.lasFile);
  state.dialect.version = version;
  if (version == 0.0f) {
    state.dialect.version = 2.0f;
    if (windowShown() &&
        !state.window->askOkCancel("LAS Version Not Found!",
                                   "LAS Version was not determined. Proceeding as if Ver 2.0. "))
      return RUN_FAULT;
    prepareTabs(state.dialect.version);
    return aaCertify2(state.lasFile);
  }
  prepareTabs(version);
  return version == 3.0f ? aaCertify3(state.lasFile) : aaCertify2(state.lasFile);
}

void certify() {
  RunState& state = runState();
  if (state.window != nullptr) state.window->setTitle("Zorvik (" + state.lasFile + ")");
  setStatus("Checking in Progress...");

  Slots group1;
  int fileStatus = beginRun(group1);

  int status = RUN_COMPLETED;
  if (fileStatus == RUN_STOPPED) {
    // Only group 1 is filled; a usable file's tables belong to the version driver.
    storeFileResults(group1);
  } else {
    status = dispatch(state);
  }

  if (status == RUN_COMPLETED) {
    enableTabs(true);
    if (state.window != nullptr) state.window->fillResultGrid(reportTable());
    showOutcome(100, verdict(reportTable()));
    if (state.writeLog) {
      state.logFile = changeExtension(state.lasFile, "log");
      writeLogFile(state.logFile, "", "");
    } else {
      state.logFile = "";
    }
  } else if (status == RUN_STOPPED) {
    enableTabs(false);
    showOutcome(0, "Certification cancelled");
    // The user's cancel request has been served; the next run must not ask again at once.
    state.escapePressed = false;
  } else if (windowShown()) {
    state.window->showCritical("Error!",
                               "Error occured while processing the LAS file. No certification "
                               "possible");
  }
}

}  // namespace

void runInteractive() {
  try {
    certify();
  } catch (...) {
    // A fault inside the run ends it like a processing error of a driver.
    if (windowShown())
      runState().window->showCritical(
          "Error!", "Error occured while processing the LAS file. No certification possible");
  }
  setStatus("Ready");
}

void doCertifyWork() {
  RunState& state = runState();
  state.logFile = changeExtension(state.lasFile, "log");
  if (fileExists(state.logFile)) std::remove(state.logFile.c_str());
  saveLasFileSetting();
  runInteractive();
}

}  // namespace zorvik
