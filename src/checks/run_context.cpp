#include "checks/run_context.h"

#include "base/command_log.h"

namespace zorvik {

void RunContext::log(std::string_view message) const {
  if (logSink) {
    logSink(message);
    return;
  }
  writeCommandLog(CommandLogHeader{lasFile, logFile, statusLine}, message);
}

}  // namespace zorvik
