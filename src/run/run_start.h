// The opening steps that the batch run and the window run share.
#pragma once

#include "checks/check_table.h"

namespace zorvik {

struct RunContext;

// Empties both of the run's check tables, lays the catalogue out, runs the file-level checks on
// its LAS file and marks the rows of group 1 of the 1.2/2.0 table. Returns the file-level status;
// `group1` receives its result texts. Cannot fail: faults end up in the access result.
RunStatus beginRun(RunContext& run, Slots& group1);

// Stores the file-level results as group 1 of both tables.
void storeFileResults(RunContext& run, const Slots& group1);

}  // namespace zorvik
