// The check driver for LAS 3.0 files.
#pragma once

#include <string>

namespace zorvik {

struct RunContext;

// Runs groups 0 and 2-9 of the 3.0 catalogue on the run's LAS file, recording into its 3.0
// table: -1 completed, 1 cancelled, 0 fault.
int aaCertify3(RunContext& run);

}  // namespace zorvik
