#include "las/las_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "base/file_writer.h"

namespace zorvik {

LasFile::~LasFile() {
  close();
}

LasFile::LasFile(LasFile&& other) noexcept
    : fd_(std::exchange(other.fd_, -1)),
      length_(std::exchange(other.length_, 0)),
      path_(std::move(other.path_)) {}

LasFile& LasFile::operator=(LasFile&& other) noexcept {
  if (this != &other) {
    close();
    fd_ = std::exchange(other.fd_, -1);
    length_ = std::exchange(other.length_, 0);
    path_ = std::move(other.path_);
  }
  return *this;
}

bool LasFile::open(const std::string& path) {
  close();
  openError_ = 0;
  // Non-blocking, so that a pipe with no writer cannot hang the open; reads of regular files
  // are not affected by the flag.
  int fd = fileSystemCalls().open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0);
  if (fd < 0) {
    openError_ = errno;
    return false;
  }
  struct stat info {};
  if (::fstat(fd, &info) != 0) {
    openError_ = errno;
    ::close(fd);
    errno = openError_;
    return false;
  }
  if (S_ISDIR(info.st_mode)) {
    ::close(fd);
    errno = openError_ = EISDIR;
    return false;
  }
  fd_ = fd;
  length_ = S_ISREG(info.st_mode) ? static_cast<std::int64_t>(info.st_size) : 0;
  path_ = path;
  return true;
}

void LasFile::close() {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
  length_ = 0;
  path_.clear();
}

std::optional<LasFile::Stamp> LasFile::stamp() const {
  struct stat info {};
  if (fd_ < 0 || ::fstat(fd_, &info) != 0) return std::nullopt;
  return Stamp{static_cast<std::uint64_t>(info.st_dev), static_cast<std::uint64_t>(info.st_ino),
               static_cast<std::int64_t>(info.st_size),
               static_cast<std::int64_t>(info.st_mtim.tv_sec) * 1'000'000'000 +
                   static_cast<std::int64_t>(info.st_mtim.tv_nsec)};
}

std::int64_t LasFile::readAt(std::int64_t offset, char* into, std::size_t count) const {
  if (fd_ < 0 || offset < 0) return -1;
  for (;;) {
    ssize_t got = ::pread(fd_, into, count, static_cast<off_t>(offset));
    if (got >= 0) return got;
    if (errno != EINTR) return -1;
  }
}

}  // namespace zorvik
