#include "run/command_log.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "run/clock.h"
#include "run/run_state.h"

namespace zorvik {

namespace {

std::string& folderOverride() {
  static std::string folder;
  return folder;
}

std::string executableFolder() {
  std::error_code ec;
  std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  if (ec) return std::filesystem::current_path(ec).string();
  return exe.parent_path().string();
}

std::function<void(const std::string&)>& sink() {
  static std::function<void(const std::string&)> current;
  return current;
}

// The per-user state folder's log, created on demand; null when there is no home for it.
std::FILE* openStateLog() {
  namespace fs = std::filesystem;
  const char* state = std::getenv("XDG_STATE_HOME");
  const char* home = std::getenv("HOME");
  fs::path base;
  if (state != nullptr && fs::path(state).is_absolute()) {
    base = state;
  } else if (home != nullptr && *home != '\0') {
    base = fs::path(home) / ".local" / "state";
  } else {
    return nullptr;
  }
  std::error_code ec;
  fs::create_directories(base / "zorvik", ec);
  return std::fopen((base / "zorvik" / "command.log").c_str(), "ab");
}

}  // namespace

std::string dataFolder() {
  namespace fs = std::filesystem;
  const fs::path program(programFolder());
  if (program.filename() == "bin") {
    std::error_code ec;
    fs::path shared = program.parent_path() / "share" / "zorvik";
    if (fs::is_directory(shared, ec)) return shared.string();
  }
  return program.string();
}

std::string programFolder() {
  if (!folderOverride().empty()) return folderOverride();
  static const std::string folder = executableFolder();
  return folder;
}

void setProgramFolder(const std::string& folder) {
  folderOverride() = folder;
}

void setCommandLogSink(std::function<void(const std::string& message)> next) {
  sink() = std::move(next);
}

void writeCommandLog(const std::string& message) {
  if (sink()) {
    sink()(message);
    return;
  }
  const RunState& state = runState();
  std::string entry = commandLogDate(localNow());
  entry += '\t';
  entry += state.lasFile;
  entry += '\t';
  entry += state.logFile;
  entry += '\t';
  entry += state.statusLine;
  entry += "\r\n";
  entry += message;
  entry += "\r\n";

  // Opened and closed per entry so that processes writing in turn interleave whole entries.
  std::FILE* file = std::fopen((programFolder() + "/command.log").c_str(), "ab");
  if (file == nullptr) file = openStateLog();
  if (file == nullptr) return;
  std::fwrite(entry.data(), 1, entry.size(), file);
  std::fclose(file);
}

}  // namespace zorvik
