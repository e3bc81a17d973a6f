#include "run/run_start.h"

#include "checks/catalogue.h"
#include "checks/file_checks.h"
#include "run/run_state.h"

namespace zorvik {

int beginRun(Slots& group1) {
  RunState& state = runState();
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
