// Group 9 of the 3.0 catalogue, "Array Channel Checks": in every column definition section the
// elements of an array channel (a format written "{A...}") must carry "[n]", be numbered 1..n,
// stand together, share one spacing in their format and one unit.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "checks/check_table.h"

namespace zorvik {

struct RunContext;

// Fills slots 1-5. A section with an array element lacking "[n]" is not tested for items 2-5; when
// no section was, those keep the preset they came with (a single blank: undecided).
// Returns CheckStatus::Failed when any of them holds findings, CheckStatus::Passed otherwise,
// CheckStatus::Fault when an internal fault ended it (slots then hold what was found so far). A
// file that cannot be opened has no lines, so nothing is found in it.
CheckStatus checkArrayChannels(RunContext& run, Slots& slots);

// The helpers below cannot fail.
//
// The whole number between a mnemonic's "[" and the following "]"; none when there is none
// ("NMR[3]" gives 3, "NMR", "NMR[]" and "NMR[x]" give none).
std::optional<int> arrayElementNumber(std::string_view mnemonic);
// The mnemonic without its "[" and what follows ("NMR[3]" gives "NMR").
std::string_view arrayBaseMnemonic(std::string_view mnemonic);
// The text between a line's first "{" and its first "}", trimmed, as written (array marker and
// spacing kept); "" when either is missing or the "}" comes first.
std::string_view writtenFormat(std::string_view line);

}  // namespace zorvik
