// Section structure checks ("Section Title Check"): which sections a file has, whether their
// titles use recognised names and come in the required order, duplicates, and for 3.0 files how
// the _Parameter/_Definition/_Data sets are associated and numbered through their [n] indexes.
//
// Works on the run's section index (building it when empty) and never reads data lines.
// Can fail: returns CheckStatus::Fault when the index cannot be built or an internal fault occurs;
// the slots then hold whatever had been decided so far. Never throws.
#pragma once

#include <string>

#include "checks/check_table.h"

namespace zorvik {

// Decides items 1-14 of the group for a 3.0 file, items 1-3 for other versions (the others are
// left empty). Returns CheckStatus::Passed when items 1-14 are all empty, CheckStatus::Failed when
// any holds findings, CheckStatus::Fault on an internal fault.
struct RunContext;

CheckStatus checkSectionStructure(RunContext& run, Slots& slots);

}  // namespace zorvik
