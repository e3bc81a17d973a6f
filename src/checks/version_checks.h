// Checks of the ~Version section (group 2 of both catalogues) and the data delimiter words.
//
// Neither function throws on bad input: findings go into the slots, and a missing section or
// mnemonic is a finding, not a failure of the procedure.
#pragma once

#include <string>
#include <string_view>

#include "checks/check_table.h"
#include "las/header_line.h"

namespace zorvik {

// Checks VERS and WRAP (and for a 3.0 file DLM and the order of the three) in the ~Version table.
// Fills slots 1..9 (the others are emptied): a single space = not reached, "" = passed, other
// text = the finding. Finds the section through the run's section index and confirms or
// corrects the run's version from an acceptable VERS value. `wrapValue` receives the WRAP
// value as written (a single space when WRAP is missing or the section was not found). Returns
// CheckStatus::Passed when slots 1..9 are all empty, else CheckStatus::Failed.
struct RunContext;

CheckStatus checkVersionSection(RunContext& run, const ParamTable& versionTable,
                                std::string& wrapValue, Slots& slots);

// The delimiter character of a DLM word: "SPACE" -> " ", "COMMA" -> ",", "TAB" -> "\t"
// (ignoring case and surrounding blanks); any other word gives a single space.
std::string delimiterForWord(std::string_view dlmValue);

}  // namespace zorvik
