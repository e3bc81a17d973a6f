// Group 9 of the 3.0 catalogue, "Array Channel Checks": in every column definition section the
// elements of an array channel must carry "[n]", be numbered 1..n, stand together, share one
// spacing in their format and one unit.
#pragma once

#include <string>

#include "checks/check_table.h"

namespace zorvik {

// Fills slots 1-5. Returns CHECK_FAILED when any of them holds text, CHECK_PASSED otherwise,
// CHECK_FAULT when an internal fault ended it (slots then hold what was found so far).
int checkArrayChannels(const std::string& fileName, Slots& slots);

}  // namespace zorvik
