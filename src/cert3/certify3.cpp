#include "cert3/certify3.h"

#include <cmath>
#include <initializer_list>

#include "base/command_log.h"
#include "base/fault.h"
#include "base/text.h"
#include "cert3/array_channels.h"
#include "cert3/associations.h"
#include "cert3/column_data.h"
#include "cert3/line_structure3.h"
#include "cert3/well_checks3.h"
#include "checks/catalogue.h"
#include "checks/file_value.h"
#include "checks/index_range.h"
#include "checks/run_state.h"
#include "checks/section_structure.h"
#include "checks/title_lines.h"
#include "checks/version_checks.h"
#include "checks/window_ops.h"
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

void setBusy(bool busy) {
  if (WindowOps* w = runState().window) w->setBusyPointer(busy);
}

void letEventsRun() {
  if (WindowOps* w = runState().window) w->processEvents();
}

// Every cell of the table but those of group 1, which the run driver fills before this driver
// runs: a file that failed a file-level check keeps failing and stops after group 2.
void clearAllButGroup1(CheckTable& table) {
  for (int g = 0; g <= table.lastGroup(); ++g) {
    if (g == 1) continue;
    for (int r = 0; r <= table.lastRow(); ++r)
      for (int c = 0; c <= table.lastColumn(); ++c) table.at(r, c, g).clear();
  }
}

// The delimiter that the ~Version section's DLM word stands for; an unknown word reads as a space.
void storeDataDelimiter(const std::string& fileName) {
  const std::string word = lookupFileValue(fileName, "DLM", "Version");
  const std::string delimiter = delimiterForWord(word);
  runState().dialect.delimiter = delimiter.empty() ? " " : delimiter;
}

void presetSlots(Slots& slots, std::initializer_list<int> undecided) {
  for (std::string& s : slots) s.clear();
  for (int k : undecided) slots[k] = " ";
}

void showProgress(int group) {
  RunState& rs = runState();
  if (!rs.window) return;
  const int percent =
      static_cast<int>(std::lround(group * 100.0 / static_cast<double>(rs.table3.lastGroup())));
  rs.window->setProgress(percent, "Doing check " + toText(group) + " (Press ESC to cancel...)");
  rs.window->processEvents();
}

// Asks whether to cancel when Escape was pressed; throws CancelRequested on Yes (the Escape flag
// stays set, which is how the trap tells a cancel from a fault).
void pollEscape() {
  RunState& rs = runState();
  letEventsRun();
  if (!rs.escapePressed) return;
  // Without a window there is no one to ask: the press is ignored like a suppressed question.
  if (!rs.suppressCancelQuestion && rs.window &&
      rs.window->askYesNo("Please Confirm!",
                          "Do you want to cancel the certification in progress?"))
    throw CancelRequested{};
  rs.escapePressed = false;
}

// Progress, display marks, record, stop test, then the cancel question; in this order.
Next afterCheck(int group, int code, const Slots& slots) {
  RunState& rs = runState();
  CheckTable& table = rs.table3;
  showProgress(group);
  for (int r = 1; r <= table.lastRow(); ++r) table.at(r, COL_MARK, group) = " ";
  if (code == CHECK_FAILED || code == CHECK_FAULT) storeGroupResults(table, group, slots);
  if (code == CHECK_FAULT) throw FaultError(Fault{});
  // Group 0 (the title line pass) never stops the run, whatever group 1 holds.
  if (group > 0 && anyFailure(table)) return Next::Stop;
  pollEscape();
  return Next::Continue;
}

void readHeaderTables(const std::string& fileName, HeaderTables& tables) {
  const RunState& rs = runState();
  parseSectionTable(fileName, runState().dialect, runState().sections, tables.version, "Version");
  parseSectionTable(fileName, runState().dialect, runState().sections, tables.well, "Well");
  if (!rs.sections.curveName.empty())
    parseSectionTable(fileName, runState().dialect, runState().sections, tables.curve,
                      rs.sections.curveName);
  if (!rs.sections.paramName.empty())
    parseSectionTable(fileName, runState().dialect, runState().sections, tables.parameter,
                      rs.sections.paramName);
}

// The catalogue names the data section and the country in some of its titles.
void layOutCatalogueForFile(const HeaderTables& tables) {
  RunState& rs = runState();
  rs.dataSectionTitle = rs.sections.dataName.empty() ? "" : "~" + rs.sections.dataName;
  rs.countryCode = trim(mnemonicValue(tables.well, "CTRY"));
  layOutCatalogue();
}

WellRange wellRangeOf(const ParamTable& well) {
  return WellRange{mnemonicValue(well, "STRT"), mnemonicValue(well, "STOP"),
                   mnemonicValue(well, "STEP"), mnemonicValue(well, "NULL")};
}

// Runs the groups in order; returns when the run ends normally or a stop test ends it.
void runGroups(const std::string& fileName) {
  RunState& rs = runState();
  Slots slots;

  presetSlots(slots, {});
  int code = checkTitleLines3(fileName, slots[7]);
  if (afterCheck(0, code, slots) == Next::Stop) return;

  storeDataDelimiter(fileName);
  locateStandardSections(fileName, runState().dialect, runState().sections);
  HeaderTables tables;
  readHeaderTables(fileName, tables);
  layOutCatalogueForFile(tables);

  presetSlots(slots, {1, 2, 3, 4, 5, 6, 7, 8, 9});
  std::string wrapValue;
  code = checkVersionSection(tables.version, wrapValue, slots);
  if (afterCheck(2, code, slots) == Next::Stop) return;
  storeDataDelimiter(fileName);  // the later checks see the delimiter as group 2 left it

  presetSlots(slots, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
  code = checkSectionStructure(fileName, slots);
  if (afterCheck(3, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3, 5, 6, 7, 8, 9, 10, 11});  // descriptions never fail
  code = checkLineStructure3(fileName, slots);
  if (afterCheck(4, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3, 4, 5, 6});
  code = checkWellSection3(fileName, tables.well, slots);
  const WellRange range = wellRangeOf(tables.well);
  if (afterCheck(5, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3, 4, 5, 6, 7});
  rs.nullStopRepaired = false;
  code = rs.sections.standardFound
             ? checkIndexRange(fileName, range, wrapValue, tables.well, tables.curve, slots)
             : CHECK_PASSED;
  if (afterCheck(6, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3});
  code = checkColumnData(fileName, slots);
  if (afterCheck(7, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2});
  code = checkAssociations(fileName, slots);
  if (afterCheck(8, code, slots) == Next::Stop) return;

  presetSlots(slots, {1, 2, 3, 4, 5});
  code = checkArrayChannels(fileName, slots);
  if (afterCheck(9, code, slots) == Next::Stop) return;

  letEventsRun();
}

}  // namespace

int aaCertify3(const std::string& fileName) {
  RunState& rs = runState();
  int result = RUN_COMPLETED;
  setBusy(true);
  try {
    clearAllButGroup1(rs.table3);
    runGroups(fileName);
  } catch (...) {
    if (rs.escapePressed) {
      result = RUN_STOPPED;
    } else {
      result = RUN_FAULT;
      Fault fault;
      try {
        throw;
      } catch (const FaultError& e) {
        fault = e.fault();
      } catch (const CancelRequested&) {
      } catch (...) {
        fault = currentFault();
      }
      writeCommandLog(handlerMessage("aaCertify3", fault));
    }
  }
  setBusy(false);
  return result;
}

}  // namespace zorvik
