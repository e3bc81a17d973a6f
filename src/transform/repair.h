// Repair of common faults of 1.2/2.0 files: ~Well lines that are missing get defaults and the
// index units are asked of the user. The repaired file replaces the input after a confirmation.
//
// Can fail: the answer is false when nothing was repaired (the input is then left as it was).
#pragma once

#include <functional>
#include <string>

namespace zorvik {

// What a repair asks of the user; the window supplies dialogs, tests supply answers.
struct RepairQuestions {
  // Shows `prompt` and gives back the text typed; empty when the user cancelled.
  std::function<std::string(const std::string& prompt)> askText;
  // A Yes/No question; true for Yes.
  std::function<bool(const std::string& title, const std::string& text)> confirm;
};

bool repairLasFile(const std::string& lasFile, const RepairQuestions& questions);

}  // namespace zorvik
