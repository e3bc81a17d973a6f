#include "checks/after_check.h"

#include <cmath>

#include "base/text.h"
#include "checks/catalogue.h"
#include "checks/run_context.h"

namespace zorvik {

void showBusy(const RunContext& run, bool busy) {
  if (run.observer != nullptr) run.observer->setBusyPointer(busy);
}

void letEventsRun(const RunContext& run) {
  if (run.observer != nullptr) run.observer->processEvents();
}

void showCheckProgress(const RunContext& run, const CheckTable& table, int group) {
  if (run.observer == nullptr) return;
  const int percent =
      static_cast<int>(std::lround(100.0 * group / static_cast<double>(table.lastGroup())));
  run.observer->setProgress(percent, "Doing check " + toText(group) + " (Press ESC to cancel...)");
}

CancelAnswer askCancelOnEscape(const RunContext& run) {
  RunObserver* observer = run.observer;
  if (observer == nullptr) return CancelAnswer::NotAsked;
  observer->processEvents();
  if (!observer->cancelRequested()) return CancelAnswer::NotAsked;
  if (observer->askYesNo("Please Confirm!", "Do you want to cancel the certification in progress?"))
    return CancelAnswer::Yes;
  observer->clearCancelRequest();
  return CancelAnswer::No;
}

void keepFindings(CheckTable& table, int group, CheckStatus status, const Slots& slots) {
  if (status == CheckStatus::Failed || status == CheckStatus::Fault)
    storeGroupResults(table, group, slots);
}

}  // namespace zorvik
