#include "checks/null_stop_repair.h"

#include "base/text.h"
#include "checks/run_context.h"
#include "las/param_writer.h"
#include "las/sections.h"

namespace zorvik {

bool repairNullStop(RunContext& run, const std::string& nullStop, const std::string& value) {
  ParameterRewrite rewrite =
      rewriteParameterInPlace(run.lasFile, {"Well", "V", "W"}, "STOP", nullStop, value);
  bool repaired = false;
  switch (rewrite.result.outcome) {
    case RewriteOutcome::Rewritten:
      run.log("LAS file " + run.lasFile + " rewritten: STOP value " + rewrite.oldValue +
              " replaced by " + value + ".");
      repaired = true;
      break;
    case RewriteOutcome::NothingToDo:
      repaired = true;
      break;
    case RewriteOutcome::Refused:
      run.log("Error: LAS file " + run.lasFile +
              " could not be rewritten: " + rewrite.result.reason + ".");
      break;
  }
  if (!repaired) {
    if (run.observer != nullptr)
      run.observer->showCritical(
          "Error Repairing Null STOP Value",
          "STOP was NULL (real time file?), but there was an error attempting to update the "
          "STOP value in ~Well section with last index value of ~" +
              run.sections.dataName +
              ". Manually change the STOP parameter value to the correct number and try Zorvik "
              "again.");
    return false;
  }
  run.nullStopRepaired = true;
  run.dataScan = {};
  // The rewrite put a new file at the path: read that one from now on.
  run.closeSource();
  buildSectionIndex(run.source(), run.dialect, run.sections);
  return true;
}

CheckStatus checkIndexRangeRepairing(RunContext& run, const WellRange& well,
                                     const std::string& wrapValue, const ParamTable& wellTable,
                                     const ParamTable& curveTable, Slots& slots) {
  run.nullStopRepaired = false;
  std::string lastIndex;
  const CheckStatus result =
      checkIndexRange(run, well, wrapValue, wellTable, curveTable, slots, &lastIndex);
  if (result != CheckStatus::NullStop) return result;
  if (!repairNullStop(run, trim(well.stop), lastIndex)) return CheckStatus::Fault;

  // The rest of the run keeps the tables as read; only this check sees the repaired STOP.
  WellRange repairedRange = well;
  repairedRange.stop = lastIndex;
  ParamTable repairedWell = wellTable;
  for (int i = 1; i <= repairedWell.lastEntry(); ++i)
    if (iequals(repairedWell.at(FIELD_MNEMONIC, i), "STOP")) {
      repairedWell.entries.at(i).at(FIELD_VALUE) = lastIndex;
      break;
    }
  return checkIndexRange(run, repairedRange, wrapValue, repairedWell, curveTable, slots, nullptr);
}

}  // namespace zorvik
