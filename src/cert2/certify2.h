// The check driver for LAS 1.2 and 2.0 files.
#pragma once

#include <string>

namespace zorvik {

// Runs groups 2-7 of the 1.2/2.0 catalogue: -1 completed, 1 cancelled, 0 fault.
int aaCertify2(const std::string& fileName);

}  // namespace zorvik
