#include "run/run_start.h"

#include <ctime>

#include "base/file_writer.h"
#include "checks/catalogue.h"
#include "checks/file_checks.h"
#include "checks/run_state.h"

namespace zorvik {

namespace {

// The folder a file is finally written in (links followed); "" when there is no such name.
std::string writtenFolder(const std::string& name) {
  if (name.empty()) return {};
  std::string target = resolveDestination(name);
  std::size_t slash = target.find_last_of('/');
  if (target.empty()) return {};
  return slash == std::string::npos ? "." : slash == 0 ? "/" : target.substr(0, slash);
}

void removeLeftoversBeside(const std::string& lasFile, const std::string& logFile,
                           std::time_t runStart) {
  std::string lasFolder = writtenFolder(lasFile);
  std::string logFolder = writtenFolder(logFile);
  if (!lasFolder.empty()) removeLeftoverTemporaries(lasFolder, runStart);
  if (!logFolder.empty() && logFolder != lasFolder) removeLeftoverTemporaries(logFolder, runStart);
}

}  // namespace

int beginRun(Slots& group1) {
  RunState& state = runState();
  // A run that died while rewriting the LAS file or writing its report left a temporary file
  // beside it; this run on the same folders clears it away.
  removeLeftoversBeside(state.lasFile, state.logFile, std::time(nullptr));
  state.table3.clear();
  state.table2.clear();
  layOutCatalogue();

  int fileStatus = fileLevelChecks(state.lasFile, group1);
  for (int row = 1; row <= state.table2.lastRow(); ++row) state.table2.at(row, COL_MARK, 1) = " ";
  return fileStatus;
}

void storeFileResults(const Slots& group1) {
  storeGroupResults(runState().table3, 1, group1);
  storeGroupResults(runState().table2, 1, group1);
}

}  // namespace zorvik
