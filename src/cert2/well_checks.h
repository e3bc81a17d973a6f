// Group 5 of the 1.2/2.0 catalogue: the required ~Well mnemonics and the country-specific sets.
//
// Never throws on bad input: absent mnemonics are findings.
#pragma once

#include <string>

#include "checks/check_table.h"
#include "las/header_line.h"

namespace zorvik {

// Fills slot 1 (missing required mnemonics) and slot 2 (the note naming what each country set
// lacks, written only when neither set is complete); the other slots are emptied. When exactly
// one country set is complete, appends " (CDN Requirements)" or " (USA Requirements)" to the
// title of row 2 of group 5 in `table`. Returns CheckStatus::Passed when both rows pass, else
// CheckStatus::Failed.
CheckStatus checkWellMnemonics(const ParamTable& wellTable, CheckTable& table, Slots& slots);

}  // namespace zorvik
