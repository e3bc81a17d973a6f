// One buffered reader for LAS files, opened in binary.
//
// A line ends at CR LF or at a lone CR; a lone LF stays inside the line (files written with LF
// alone therefore read as one long line, which is what the termination check expects). Positions
// are 1-based byte offsets. `readLine` reuses the caller's string, so a loop over a large data
// section allocates nothing once the string has grown to the longest line; the view variant
// copies nothing at all for lines that lie inside the buffer.
//
// Memory stays bounded whatever the file holds: a line longer than `MAX_LINE_BYTES` is given back
// as its first `MAX_LINE_BYTES` bytes, the rest of it up to its terminator is skipped, and
// `lineTruncated()` says so (`lineLength()` still tells the full length).
//
// A reader opens its file itself, or reads a LasFile that others read too: each reader keeps its
// own buffer and position, so the checks of one run share one open file.
//
// Nothing here throws on bad input; a read error looks like the end of the file.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "las/las_file.h"

namespace zorvik {

class LineReader {
 public:
  static constexpr std::size_t BUFFER_BYTES = 64 * 1024;
  static constexpr std::size_t MAX_LINE_BYTES = 1024 * 1024;

  LineReader() = default;
  explicit LineReader(const std::string& path) { open(path); }
  explicit LineReader(const LasFile& file) { open(file); }
  ~LineReader();
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

  // Opens the file for reading; false (and errno set) when it cannot be opened or is a directory.
  bool open(const std::string& path);
  // Reads `file`, which must outlive the reader (or its next open); false when it is not open.
  bool open(const LasFile& file);
  void close();
  bool isOpen() const { return file_ != nullptr; }

  // Reads the next line without its terminator. False at end of file (line left empty). A last
  // line without a terminator is still a line; a file ending in CR LF has no empty line after it.
  bool readLine(std::string& line);
  // The same, as a view into the reader's own storage: valid until the next read, seek or close.
  bool readLine(std::string_view& line);
  // 1-based position of the first byte of the line last read.
  std::int64_t lineStart() const { return lineStart_; }
  // Full length in bytes of the line last read (without terminator), even when truncated.
  std::int64_t lineLength() const { return lineLength_; }
  bool lineTruncated() const { return lineTruncated_; }
  // 1-based position of the next byte to be read.
  std::int64_t position() const { return bufStart_ + static_cast<std::int64_t>(bufPos_) + 1; }
  bool atEnd();
  // Moves so that the next read starts at the 1-based position `pos` (clamped to the file).
  void seek(std::int64_t pos);
  std::int64_t length() const { return length_; }

  // Reads up to `count` bytes from the 1-based position `pos` into `out` (fewer at the end,
  // none when the file is not open). The next line read starts after the range.
  void readRange(std::int64_t pos, std::int64_t count, std::string& out);

 private:
  // Moves the unread bytes to the front of the buffer and reads more after them; false when
  // nothing more could be read.
  bool fill();

  void reset();

  LasFile own_;                    // the file this reader opened itself
  const LasFile* file_ = nullptr;  // the file read: own_ or a shared one
  std::int64_t length_ = 0;
  std::int64_t bufStart_ = 0;  // 0-based file offset of buffer_[0]
  std::int64_t lineStart_ = 0;
  std::int64_t lineLength_ = 0;
  bool lineTruncated_ = false;
  bool eof_ = false;
  // Allocated at the first open and never cleared: readers of small sections are made by the
  // thousand, and zeroing 64 KB for each would cost more than their reading.
  std::unique_ptr<char[]> buffer_;
  std::string scratch_;  // lines longer than the buffer are assembled here
  std::size_t bufPos_ = 0;
  std::size_t bufEnd_ = 0;
};

// Length of a file in bytes, -1 when it cannot be read (missing, a directory, no access).
std::int64_t fileLength(const std::string& path);

}  // namespace zorvik
