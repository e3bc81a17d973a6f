// A LAS file opened once and read by any number of readers, each at its own position: a run opens
// its file one time however many checks read it.
//
// Opened through the file-system seam of the writers, so tests can count and fail the opens.
// Nothing here throws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace zorvik {

class LasFile {
 public:
  LasFile() = default;
  explicit LasFile(const std::string& path) { open(path); }
  ~LasFile();
  LasFile(LasFile&& other) noexcept;
  LasFile& operator=(LasFile&& other) noexcept;
  LasFile(const LasFile&) = delete;
  LasFile& operator=(const LasFile&) = delete;

  // Opens `path` for reading; false (errno set) when it cannot be opened or is a folder.
  bool open(const std::string& path);
  void close();
  bool isOpen() const { return fd_ >= 0; }
  // errno of the last open that failed (0 when none did).
  int openError() const { return openError_; }
  const std::string& path() const { return path_; }
  // Length in bytes when opened (0 for what is not a regular file).
  std::int64_t length() const { return length_; }

  // Reads up to `count` bytes from the 0-based `offset` into `into`: the number read, 0 at the
  // end, -1 on a read error.
  std::int64_t readAt(std::int64_t offset, char* into, std::size_t count) const;

  // Which file is open and how it stands now: what was read of it still holds while the stamp is
  // the same. None when nothing is open or the file cannot be asked.
  struct Stamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modifiedNs = 0;
    bool operator==(const Stamp&) const = default;
  };
  std::optional<Stamp> stamp() const;

 private:
  int fd_ = -1;
  int openError_ = 0;
  std::int64_t length_ = 0;
  std::string path_;
};

}  // namespace zorvik
