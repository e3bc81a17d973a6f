#include "run/run_start.h"

#include <ctime>

#include "base/file_writer.h"
#include "checks/catalogue.h"
#include "checks/file_checks.h"
#include "checks/run_context.h"

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

RunStatus beginRun(RunContext& run, Slots& group1) {
  // A run that died while rewriting the LAS file or writing its report left a temporary file
  // beside it; this run on the same folders clears it away.
  removeLeftoversBeside(run.lasFile, run.logFile, std::time(nullptr));
  run.table3.clear();
  run.table2.clear();
  layOutCatalogue(run);

  RunStatus fileStatus = fileLevelChecks(run, group1);
  for (int row = 1; row <= run.table2.lastRow(); ++row) run.table2.at(row, COL_MARK, 1) = " ";
  return fileStatus;
}

void storeFileResults(RunContext& run, const Slots& group1) {
  storeGroupResults(run.table3, 1, group1);
  storeGroupResults(run.table2, 1, group1);
}

}  // namespace zorvik
