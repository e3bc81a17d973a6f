// Group 7 of the 1.2/2.0 catalogue: channel counts of the data against ~Curve, record shape and
// line lengths, and the data section being the file's last section.
//
// Never throws on bad input. CheckStatus::Fault when the data section has no first data line.
#pragma once

#include <string>

#include "checks/check_table.h"
#include "checks/data_scan.h"
#include "las/header_line.h"
#include "las/section_types.h"

namespace zorvik {

struct RunContext;

// Fills slots 1..4 and returns CheckStatus::Passed, CheckStatus::Failed or CheckStatus::Fault.
// `linesPerRecord` and `channels` are what group 4's wrap analysis found; line lengths of unwrapped
// data are judged only when the run asks for the wrap checks.
CheckStatus checkAsciiSection(RunContext& run, const std::string& wrapValue, int linesPerRecord,
                              int channels, const ParamTable& curveTable, Slots& slots);

// The number of channel definitions the data section must carry values for: those of the section
// it is associated with, or of the driver's ~Curve table when that is the one or the data names
// none. `definitionName` receives that section's name. Cannot fail (a missing section has none).
int dataChannelDefinitions(RunContext& run, const SectionEntry& dataSection,
                           const ParamTable& curveTable, std::string& definitionName);

// How the records of the data are judged for a WRAP value and group 4's lines per record; line
// lengths only with `judgeLength`.
RecordRules asciiRecordRules(const std::string& wrapValue, int linesPerRecord, int definitions,
                             bool judgeLength);

}  // namespace zorvik
