// One buffered reader for LAS files, opened in binary.
//
// A line ends at CR LF or at a lone CR; a lone LF stays inside the line (files written with LF
// alone therefore read as one long line, which is what the termination check expects). Positions
// are 1-based byte offsets. `readLine` reuses the caller's string, so a loop over a large data
// section allocates nothing once the string has grown to the longest line.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace zorvik {

class LineReader {
 public:
  LineReader() = default;
  explicit LineReader(const std::string& path) { open(path); }
  ~LineReader();
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

  // Opens the file for reading; false (and errno set) when it cannot be opened.
  bool open(const std::string& path);
  void close();
  bool isOpen() const { return file_ != nullptr; }

  // Reads the next line without its terminator. False at end of file (line left empty).
  bool readLine(std::string& line);
  // 1-based position of the first byte of the line last read.
  std::int64_t lineStart() const { return lineStart_; }
  // 1-based position of the next byte to be read.
  std::int64_t position() const { return position_; }
  bool atEnd();
  // Moves so that the next read starts at the 1-based position `pos`.
  void seek(std::int64_t pos);
  std::int64_t length() const { return length_; }

  // Reads up to `count` bytes from the 1-based position `pos` into `out` (fewer at the end).
  void readRange(std::int64_t pos, std::int64_t count, std::string& out);

 private:
  bool fill();

  std::FILE* file_ = nullptr;
  std::int64_t length_ = 0;
  std::int64_t position_ = 1;
  std::int64_t lineStart_ = 0;
  std::string buffer_;
  std::size_t bufPos_ = 0;
  std::size_t bufEnd_ = 0;
};

// Length of a file in bytes, -1 when it cannot be read.
std::int64_t fileLength(const std::string& path);

}  // namespace zorvik
