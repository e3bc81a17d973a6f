// The check driver for LAS 3.0 files.
#pragma once

#include "checks/check_table.h"

namespace zorvik {

struct RunContext;

// Runs groups 0 and 2-9 of the 3.0 catalogue on the run's LAS file, recording into its 3.0
// table: Completed (all run, or stopped after a failing group), Stopped (the user cancelled) or
// Fault (a fault ended the run).
RunStatus aaCertify3(RunContext& run);

}  // namespace zorvik
