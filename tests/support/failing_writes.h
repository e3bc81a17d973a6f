// A full disk for the files of one name: installed with ScopedFileSystemCalls, it makes the safe
// writer fail (or stop short) on exactly the files a test picks.
#pragma once

#include <cerrno>
#include <set>
#include <string>
#include <utility>

#include "base/file_writer.h"

namespace zorvik::testing {

// Real calls, except that writes to files whose name holds `namePart` fail with ENOSPC, or, with
// `shortOnce`, the first of them takes half of its bytes.
class FailingWrites : public FileSystemCalls {
 public:
  explicit FailingWrites(std::string namePart, bool shortOnce = false)
      : namePart_(std::move(namePart)), shortOnce_(shortOnce) {}
  int open(const char* path, int flags, mode_t mode) override {
    int fd = FileSystemCalls::open(path, flags, mode);
    if (fd >= 0 && std::string(path).find(namePart_) != std::string::npos) chosen_.insert(fd);
    return fd;
  }
  ssize_t write(int fd, const void* data, std::size_t size) override {
    if (chosen_.count(fd) == 0) return FileSystemCalls::write(fd, data, size);
    if (shortOnce_) {
      shortOnce_ = false;
      chosen_.erase(fd);
      return FileSystemCalls::write(fd, data, size / 2);
    }
    errno = ENOSPC;
    return -1;
  }
  int close(int fd) override {
    chosen_.erase(fd);
    return FileSystemCalls::close(fd);
  }

 private:
  std::string namePart_;
  bool shortOnce_;
  std::set<int> chosen_;
};

}  // namespace zorvik::testing
