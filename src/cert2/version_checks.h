// Checks of the ~Version section (group 2 of both catalogues) and the data delimiter words.
//
// Neither function throws on bad input: findings go into `slots`, and a missing mnemonic is a
// finding, not a failure of the procedure.
#pragma once

#include <string>
#include <string_view>

#include "checks/check_table.h"
#include "las/header_line.h"

namespace zorvik {

// Checks VERS, WRAP (and for 3.0 DLM) of the ~Version table against the run state's sniffed
// version, confirming or correcting runState().lasVersion from VERS. `wrapValue` receives the
// WRAP value as written ("" when absent). Returns CHECK_PASSED or CHECK_FAILED; on CHECK_FAULT
// the slots hold whatever was written before the fault.
int checkVersionSection(const ParamTable& versionTable, std::string& wrapValue, Slots& slots);

// The delimiter character for a DLM word: "SPACE" -> " ", "COMMA" -> ",", "TAB" -> "\t"
// (ignoring case and surrounding blanks); "" for any other word.
std::string delimiterForWord(std::string_view dlmValue);

}  // namespace zorvik
