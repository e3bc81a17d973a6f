#include "checks/run_state.h"

#include "base/command_log.h"

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
  return runState().dialect.isV3();
}

void writeCommandLog(const std::string& message) {
  const RunState& state = runState();
  writeCommandLog(CommandLogHeader{state.lasFile, state.logFile, state.statusLine}, message);
}

}  // namespace zorvik
