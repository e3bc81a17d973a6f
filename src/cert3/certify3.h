// The check driver for LAS 3.0 files.
#pragma once

#include <string>

namespace zorvik {

// Runs groups 0 and 2-9 of the 3.0 catalogue: -1 completed, 1 cancelled, 0 fault.
int aaCertify3(const std::string& fileName);

}  // namespace zorvik
