// The repair of real-time files: a logger writing a file as it goes leaves STOP at the NULL value
// until the run ends. The index check finds that and hands the last index back to its driver,
// which rewrites STOP in the file and runs the check again on the repaired file.
#pragma once

#include <string>

#include "checks/check_table.h"
#include "checks/index_range.h"
#include "las/header_line.h"

namespace zorvik {

struct RunContext;

// Rewrites STOP in the run's LAS file from `nullStop` to `value` (the ~Well section may be titled
// ~Well, or ~W in a 1.2 file) and logs what was done or why not. On success marks the run as
// repaired, drops its data scan and rebuilds its section index (the header changed length); on
// failure shows the run's observer why. True when the file now holds the new value, also when
// another run rewrote it first.
bool repairNullStop(RunContext& run, const std::string& nullStop, const std::string& value);

// Group 6 with the repair: runs checkIndexRange and, when it finds a null STOP, repairs it and
// checks the repaired file. CheckStatus::Fault when the repair failed.
CheckStatus checkIndexRangeRepairing(RunContext& run, const WellRange& well,
                                     const std::string& wrapValue, const ParamTable& wellTable,
                                     const ParamTable& curveTable, Slots& slots);

}  // namespace zorvik
