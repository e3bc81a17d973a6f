// The opening steps that the batch run and the window run share.
#pragma once

#include "checks/check_table.h"

namespace zorvik {

// Empties both check tables, lays the catalogue out, runs the file-level checks on the run's LAS
// file and marks the rows of group 1 of the 1.2/2.0 table. Returns the file-level status; `group1`
// receives its result texts. Cannot fail: faults end up in the access result.
int beginRun(Slots& group1);

// Stores the file-level results as group 1 of both tables.
void storeFileResults(const Slots& group1);

}  // namespace zorvik
