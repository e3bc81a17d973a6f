#include "base/command_log.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "base/clock.h"
#include "base/file_writer.h"

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

// The per-user state folder's log, its folder created on demand; "" when there is no home for it.
std::string stateLogPath() {
  namespace fs = std::filesystem;
  const char* state = std::getenv("XDG_STATE_HOME");
  const char* home = std::getenv("HOME");
  fs::path base;
  if (state != nullptr && fs::path(state).is_absolute()) {
    base = state;
  } else if (home != nullptr && *home != '\0') {
    base = fs::path(home) / ".local" / "state";
  } else {
    return {};
  }
  std::error_code ec;
  fs::create_directories(base / "zorvik", ec);
  return (base / "zorvik" / "command.log").string();
}

int openLog(const std::string& path) {
  return fileSystemCalls().open(
      path.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666);
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

std::string cappedEntry(std::string entry) {
  if (entry.size() <= COMMAND_LOG_ENTRY_CAP) return entry;
  static constexpr std::string_view kMarker = " [entry cut: too long]\r\n";
  entry.resize(COMMAND_LOG_ENTRY_CAP - kMarker.size());
  // Never leave half of a line end before the marker.
  if (!entry.empty() && entry.back() == '\r') entry.pop_back();
  entry += kMarker;
  return entry;
}

std::string programFolder() {
  if (!folderOverride().empty()) return folderOverride();
  static const std::string folder = executableFolder();
  return folder;
}

void setProgramFolder(const std::string& folder) {
  folderOverride() = folder;
}

void writeCommandLog(const CommandLogHeader& header, std::string_view message) {
  std::string entry = commandLogDate(localNow());
  entry += '\t';
  entry += header.lasFile;
  entry += '\t';
  entry += header.logFile;
  entry += '\t';
  entry += header.statusLine;
  entry += "\r\n";
  entry += message;
  entry += "\r\n";

  // Opened and closed per entry, appended with one write: other processes writing in turn then
  // interleave whole entries, never parts of them.
  FileSystemCalls& calls = fileSystemCalls();
  int fd = openLog(programFolder() + "/command.log");
  if (fd < 0) {
    std::string fallback = stateLogPath();
    if (!fallback.empty()) fd = openLog(fallback);
  }
  if (fd < 0) return;
  // An entry cut short earlier (a full disk) ends without its line end: start on a line of our
  // own rather than gluing this entry to it. The look at the end and the append are made under a
  // short lock, so that no other run's append falls between them; a lock that does not come
  // within about two seconds is done without.
  for (int attempt = 0; attempt < 2000 && ::flock(fd, LOCK_EX | LOCK_NB) != 0; ++attempt) {
    if (errno != EWOULDBLOCK && errno != EINTR) break;
    ::usleep(1000);
  }
  struct stat info {};
  char last = '\n';
  if (::fstat(fd, &info) == 0 && info.st_size > 0 && ::pread(fd, &last, 1, info.st_size - 1) == 1 &&
      last != '\n')
    entry.insert(0, "\r\n");
  entry = cappedEntry(std::move(entry));
  ssize_t written = calls.write(fd, entry.data(), entry.size());
  (void)written;  // a short write is swallowed; the next entry starts on a fresh line
  calls.close(fd);
}

}  // namespace zorvik
