// Group 7 of the 3.0 catalogue, "Column Data Section Checks": for every column data section, its
// channel count against its definition section, the delimited item count of every data line, and
// every data item against the format its channel definition states.
#pragma once

#include <string>

#include "checks/check_table.h"

namespace zorvik {

// Fills slots 1-3. Returns CHECK_FAILED when any of them holds text, CHECK_PASSED otherwise,
// CHECK_FAULT when an internal fault ended it (slots then hold what was found so far).
int checkColumnData(const std::string& fileName, Slots& slots);

}  // namespace zorvik
