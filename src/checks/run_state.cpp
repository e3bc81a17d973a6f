#include "checks/run_state.h"

namespace zorvik {

RunState& runState() {
  static RunState state;
  return state;
}

void resetRunState() {
  WindowOps* window = runState().window;
  runState() = RunState{};
  runState().window = window;
}

bool isVersion3() {
  return runState().lasVersion == 3.0f;
}

}  // namespace zorvik
