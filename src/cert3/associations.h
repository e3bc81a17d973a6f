// Group 8 of the 3.0 catalogue, "Association Mnemonics Checks": every mnemonic listed after a
// line's "|" must be the mnemonic of some line of the file, and no line may refer back to itself,
// directly or through a chain of references.
#pragma once

#include <string>

#include "checks/check_table.h"

namespace zorvik {

// Fills slots 1-2. Returns CHECK_FAILED when either holds text, CHECK_PASSED otherwise,
// CHECK_FAULT when an internal fault ended it (slots then hold what was found so far).
int checkAssociations(const std::string& fileName, Slots& slots);

}  // namespace zorvik
