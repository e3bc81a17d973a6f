// Group 7 of the 1.2/2.0 catalogue: channel counts of the data against ~Curve, record shape and
// line lengths, and the data section being the file's last section.
//
// Never throws on bad input. CHECK_FAULT when the data section has no first data line.
#pragma once

#include <string>

#include "checks/check_table.h"
#include "las/header_line.h"

namespace zorvik {

// Fills slots 1..4 and returns CHECK_PASSED, CHECK_FAILED or CHECK_FAULT. `linesPerRecord` and
// `channels` are what group 4's wrap analysis found; line lengths of unwrapped data are judged
// only when runState().doWrap is set.
int checkAsciiSection(const std::string& fileName, const std::string& wrapValue, int linesPerRecord,
                      int channels, const ParamTable& curveTable, Slots& slots);

}  // namespace zorvik
