#include "run/interactive_run.h"

#include <cstdio>

#include "base/file_helpers.h"
#include "cert2/certify2.h"
#include "cert3/certify3.h"
#include "checks/report.h"
#include "checks/run_context.h"
#include "run/run_start.h"
#include "run/session.h"
#include "run/settings.h"
#include "run/version_sniff.h"
#include "run/window_ops.h"

namespace zorvik {

namespace {

constexpr const char* kProcessingError =
    "Error occured while processing the LAS file. No certification possible";

// One run of the window: the session, the run's context and the window it shows itself in.
struct WindowRun {
  Session& session;
  RunContext& run;
  WindowOps* window;

  // The command log copies the status line, so the run keeps it as well as the window.
  void setStatus(const std::string& text) {
    session.statusLine = text;
    run.statusLine = text;
    if (window != nullptr) window->setStatusLine(text);
  }

  void prepareTabs(float version) {
    if (window != nullptr) window->prepareResultTabs(version);
  }

  void enableTabs(bool enabled) {
    if (window != nullptr) window->enableResultTabs(enabled);
  }

  // The progress caption names the check just finished while a run goes on; once it has ended it
  // says how it ended, so a finished run never shows a stale "Doing check".
  void showOutcome(int percent, const std::string& caption) {
    if (window != nullptr) window->setProgress(percent, caption);
  }

  void showProcessingError() {
    if (window != nullptr) window->showCritical("Error!", kProcessingError);
  }

  // Runs the version's driver; an unknown version is certified by the 1.2/2.0 driver here,
  // unlike in batch mode, so the user still sees what can be checked.
  RunStatus dispatch() {
    float version = sniffVersion(run.lasFile);
    run.dialect.version = version;
    if (version == 0.0f) {
      run.dialect.version = 2.0f;
      if (window != nullptr &&
          !window->askOkCancel("LAS Version Not Found!",
                               "LAS Version was not determined. Proceeding as if Ver 2.0. "))
        return RunStatus::Fault;
      prepareTabs(run.dialect.version);
      return aaCertify2(run);
    }
    prepareTabs(version);
    return version == 3.0f ? aaCertify3(run) : aaCertify2(run);
  }

  void certify() {
    if (window != nullptr) window->setTitle("Zorvik (" + run.lasFile + ")");
    setStatus("Checking in Progress...");

    Slots group1;
    RunStatus fileStatus = beginRun(run, group1);

    RunStatus status = RunStatus::Completed;
    if (fileStatus == RunStatus::Stopped) {
      // Only group 1 is filled; a usable file's tables belong to the version driver.
      storeFileResults(run, group1);
    } else {
      status = dispatch();
    }

    if (status == RunStatus::Completed) {
      enableTabs(true);
      if (window != nullptr) window->fillResultGrid(run.results());
      showOutcome(100, verdict(run));
      if (session.writeLog) {
        session.logFile = changeExtension(run.lasFile, "log");
        run.logFile = session.logFile;
        writeLogFile(run, session.logFile, "", "");
      } else {
        session.logFile = "";
        run.logFile = "";
      }
    } else if (status == RunStatus::Stopped) {
      enableTabs(false);
      showOutcome(0, "Certification cancelled");
      // The user's cancel request has been served; the next run must not ask again at once.
      if (window != nullptr) window->clearCancelRequest();
    } else {
      showProcessingError();
    }
  }
};

}  // namespace

void runInteractive(Session& session, RunContext& run, WindowOps* window) {
  run = RunContext{};
  run.lasFile = session.lasFile;
  run.logFile = session.logFile;
  run.doWrap = session.doWrap;
  run.observer = window;
  WindowRun windowRun{session, run, window};
  try {
    windowRun.certify();
  } catch (...) {
    // A fault inside the run ends it like a processing error of a driver.
    windowRun.showProcessingError();
  }
  windowRun.setStatus("Ready");
}

void doCertifyWork(Session& session, RunContext& run, WindowOps* window) {
  session.logFile = changeExtension(session.lasFile, "log");
  if (fileExists(session.logFile)) std::remove(session.logFile.c_str());
  saveLasFileSetting(session.lasFile);
  runInteractive(session, run, window);
}

}  // namespace zorvik
