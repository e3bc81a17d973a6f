// Physical lines of a file as written, each with its own line end, read through one buffer.
//
// Unlike the certification reader, a lone LF ends a line here as well as CR LF and a lone CR:
// the rewriting routines must see the lines of a file written on any platform. Memory stays
// bounded: a line longer than MAX_LINE_BYTES ends the reading with `tooLong()` set.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace zorvik {

class PhysicalLines {
 public:
  static constexpr std::size_t BLOCK_BYTES = 1 << 20;
  static constexpr std::size_t MAX_LINE_BYTES = 64u << 20;

  PhysicalLines() = default;
  ~PhysicalLines();
  PhysicalLines(const PhysicalLines&) = delete;
  PhysicalLines& operator=(const PhysicalLines&) = delete;

  bool open(const std::string& path);
  // The next line without its end, and the end as written ("\r\n", "\n", "\r", or "" for a last
  // line without one). Both views stay valid until the next call. False at the end of the file,
  // on a read error or on a line that is too long.
  bool next(std::string_view& text, std::string_view& ending);
  // 1-based number of the line last read.
  std::int64_t number() const { return number_; }
  // 0-based offset of the first byte after the line last read (its end included).
  std::int64_t offsetAfter() const { return fileOffset_ + static_cast<std::int64_t>(pos_); }
  // Moves to the 0-based `offset`, which starts line `lineNumber`.
  bool seek(std::int64_t offset, std::int64_t lineNumber);
  bool failed() const { return failed_; }
  bool tooLong() const { return tooLong_; }

 private:
  bool fill();

  std::FILE* file_ = nullptr;
  std::string buffer_;
  std::size_t pos_ = 0;
  std::size_t end_ = 0;
  std::int64_t fileOffset_ = 0;  // file offset of buffer_[0]
  std::int64_t number_ = 0;
  bool eof_ = false;
  bool failed_ = false;
  bool tooLong_ = false;
};

}  // namespace zorvik
