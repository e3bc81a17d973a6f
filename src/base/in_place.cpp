#include "base/in_place.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace zorvik {

namespace {

bool sameFile(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool unchanged(const struct stat& a, const struct stat& b) {
  return sameFile(a, b) && a.st_size == b.st_size && a.st_mtim.tv_sec == b.st_mtim.tv_sec &&
         a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

RewriteResult refused(std::string reason) {
  return {RewriteOutcome::Refused, std::move(reason)};
}

RewriteResult refusedByErrno(const char* what) {
  return refused(std::string(what) + ": " + std::strerror(errno));
}

// Closes the descriptor (and so drops its lock) however the rewrite ends.
struct LockedFile {
  int fd = -1;
  ~LockedFile() {
    if (fd >= 0) ::close(fd);
  }
};

}  // namespace

RewriteResult rewriteInPlace(const std::string& path, const PlanEdit& plan) {
  std::string target = resolveDestination(path);
  if (target.empty()) return refusedByErrno("its name could not be followed");

  LockedFile file;
  struct stat locked {};
  // The lock belongs to the file, not to its name: when another run replaced the file while this
  // one waited for the lock, the name now leads to the new file, which is locked in turn.
  for (int attempt = 0;; ++attempt) {
    if (attempt == 100) return refused("it kept being replaced while waiting for it");
    // Non-blocking, so that a pipe under the name cannot hold the run up; regular files ignore it.
    file.fd = ::open(target.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW);
    if (file.fd < 0) return refusedByErrno("it could not be opened");
    if (::fstat(file.fd, &locked) != 0) return refusedByErrno("it could not be looked at");
    if (!S_ISREG(locked.st_mode)) return refused("it is not a regular file");
    while (::flock(file.fd, LOCK_EX) != 0)
      if (errno != EINTR) return refusedByErrno("it could not be locked");
    struct stat named {};
    if (::stat(target.c_str(), &named) == 0 && sameFile(named, locked) &&
        ::fstat(file.fd, &locked) == 0)
      break;
    ::close(file.fd);
    file.fd = -1;
  }

  if ((locked.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || ::access(target.c_str(), W_OK) != 0)
    return refused("it is read-only");
  if (locked.st_nlink > 1) return refused("it has more than one hard link");

  EditPlan edit = plan(target);
  if (edit.kind == EditPlan::Kind::NothingToDo) return {RewriteOutcome::NothingToDo, {}};
  if (edit.kind == EditPlan::Kind::Refuse) return refused(edit.reason);

  WriteOptions options;
  options.beforeRename = [&]() -> std::optional<WriteError> {
    struct stat now {};
    if (::stat(target.c_str(), &now) != 0 || !unchanged(now, locked))
      return WriteError{WriteStep::Changed, 0, "it changed since it was read"};
    return std::nullopt;
  };
  if (auto failure = writeFileSafely(target, edit.produce, options))
    return refused(describeWriteError(*failure));
  return {RewriteOutcome::Rewritten, {}};
}

}  // namespace zorvik
