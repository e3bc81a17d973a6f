// Group 4 of the 1.2/2.0 catalogue: the syntax of every header line, the ~ASCII lines, the
// presence of data lines and the data structure against the WRAP value.
//
// Never throws on bad input; every finding goes into the slots, up to about 8 MiB of text per
// slot (a file with a fault on each of millions of lines keeps the first hundred thousand or so).
#pragma once

#include <string>

#include "checks/check_table.h"
#include "las/header_line.h"

namespace zorvik {

struct RunContext;

// Fills slots 1..7 (emptied first) and returns CheckStatus::Passed or CheckStatus::Failed. Reads
// the run's section index and data delimiter, and keeps its data scan for groups 6 and 7;
// `curveTable` gives the channel count the wrap analysis samples against. `linesPerRecord` and
// `channels` receive the wrap analysis' lines per record and channels per record (group 7 needs
// both); they are 1 and 0 when the data could not be analysed.
CheckStatus checkLineSyntax(RunContext& run, const std::string& wrapValue,
                            const ParamTable& curveTable, Slots& slots, int& linesPerRecord,
                            int& channels);

}  // namespace zorvik
