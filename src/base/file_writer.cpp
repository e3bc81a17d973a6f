#include "base/file_writer.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstring>
#include <random>
#include <utility>
#include <vector>

namespace zorvik {

int FileSystemCalls::open(const char* path, int flags, mode_t mode) {
  return ::open(path, flags, mode);
}
ssize_t FileSystemCalls::write(int fd, const void* data, std::size_t size) {
  return ::write(fd, data, size);
}
int FileSystemCalls::fsync(int fd) {
  return ::fsync(fd);
}
int FileSystemCalls::close(int fd) {
  return ::close(fd);
}
int FileSystemCalls::rename(const char* from, const char* to) {
  return ::rename(from, to);
}
int FileSystemCalls::fchown(int fd, uid_t owner, gid_t group) {
  return ::fchown(fd, owner, group);
}
int FileSystemCalls::fchmod(int fd, mode_t mode) {
  return ::fchmod(fd, mode);
}

namespace {

FileSystemCalls& realCalls() {
  static FileSystemCalls calls;
  return calls;
}

thread_local FileSystemCalls* installedCalls = nullptr;

constexpr std::size_t kSinkBuffer = 1 << 16;
constexpr std::string_view kTempInfix = ".zorvik-";
constexpr std::string_view kTempSuffix = ".tmp";
// Room left in a file name for the temporary suffix (infix, pid, random part, ".tmp").
constexpr std::size_t kMaxStemInTempName = 180;

std::string folderOf(const std::string& path) {
  std::size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  if (slash == 0) return "/";
  return path.substr(0, slash);
}

std::string baseNameOf(const std::string& path) {
  std::size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string hexText(unsigned value) {
  char text[16];
  auto [end, ec] = std::to_chars(text, text + sizeof text, value, 16);
  std::string out(text, end);
  return std::string(8 - std::min<std::size_t>(8, out.size()), '0') + out;
}

std::string decimalText(long value) {
  char text[24];
  auto [end, ec] = std::to_chars(text, text + sizeof text, value);
  return std::string(text, end);
}

// A fresh temporary file beside `target`, created exclusively (never through an existing name or
// link). Gives back its descriptor and name; -1 with errno on failure.
int createTemporary(FileSystemCalls& calls, const std::string& target, mode_t mode,
                    std::string& name) {
  static thread_local std::mt19937 random{std::random_device{}()};
  std::string stem = baseNameOf(target).substr(0, kMaxStemInTempName);
  std::string folder = folderOf(target);
  for (int attempt = 0; attempt < 64; ++attempt) {
    name = folder + "/" + stem + std::string(kTempInfix) +
           decimalText(static_cast<long>(getpid())) + "-" +
           hexText(static_cast<unsigned>(random())) + std::string(kTempSuffix);
    int fd = calls.open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
    if (fd >= 0 || errno != EEXIST) return fd;
  }
  return -1;
}

void syncFolder(const std::string& folder) {
  // The rename is already visible; a folder that cannot be synced (some file systems refuse it)
  // leaves nothing to undo, so this is best effort.
  int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

}  // namespace

FileSystemCalls& fileSystemCalls() {
  return installedCalls != nullptr ? *installedCalls : realCalls();
}

ScopedFileSystemCalls::ScopedFileSystemCalls(FileSystemCalls& calls) : previous_(installedCalls) {
  installedCalls = &calls;
}

ScopedFileSystemCalls::~ScopedFileSystemCalls() {
  installedCalls = previous_;
}

std::string describeWriteError(const WriteError& error) {
  std::string what;
  switch (error.step) {
    case WriteStep::Resolve:
      what = "its name could not be followed";
      break;
    case WriteStep::NotRegularFile:
      what = "it is not a regular file";
      break;
    case WriteStep::CreateTemporary:
      what = "no temporary file could be created beside it";
      break;
    case WriteStep::KeepOwner:
      what = "its owner and group could not be kept";
      break;
    case WriteStep::KeepMode:
      what = "its permissions could not be kept";
      break;
    case WriteStep::Produce:
      what = "its new content could not be made";
      break;
    case WriteStep::Write:
      what = "writing failed";
      break;
    case WriteStep::Sync:
      what = "flushing to disk failed";
      break;
    case WriteStep::Close:
      what = "closing failed";
      break;
    case WriteStep::Changed:
      break;  // the check that refused it gives the reason
    case WriteStep::Rename:
      what = "the new file could not take its name";
      break;
  }
  if (!error.detail.empty()) what += (what.empty() ? "" : ": ") + error.detail;
  if (error.error != 0) what += std::string(": ") + std::strerror(error.error);
  return what;
}

FileSink::FileSink(int fd) : fd_(fd) {
  buffer_.reserve(kSinkBuffer);
}

void FileSink::write(std::string_view bytes) {
  if (failure_) return;
  buffer_.append(bytes);
  if (buffer_.size() >= kSinkBuffer) flush();
}

void FileSink::abandon(std::string reason, int error) {
  if (!failure_) failure_ = WriteError{WriteStep::Produce, error, std::move(reason)};
}

bool FileSink::flush() {
  FileSystemCalls& calls = fileSystemCalls();
  std::size_t done = 0;
  while (!failure_ && done < buffer_.size()) {
    ssize_t n = calls.write(fd_, buffer_.data() + done, buffer_.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      // A write that takes nothing is a full disk that did not say so.
      failure_ = WriteError{WriteStep::Write, n < 0 ? errno : ENOSPC, {}};
      break;
    }
    done += static_cast<std::size_t>(n);
  }
  buffer_.clear();
  return !failure_;
}

std::string resolveDestination(const std::string& path) {
  std::string current = path;
  for (int hops = 0; hops < 40; ++hops) {
    struct stat info {};
    if (::lstat(current.c_str(), &info) != 0) {
      if (errno == ENOENT) return current;  // a new file (or a dangling link's target)
      return {};
    }
    if (!S_ISLNK(info.st_mode)) return current;
    std::vector<char> target(static_cast<std::size_t>(PATH_MAX) + 1);
    ssize_t n = ::readlink(current.c_str(), target.data(), target.size() - 1);
    if (n < 0) return {};
    std::string next(target.data(), static_cast<std::size_t>(n));
    current = (!next.empty() && next[0] == '/') ? next : folderOf(current) + "/" + next;
  }
  errno = ELOOP;
  return {};
}

std::optional<WriteError> writeFileSafely(const std::string& destination, const Producer& produce,
                                          const WriteOptions& options) {
  FileSystemCalls& calls = fileSystemCalls();
  std::string target = resolveDestination(destination);
  if (target.empty()) return WriteError{WriteStep::Resolve, errno, {}};

  struct stat existing {};
  bool exists = ::stat(target.c_str(), &existing) == 0;
  if (!exists && errno != ENOENT) return WriteError{WriteStep::Resolve, errno, {}};
  if (exists && !S_ISREG(existing.st_mode)) return WriteError{WriteStep::NotRegularFile, 0, {}};

  // A new file gets the usual mode less the umask; an existing one gets its own mode below.
  std::string temp;
  int fd = createTemporary(calls, target, exists ? 0600 : 0666, temp);
  if (fd < 0) return WriteError{WriteStep::CreateTemporary, errno, {}};

  std::optional<WriteError> failure;
  auto fail = [&](WriteStep step) {
    if (!failure) failure = WriteError{step, errno, {}};
  };
  if (exists) {
    struct stat mine {};
    if (::fstat(fd, &mine) != 0) {
      fail(WriteStep::KeepOwner);
    } else if ((mine.st_uid != existing.st_uid || mine.st_gid != existing.st_gid) &&
               calls.fchown(fd, existing.st_uid, existing.st_gid) != 0) {
      fail(WriteStep::KeepOwner);
    }
    if (!failure && calls.fchmod(fd, existing.st_mode & 07777) != 0) fail(WriteStep::KeepMode);
  }

  if (!failure) {
    FileSink sink(fd);
    produce(sink);
    sink.flush();
    failure = sink.failure();
  }
  if (!failure && calls.fsync(fd) != 0) fail(WriteStep::Sync);
  if (calls.close(fd) != 0) fail(WriteStep::Close);
  if (!failure && options.beforeRename) failure = options.beforeRename();
  if (!failure && calls.rename(temp.c_str(), target.c_str()) != 0) fail(WriteStep::Rename);
  if (failure) {
    ::unlink(temp.c_str());
    return failure;
  }
  syncFolder(folderOf(target));
  return std::nullopt;
}

std::optional<WriteError> writeFileSafely(const std::string& destination, std::string_view bytes) {
  return writeFileSafely(destination, [bytes](FileSink& sink) { sink.write(bytes); });
}

bool isWriterTemporaryName(std::string_view fileName, long& pid) {
  // <stem>.zorvik-<pid>-<8 hex digits>.tmp
  if (fileName.size() < kTempSuffix.size() ||
      fileName.substr(fileName.size() - kTempSuffix.size()) != kTempSuffix)
    return false;
  std::string_view rest = fileName.substr(0, fileName.size() - kTempSuffix.size());
  std::size_t infix = rest.rfind(kTempInfix);
  if (infix == std::string_view::npos) return false;
  rest.remove_prefix(infix + kTempInfix.size());
  std::size_t dash = rest.find('-');
  if (dash == std::string_view::npos || dash == 0 || rest.size() - dash - 1 != 8) return false;
  for (char c : rest.substr(dash + 1))
    if (!((c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'))) return false;
  auto [end, ec] = std::from_chars(rest.data(), rest.data() + dash, pid);
  return ec == std::errc() && end == rest.data() + dash && pid > 0;
}

int removeLeftoverTemporaries(const std::string& folder, std::time_t runStart) {
  DIR* dir = ::opendir(folder.empty() ? "." : folder.c_str());
  if (dir == nullptr) return 0;
  int removed = 0;
  while (const dirent* entry = ::readdir(dir)) {
    long pid = 0;
    if (!isWriterTemporaryName(entry->d_name, pid)) continue;
    std::string path = (folder.empty() ? "." : folder) + "/" + entry->d_name;
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) continue;
    if (info.st_mtime >= runStart) continue;
    // A process that still exists may be writing it right now.
    if (pid != static_cast<long>(getpid()) &&
        (::kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH))
      continue;
    if (::unlink(path.c_str()) == 0) ++removed;
  }
  ::closedir(dir);
  return removed;
}

}  // namespace zorvik
