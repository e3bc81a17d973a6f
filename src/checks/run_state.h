// The shared state of a certification run: one process-wide record, owned by run control.
//
// Start-up resets it; the run drivers, the checks and the window read and write its fields.
// Everything that lives from one procedure to the next lives here, so a test can put the process
// back to its starting point with `resetRunState()`.
#pragma once

#include <string>
#include <vector>

#include "checks/check_table.h"
#include "checks/data_scan.h"
#include "las/dialect.h"
#include "las/section_types.h"

namespace zorvik {

class WindowOps;

struct RunState {
  // Command line and mode.
  std::vector<std::string> commandWords{std::string()};
  std::string helpFile;
  bool batchMode = false;

  // Files of the run.
  std::string lasFile;
  std::string logFile;
  std::string spareText;  // a second shared text, emptied at start-up

  // Options (remembered: doWrap, writeLog; showDetails is on at every start).
  bool doWrap = false;
  bool writeLog = false;
  bool showDetails = true;
  int repairChoice = 0;  // 0, 1 or 2: the window's repair option state

  // What the run has learnt of the file.
  Dialect dialect;
  std::string dataSectionTitle;  // 3.0 data section title shown in the catalogue's group 6
  std::string countryCode;       // CTRY code shown in the 3.0 catalogue's check 5.5

  // Section model of the current file.
  SectionIndex sections;

  // Cooperation with the window.
  bool escapePressed = false;
  bool suppressCancelQuestion = false;
  bool nullStopRepaired = false;
  // Group 4's single pass over the data lines keeps here what groups 6 and 7 would otherwise
  // read the whole data again for; they use it only for the same file, unchanged.
  DataScan dataScan;
  std::string statusLine = "Ready";
  WindowOps* window = nullptr;  // null in batch mode and in tests without a window

  // Check catalogue tables with the results of the last run.
  CheckTable table3{9};  // version 3.0: groups 0-9
  CheckTable table2{7};  // versions 1.2 and 2.0: groups 0-7
};

RunState& runState();
// Puts the state back to how the process starts (the window registration is kept).
void resetRunState();

// True when the run state's version is exactly 3.0 (single precision).
bool isVersion3();

// Appends `message` to the command log under the run's LAS file, log file and status line.
void writeCommandLog(const std::string& message);

}  // namespace zorvik
