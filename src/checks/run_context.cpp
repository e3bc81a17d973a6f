#include "checks/run_context.h"

#include "base/command_log.h"

namespace zorvik {

const LasFile& RunContext::source() {
  if (!source_.isOpen() || source_.path() != lasFile) source_.open(lasFile);
  return source_;
}

void RunContext::log(std::string_view message) const {
  if (logSink) {
    logSink(message);
    return;
  }
  writeCommandLog(CommandLogHeader{lasFile, logFile, statusLine}, message);
}

}  // namespace zorvik
