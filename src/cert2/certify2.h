// The check driver for LAS 1.2 and 2.0 files: runs groups 2-7 of the 1.2/2.0 catalogue in order,
// records each group's findings in the run's 1.2/2.0 table, shows its observer the progress, lets
// the user cancel between checks and stops after the first group that recorded a finding.
//
// Never throws: faults inside the checks end the run with RunStatus::Fault and a command log entry;
// the table then keeps what was recorded before the fault.
#pragma once

#include <string>

#include "checks/check_table.h"
#include "checks/index_range.h"
#include "las/header_line.h"

namespace zorvik {

struct RunContext;

// Runs groups 2-7 on the run's LAS file: RunStatus::Completed (all run, or stopped after a failing
// group), RunStatus::Stopped (the user cancelled) or RunStatus::Fault (a fault ended the run).
RunStatus aaCertify2(RunContext& run);

// The check procedures the driver calls, one per group. Tests replace some of them to drive the
// run through states that real files reach only rarely.
struct Certify2Checks {
  CheckStatus (*versionSection)(RunContext& run, const ParamTable& versionTable,
                                std::string& wrapValue, Slots& slots);
  CheckStatus (*sectionStructure)(RunContext& run, Slots& slots);
  CheckStatus (*lineSyntax)(RunContext& run, const std::string& wrapValue,
                            const ParamTable& curveTable, Slots& slots, int& linesPerRecord,
                            int& channels);
  CheckStatus (*wellMnemonics)(const ParamTable& wellTable, CheckTable& table, Slots& slots);
  CheckStatus (*indexRange)(RunContext& run, const WellRange& well, const std::string& wrapValue,
                            const ParamTable& wellTable, const ParamTable& curveTable,
                            Slots& slots);
  CheckStatus (*asciiSection)(RunContext& run, const std::string& wrapValue, int linesPerRecord,
                              int channels, const ParamTable& curveTable, Slots& slots);
};

// The procedures aaCertify2 uses.
Certify2Checks standardCertify2Checks();

// aaCertify2 with the given check procedures.
RunStatus aaCertify2With(RunContext& run, const Certify2Checks& checks);

}  // namespace zorvik
