// Group 7 of the 3.0 catalogue, "Column Data Section Checks": for every column data section, its
// channel count against its definition section, the delimited item count of every data line, and
// every data item against the format its channel definition states.
//
// Each data section is read once, line by line; findings about its lines are listed up to a
// bound and then only counted.
#pragma once

#include <string>

#include "checks/check_table.h"
#include "las/section_types.h"

namespace zorvik {

struct RunContext;

// Fills slots 1-3. Returns CheckStatus::Failed when any of them holds text, CheckStatus::Passed
// otherwise, CheckStatus::Fault when an internal fault ended it (slots then hold what was found so
// far). A file that cannot be opened has no data lines.
CheckStatus checkColumnData(RunContext& run, Slots& slots);

// Name of the definition section whose channels the data section's items follow: the section
// its title names after "|", else the definition section of its set ("Log" of "Log_Data"), else
// for the ~ASCII section the file's curve section; "" when there is none. Cannot fail.
std::string definitionSectionFor(const SectionIndex& sections, const SectionEntry& dataSection);

}  // namespace zorvik
