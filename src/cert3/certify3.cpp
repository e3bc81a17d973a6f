#include "cert3/certify3.h"

#include <initializer_list>

#include "base/fault.h"
#include "base/text.h"
#include "cert3/array_channels.h"
#include "cert3/associations.h"
#include "cert3/column_data.h"
#include "cert3/line_structure3.h"
#include "cert3/well_checks3.h"
#include "checks/after_check.h"
#include "checks/catalogue.h"
#include "checks/file_value.h"
#include "checks/index_range.h"
#include "checks/null_stop_repair.h"
#include "checks/run_context.h"
#include "checks/section_structure.h"
#include "checks/title_lines.h"
#include "checks/version_checks.h"
#include "las/header_line.h"
#include "las/sections.h"

namespace zorvik {
namespace {

// Thrown by the after-check routine when the user confirms the cancel question.
struct CancelRequested {};

// How the after-check routine lets the driver go on.
enum class Next { Continue, Stop };

// The lines of the header sections the checks share, read once at the start.
struct HeaderTables {
  ParamTable version;
  ParamTable well;
  ParamTable curve;
  ParamTable parameter;
};

// Every cell of the table but those of group 1, which the run driver fills before this driver
// runs: a file that failed a file-level check keeps failing and stops after group 2.
void clearAllButGroup1(CheckTable& table) {
  for (int g = 0; g <= table.lastGroup(); ++g)
    if (g != 1) table.clearGroup(g);
}

// The delimiter that the ~Version section's DLM word stands for; an unknown word reads as a space.
void storeDataDelimiter(RunContext& run) {
  const std::string word = lookupFileValue(run, "DLM", "Version");
  const std::string delimiter = delimiterForWord(word);
  run.dialect.delimiter = delimiter.empty() ? " " : delimiter;
}

void presetSlots(Slots& slots, std::initializer_list<int> undecided) {
  for (RowResult& row : slots) row.clear();
  for (int k : undecided) slots[k].markNotReached();
}

// Progress, display marks, record, stop test, then the cancel question; in this order.
Next afterCheck(RunContext& run, int group, CheckStatus code, const Slots& slots) {
  CheckTable& table = run.table3;
  showCheckProgress(run, table, group);
  letEventsRun(run);
  for (int r = 1; r <= table.lastRow(); ++r) table.at(r, COL_MARK, group) = " ";
  keepFindings(table, group, code, slots);
  if (code == CheckStatus::Fault) throw FaultError(Fault{});
  // Group 0 (the title line pass) never stops the run, whatever group 1 holds.
  if (group > 0 && anyFailure(table)) return Next::Stop;
  // A Yes leaves the request standing, which is how the trap tells a cancel from a fault.
  if (askCancelOnEscape(run) == CancelAnswer::Yes) throw CancelRequested{};
  return Next::Continue;
}

void readHeaderTables(RunContext& run, HeaderTables& tables) {
  const LasFile& file = run.source();
  parseSectionTable(file, run.dialect, run.sections, tables.version, "Version");
  parseSectionTable(file, run.dialect, run.sections, tables.well, "Well");
  if (!run.sections.curveName.empty())
    parseSectionTable(file, run.dialect, run.sections, tables.curve, run.sections.curveName);
  if (!run.sections.paramName.empty())
    parseSectionTable(file, run.dialect, run.sections, tables.parameter, run.sections.paramName);
}

// The catalogue names the data section and the country in some of its titles.
void layOutCatalogueForFile(RunContext& run, const HeaderTables& tables) {
  run.dataSectionTitle = run.sections.dataName.empty() ? "" : "~" + run.sections.dataName;
  run.countryCode = trim(mnemonicValue(tables.well, "CTRY"));
  layOutCatalogue(run);
}

WellRange wellRangeOf(const ParamTable& well) {
  return WellRange{mnemonicValue(well, "STRT"), mnemonicValue(well, "STOP"),
                   mnemonicValue(well, "STEP"), mnemonicValue(well, "NULL")};
}

// Runs the groups in order; returns when the run ends normally or a stop test ends it.
void runGroups(RunContext& run) {
  Slots slots;

  presetSlots(slots, {});
  CheckStatus code = checkTitleLines3(run.source(), slots[7], &run.sections.tildeLines);
  if (afterCheck(run, 0, code, slots) == Next::Stop) return;

  storeDataDelimiter(run);
  locateStandardSections(run.source(), run.dialect, run.sections);
  HeaderTables tables;
  readHeaderTables(run, tables);
  layOutCatalogueForFile(run, tables);

  presetSlots(slots, {1, 2, 3, 4, 5, 6, 7, 8, 9});
  std::string wrapValue;
  code = checkVersionSection(run, tables.version, wrapValue, slots);
  if (afterCheck(run, 2, code, slots) == Next::Stop) return;
  storeDataDelimiter(run);  // the later checks see the delimiter as group 2 left it

  presetSlots(slots, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
  code = checkSectionStructure(run, slots);
  if (afterCheck(run, 3, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3, 5, 6, 7, 8, 9, 10, 11});  // descriptions never fail
  code = checkLineStructure3(run, slots);
  if (afterCheck(run, 4, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3, 4, 5, 6});
  code = checkWellSection3(run, tables.well, slots);
  const WellRange range = wellRangeOf(tables.well);
  if (afterCheck(run, 5, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3, 4, 5, 6, 7});
  run.nullStopRepaired = false;
  code = run.sections.standardFound
             ? checkIndexRangeRepairing(run, range, wrapValue, tables.well, tables.curve, slots)
             : CheckStatus::Passed;
  if (afterCheck(run, 6, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3});
  code = checkColumnData(run, slots);
  if (afterCheck(run, 7, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2});
  code = checkAssociations(run, slots);
  if (afterCheck(run, 8, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3, 4, 5});
  code = checkArrayChannels(run, slots);
  if (afterCheck(run, 9, code, slots) == Next::Stop) return;

  letEventsRun(run);
}

}  // namespace

RunStatus aaCertify3(RunContext& run) {
  RunStatus result = RunStatus::Completed;
  showBusy(run, true);
  try {
    clearAllButGroup1(run.table3);
    runGroups(run);
  } catch (...) {
    if (run.observer != nullptr && run.observer->cancelRequested()) {
      result = RunStatus::Stopped;
    } else {
      result = RunStatus::Fault;
      Fault fault;
      try {
        throw;
      } catch (const FaultError& e) {
        fault = e.fault();
      } catch (const CancelRequested&) {
      } catch (...) {
        fault = currentFault();
      }
      run.log(handlerMessage("aaCertify3", fault));
    }
  }
  showBusy(run, false);
  return result;
}

}  // namespace zorvik
