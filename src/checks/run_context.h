// Everything one certification run learns about its file and shares between its checks.
//
// The batch run, the window and the command-line tool each make one per run and pass it down by
// reference; nothing of a run outlives its context, so runs on different threads never meet.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "checks/check_table.h"
#include "checks/data_scan.h"
#include "checks/run_observer.h"
#include "las/dialect.h"
#include "las/las_file.h"
#include "las/section_types.h"

namespace zorvik {

struct RunContext {
  // The file certified and the names the command log's entries carry with it.
  std::string lasFile;
  std::string logFile;
  std::string statusLine = "Ready";
  // The /W option: judge data line lengths against WRAP.
  bool doWrap = false;

  // What the run has learnt of the file.
  Dialect dialect;
  SectionIndex sections;
  std::string dataSectionTitle;  // "~" + the 3.0 data section's name, for the catalogue's group 6
  std::string countryCode;       // the CTRY value, for the 3.0 catalogue's check 5.5
  // Group 4's single pass over the data lines keeps here what groups 6 and 7 would otherwise
  // read the whole data again for; they use it only for the same file, unchanged.
  DataScan dataScan;
  // The index check rewrote a null STOP in the file (and rebuilt the section index).
  bool nullStopRepaired = false;

  // The catalogues with this run's results.
  CheckTable table3{9};  // version 3.0: groups 0-9
  CheckTable table2{7};  // versions 1.2 and 2.0: groups 0-7

  // Who watches the run: progress, cancel requests, questions. Null: nobody (batch, tests).
  RunObserver* observer = nullptr;
  // Where the run's command-log messages go instead of the command log, when set (the
  // command-line tool keeps them for its own output and leaves the log to the batch form).
  std::function<void(std::string_view message)> logSink;

  // The LAS file, opened once for every reader of the run: at the first use, and again when the
  // run has rewritten it (or certifies another file in the same context).
  const LasFile& source();
  // Closes the file, so that the next use opens what is now at the path.
  void closeSource() { source_.close(); }

  bool isV3() const { return dialect.isV3(); }
  // The table the verdict and the report read: 3.0's for a 3.0 file, else 1.2/2.0's.
  CheckTable& results() { return isV3() ? table3 : table2; }
  const CheckTable& results() const { return isV3() ? table3 : table2; }

  // Appends `message` to the command log under this run's file names and status line (or hands
  // it to the log sink).
  void log(std::string_view message) const;

 private:
  LasFile source_;
};

}  // namespace zorvik
