#include "transform/line_source.h"

#include <cstring>

namespace zorvik {

PhysicalLines::~PhysicalLines() {
  if (file_ != nullptr) std::fclose(file_);
}

bool PhysicalLines::open(const std::string& path) {
  if (file_ != nullptr) std::fclose(file_);
  file_ = std::fopen(path.c_str(), "rb");
  buffer_.assign(BLOCK_BYTES, '\0');
  pos_ = end_ = 0;
  fileOffset_ = number_ = 0;
  eof_ = failed_ = tooLong_ = false;
  return file_ != nullptr;
}

bool PhysicalLines::fill() {
  if (eof_ || file_ == nullptr) return false;
  if (pos_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + pos_, end_ - pos_);
    fileOffset_ += static_cast<std::int64_t>(pos_);
    end_ -= pos_;
    pos_ = 0;
  }
  if (end_ == buffer_.size()) {
    if (buffer_.size() >= MAX_LINE_BYTES) {
      tooLong_ = true;
      return false;
    }
    buffer_.resize(buffer_.size() * 2);
  }
  const std::size_t got = std::fread(buffer_.data() + end_, 1, buffer_.size() - end_, file_);
  if (got == 0) {
    eof_ = true;
    failed_ = std::ferror(file_) != 0;
    return false;
  }
  end_ += got;
  return true;
}

bool PhysicalLines::next(std::string_view& text, std::string_view& ending) {
  if (file_ == nullptr || tooLong_) return false;
  std::size_t scanned = 0;  // bytes of the line already known to hold no line end
  for (;;) {
    const char* base = buffer_.data() + pos_;
    const std::size_t avail = end_ - pos_;
    const void* lf = std::memchr(base + scanned, '\n', avail - scanned);
    const std::size_t lfAt =
        lf == nullptr ? avail : static_cast<std::size_t>(static_cast<const char*>(lf) - base);
    const void* cr = std::memchr(base + scanned, '\r', lfAt - scanned);
    std::size_t lineEnd = avail;
    std::size_t endLength = 0;
    if (cr != nullptr) {
      lineEnd = static_cast<std::size_t>(static_cast<const char*>(cr) - base);
      // A CR as the last byte read may still be followed by an LF not yet read.
      if (lineEnd + 1 == avail && !eof_) {
        scanned = lineEnd;
        if (fill()) continue;
        if (tooLong_ || failed_) return false;
        base = buffer_.data() + pos_;
      }
      endLength = (lineEnd + 1 < end_ - pos_ && base[lineEnd + 1] == '\n') ? 2 : 1;
    } else if (lf != nullptr) {
      lineEnd = lfAt;
      endLength = 1;
    } else if (!eof_) {
      scanned = avail;
      if (fill()) continue;
      if (tooLong_ || failed_) return false;
      if (end_ == pos_) return false;
      continue;
    } else if (avail == 0) {
      return false;
    }
    base = buffer_.data() + pos_;
    text = std::string_view(base, lineEnd);
    ending = std::string_view(base + lineEnd, endLength);
    pos_ += lineEnd + endLength;
    ++number_;
    return true;
  }
}

bool PhysicalLines::seek(std::int64_t offset, std::int64_t lineNumber) {
  if (file_ == nullptr || std::fseek(file_, static_cast<long>(offset), SEEK_SET) != 0) return false;
  fileOffset_ = offset;
  pos_ = end_ = 0;
  number_ = lineNumber - 1;
  eof_ = failed_ = tooLong_ = false;
  return true;
}

}  // namespace zorvik
