// Group 4 of the 3.0 catalogue, "Line Structure Syntax Check": every line outside the title lines
// goes through the 3.0 line parser and each fault it names is filed under its item; then every
// column data section is looked at again for blank or comment lines among its data, for lines
// without the data delimiter, and for having data lines at all.
//
// Item 4 (descriptions) is never decided: its slot keeps whatever the driver preset. Findings
// about the lines of one kind are listed up to a bound and then only counted.
#pragma once

#include <string>

#include "checks/check_table.h"

namespace zorvik {

struct RunContext;

// Fills slots 1-3 and 5-11. Returns CheckStatus::Failed when any of them holds findings,
// CheckStatus::Passed otherwise, CheckStatus::Fault when an internal fault ended it (slots then
// hold what was found so far). A file that cannot be opened has no lines, so nothing is found in
// it.
CheckStatus checkLineStructure3(RunContext& run, Slots& slots);

}  // namespace zorvik
