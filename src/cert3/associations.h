// Group 8 of the 3.0 catalogue, "Association Mnemonics Checks": every mnemonic listed after a
// line's "|" must be the mnemonic of some line of the file, and no line may refer back to itself,
// directly or through a chain of references.
#pragma once

#include <string>

#include "cert3/mnemonic_table.h"
#include "checks/check_table.h"

namespace zorvik {

struct RunContext;

// Fills slots 1-2. Returns CheckStatus::Failed when either holds findings, CheckStatus::Passed
// otherwise, CheckStatus::Fault when an internal fault ended it (slots then hold what was found so
// far). A file that cannot be opened has no lines, so nothing is found in it.
CheckStatus checkAssociations(RunContext& run, Slots& slots);

// One row for every parameter line of the file's header, parameter and definition sections, in
// file order (the run state's section index must describe the file). An unreadable file gives an
// empty table; may throw only on exhausted memory.
MnemonicTable buildMnemonicTable(RunContext& run);

}  // namespace zorvik
