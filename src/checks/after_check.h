// The steps a version driver takes around its checks: the busy pointer, the progress panel, the
// Escape key and the keeping of a check's findings. Both drivers take the same steps; the order
// they take them in differs between the two and shows (which check a refused cancel forgets, when
// the bar moves), so each driver strings them together itself.
#pragma once

#include "checks/check_table.h"

namespace zorvik {

struct RunContext;

// What the user said to the cancel question.
enum class CancelAnswer {
  NotAsked,  // Escape was not pressed
  Yes,       // the request stays standing; the run driver serves it once the run has stopped
  No,        // the request is withdrawn
};

void showBusy(const RunContext& run, bool busy);
// Lets pending window events run (an Escape press arrives then).
void letEventsRun(const RunContext& run);
// "Doing check N" and the bar at N of the table's groups.
void showCheckProgress(const RunContext& run, const CheckTable& table, int group);
// Lets events run, then asks whether to cancel when Escape was pressed.
CancelAnswer askCancelOnEscape(const RunContext& run);
// Keeps the findings of a check that failed or faulted in its group of the table.
void keepFindings(CheckTable& table, int group, CheckStatus status, const Slots& slots);

}  // namespace zorvik
