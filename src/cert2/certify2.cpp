#include "cert2/certify2.h"

#include "base/fault.h"
#include "base/text.h"
#include "cert2/ascii_checks.h"
#include "cert2/line_syntax.h"
#include "cert2/well_checks.h"
#include "checks/after_check.h"
#include "checks/catalogue.h"
#include "checks/file_value.h"
#include "checks/null_stop_repair.h"
#include "checks/run_context.h"
#include "checks/section_structure.h"
#include "checks/version_checks.h"
#include "las/sections.h"

namespace zorvik {

namespace {

constexpr int kWellGroup = 5;

// How the run goes on after a check.
enum class Next { Go, Stop, Cancel, Fail };

// Raised inside the run when a check or a section load fails; ends it through the error path
// with fault number 0 ("Error: Error in aaCertify2:").
struct RunFailed {};

Slots presetSlots(int undecidedRows) {
  Slots slots;
  for (int k = 1; k <= undecidedRows; ++k) slots[k].markNotReached();
  return slots;
}

// 1.2/2.0 data is blank delimited; a 3.0 file names its delimiter in ~Version.
std::string currentDelimiter(RunContext& run) {
  if (!run.isV3()) return " ";
  return delimiterForWord(lookupFileValue(run, "DLM", "Version"));
}

// Loads a header section by its full name, and outside 3.0 by its one-letter name when the full
// one is not there; a missing section leaves the table empty.
void loadHeaderTable(RunContext& run, ParamTable& table, std::string_view name,
                     std::string_view letter) {
  if (!parseSectionTable(run.source(), run.dialect, run.sections, table, name) && !run.isV3())
    parseSectionTable(run.source(), run.dialect, run.sections, table, letter);
}

// Loads the section `name` when the run found one.
void loadNamedTable(RunContext& run, ParamTable& table, const std::string& name) {
  if (!name.empty()) parseSectionTable(run.source(), run.dialect, run.sections, table, name);
}

// The country note alone in group 5 keeps the stop rule off for the rest of the run.
bool onlyCountryNoteRecorded(const CheckTable& table) {
  return table.result(1, kWellGroup).passed() &&
         !trimView(table.at(2, COL_NOTE, kWellGroup)).empty();
}

// Runs after every check: events, Escape, progress, recording and the stop rule.
Next afterCheck(RunContext& run, int checkNumber, CheckStatus& checkResult, const Slots& slots) {
  CheckTable& table = run.table2;
  switch (askCancelOnEscape(run)) {
    case CancelAnswer::Yes:
      return Next::Cancel;
    case CancelAnswer::No:
      // Nothing is kept of a check once the user has answered "No", so one that failed just
      // before the answer goes unrecorded.
      checkResult = CheckStatus::Nothing;
      break;
    case CancelAnswer::NotAsked:
      break;
  }
  showCheckProgress(run, table, checkNumber);
  keepFindings(table, checkNumber, checkResult, slots);
  if (checkResult == CheckStatus::Fault) return Next::Fail;

  if (!onlyCountryNoteRecorded(table) && anyFailure(table)) return Next::Stop;
  return Next::Go;
}

// The checks in their order. Returns how the run ended; throws RunFailed or a fault when it
// cannot go on.
Next runChecks(RunContext& run, const Certify2Checks& checks) {
  CheckTable& table = run.table2;
  CheckStatus result = CheckStatus::Fault;
  Next next = Next::Go;

  run.dialect.delimiter = currentDelimiter(run);
  if (!locateStandardSections(run.source(), run.dialect, run.sections)) {
    Slots none;
    if (afterCheck(run, 0, result, none) == Next::Cancel) return Next::Cancel;
    throw RunFailed{};
  }

  ParamTable versionTable;
  ParamTable wellTable;
  ParamTable curveTable;
  ParamTable paramTable;
  loadHeaderTable(run, versionTable, "Version", "V");
  loadHeaderTable(run, wellTable, "Well", "W");
  loadNamedTable(run, curveTable, run.sections.curveName);
  loadNamedTable(run, paramTable, run.sections.paramName);

  // Group 2: ~Version. It may confirm the version, so the delimiter is worked out again.
  std::string wrapValue;
  Slots slots = presetSlots(6);
  result = checks.versionSection(run, versionTable, wrapValue, slots);
  run.dialect.delimiter = currentDelimiter(run);
  if ((next = afterCheck(run, 2, result, slots)) != Next::Go) return next;

  // Group 3: section titles.
  slots = presetSlots(3);
  result = checks.sectionStructure(run, slots);
  if ((next = afterCheck(run, 3, result, slots)) != Next::Go) return next;

  // Group 4: line syntax; also measures the records that group 7 reads.
  int linesPerRecord = 1;
  int channels = 0;
  slots = presetSlots(0);
  result = checks.lineSyntax(run, wrapValue, curveTable, slots, linesPerRecord, channels);
  const bool asciiHasOnlyData = slots[6].passed();
  if ((next = afterCheck(run, 4, result, slots)) != Next::Go) return next;

  // Group 5: ~Well mnemonics. A missing country set alone is a note, not a failure: it is kept
  // beside the row's result, which the verdict and the stop rule read, and the row passes.
  slots = presetSlots(2);
  result = checks.wellMnemonics(wellTable, table, slots);
  if (!slots[1].failed() && !slots[2].passed()) {
    table.at(2, COL_NOTE, kWellGroup) = slots[2].text();
    result = CheckStatus::Passed;
  }
  WellRange well;
  if (result == CheckStatus::Passed) {
    well.strt = mnemonicValue(wellTable, "STRT");
    well.stop = mnemonicValue(wellTable, "STOP");
    well.step = mnemonicValue(wellTable, "STEP");
    well.nullValue = mnemonicValue(wellTable, "NULL");
  }
  if ((next = afterCheck(run, kWellGroup, result, slots)) != Next::Go) return next;

  // Group 6: STRT/STOP/STEP/NULL against the data, only when ~ASCII holds nothing but data;
  // otherwise the result of group 5 stands for it.
  slots = presetSlots(7);
  if (asciiHasOnlyData) {
    run.nullStopRepaired = false;
    result = run.sections.standardFound
                 ? checks.indexRange(run, well, wrapValue, wellTable, curveTable, slots)
                 : CheckStatus::Passed;
  }
  if ((next = afterCheck(run, 6, result, slots)) != Next::Go) return next;

  // Group 7: ~ASCII.
  slots = presetSlots(0);
  result = checks.asciiSection(run, wrapValue, linesPerRecord, channels, curveTable, slots);
  return afterCheck(run, 7, result, slots);
}

}  // namespace

Certify2Checks standardCertify2Checks() {
  return Certify2Checks{checkVersionSection, checkSectionStructure,    checkLineSyntax,
                        checkWellMnemonics,  checkIndexRangeRepairing, checkAsciiSection};
}

RunStatus aaCertify2(RunContext& run) {
  return aaCertify2With(run, standardCertify2Checks());
}

RunStatus aaCertify2With(RunContext& run, const Certify2Checks& checks) {
  showBusy(run, true);
  Fault fault;
  try {
    switch (runChecks(run, checks)) {
      case Next::Go:
        showBusy(run, false);
        return RunStatus::Completed;
      case Next::Stop:
        // The run driver restores the pointer after a stopped run.
        return RunStatus::Completed;
      case Next::Cancel:
        showBusy(run, false);
        return RunStatus::Stopped;
      case Next::Fail:
        break;
    }
  } catch (const RunFailed&) {
  } catch (...) {
    fault = currentFault();
  }

  // Error path: an Escape still pending turns the fault into a cancel.
  if (run.observer != nullptr && run.observer->cancelRequested()) {
    showBusy(run, false);
    return RunStatus::Stopped;
  }
  run.log(fault.number == 0 ? std::string("Error: Error in aaCertify2:")
                            : handlerMessage("aaCertify2", fault));
  showBusy(run, false);
  return RunStatus::Fault;
}

}  // namespace zorvik
