// The one way this program writes a file: a uniquely named temporary file beside the destination,
// filled by a producer that streams into it, synced, and renamed over the destination. Either the
// destination gets the whole new content or it stays exactly as it was.
//
// A destination that is a symbolic link is resolved and its target replaced (the link stays a
// link). A destination that exists but is not a regular file (pipe, device, folder) is refused
// without being opened. An existing file keeps its mode, owner and group; when the owner or group
// cannot be kept the write is refused rather than taking the file over.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <ctime>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace zorvik {

// The system calls the writer makes, behind one interface so that tests can make any of them fail
// (or write short) without filling a real disk.
class FileSystemCalls {
 public:
  virtual ~FileSystemCalls() = default;
  virtual int open(const char* path, int flags, mode_t mode);
  virtual ssize_t write(int fd, const void* data, std::size_t size);
  virtual int fsync(int fd);
  virtual int close(int fd);
  virtual int rename(const char* from, const char* to);
  virtual int fchown(int fd, uid_t owner, gid_t group);
  virtual int fchmod(int fd, mode_t mode);
};

// The calls in force on this thread: the real ones unless a test installed others.
FileSystemCalls& fileSystemCalls();

// Installs `calls` for the current thread while it lives.
class ScopedFileSystemCalls {
 public:
  explicit ScopedFileSystemCalls(FileSystemCalls& calls);
  ~ScopedFileSystemCalls();
  ScopedFileSystemCalls(const ScopedFileSystemCalls&) = delete;
  ScopedFileSystemCalls& operator=(const ScopedFileSystemCalls&) = delete;

 private:
  FileSystemCalls* previous_;
};

// The step of a write that failed.
enum class WriteStep {
  Resolve,          // the destination's name could not be followed to a file or a folder
  NotRegularFile,   // the destination exists and is a pipe, device, folder or the like
  CreateTemporary,  // the temporary file could not be created beside the destination
  KeepOwner,        // the destination's owner or group could not be given to the new file
  KeepMode,         // the destination's mode could not be given to the new file
  Produce,          // the producer gave up (its source could not be read, say)
  Write,            // a write to the temporary file failed or stopped short
  Sync,             // the temporary file could not be flushed to the disk
  Close,            // closing the temporary file failed
  Changed,          // the check made just before the rename refused it
  Rename,           // the temporary file could not take the destination's name
};

struct WriteError {
  WriteStep step = WriteStep::Write;
  int error = 0;       // errno of the failed call; 0 when there is none
  std::string detail;  // a reason given by a producer or a check, when there is one
};

// One short English clause for a command-log entry, e.g. "writing failed: No space left on
// device".
std::string describeWriteError(const WriteError& error);

// What a producer writes into. Buffered; the first failure is kept and later writes are dropped.
class FileSink {
 public:
  explicit FileSink(int fd);
  void write(std::string_view bytes);
  // Gives up the whole write with a reason of the producer's own.
  void abandon(std::string reason, int error = 0);
  // Writes out what is buffered; false once anything has failed.
  bool flush();
  const std::optional<WriteError>& failure() const { return failure_; }

 private:
  int fd_;
  std::string buffer_;
  std::optional<WriteError> failure_;
};

using Producer = std::function<void(FileSink&)>;

struct WriteOptions {
  // Called when the temporary file is complete and synced, just before the rename; an answer
  // refuses the write with that error (the destination is left alone).
  std::function<std::optional<WriteError>()> beforeRename;
};

// Writes `destination` from `produce`. Nothing on success, else what failed; on failure the
// temporary file is gone and the destination untouched.
std::optional<WriteError> writeFileSafely(const std::string& destination, const Producer& produce,
                                          const WriteOptions& options = {});

// The same for content already in memory.
std::optional<WriteError> writeFileSafely(const std::string& destination, std::string_view bytes);

// `path` with its symbolic links followed to the name that is finally written: the first name in
// the chain that is not a link (it may not exist yet). Empty (with errno set) for a loop of links
// or a name that cannot be looked at.
std::string resolveDestination(const std::string& path);

// True when `fileName` (without folder) has the shape of the writer's temporary files; gives back
// the process number it carries.
bool isWriterTemporaryName(std::string_view fileName, long& pid);

// Removes from `folder` the writer's temporary files left by runs that died: the writer's own
// name pattern, a regular file last changed before `runStart`, made by a process that no longer
// exists. Never fails; returns how many were removed.
int removeLeftoverTemporaries(const std::string& folder, std::time_t runStart);

}  // namespace zorvik
