#include "las/line_reader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace zorvik {

LineReader::~LineReader() {
  close();
}

bool LineReader::open(const std::string& path) {
  close();
  if (!own_.open(path)) return false;
  file_ = &own_;
  reset();
  return true;
}

bool LineReader::open(const LasFile& file) {
  close();
  if (!file.isOpen()) return false;
  file_ = &file;
  reset();
  return true;
}

void LineReader::reset() {
  length_ = file_->length();
  if (!buffer_) buffer_ = std::make_unique_for_overwrite<char[]>(BUFFER_BYTES);
  bufStart_ = 0;
  bufPos_ = bufEnd_ = 0;
  lineStart_ = lineLength_ = 0;
  lineTruncated_ = false;
}

void LineReader::close() {
  own_.close();
  file_ = nullptr;
  bufStart_ = 0;
  bufPos_ = bufEnd_ = 0;
  length_ = 0;
}

bool LineReader::fill() {
  if (file_ == nullptr) return false;
  if (bufPos_ > 0) {
    std::memmove(buffer_.get(), buffer_.get() + bufPos_, bufEnd_ - bufPos_);
    bufStart_ += static_cast<std::int64_t>(bufPos_);
    bufEnd_ -= bufPos_;
    bufPos_ = 0;
  }
  if (bufEnd_ == BUFFER_BYTES) return false;
  std::int64_t n = file_->readAt(bufStart_ + static_cast<std::int64_t>(bufEnd_),
                                 buffer_.get() + bufEnd_, BUFFER_BYTES - bufEnd_);
  if (n <= 0) return false;
  bufEnd_ += static_cast<std::size_t>(n);
  return true;
}

bool LineReader::readLine(std::string_view& line) {
  line = {};
  lineLength_ = 0;
  lineTruncated_ = false;
  if (file_ == nullptr) return false;
  if (bufPos_ == bufEnd_ && !fill()) return false;
  lineStart_ = position();

  // Bytes of this line already moved out of the buffer into scratch_ (counted even when the cap
  // stopped them from being kept).
  std::int64_t spilled = 0;
  bool useScratch = false;

  // Ends the line at buffer index `end`, skipping a terminator of `termLen` bytes.
  auto finish = [&](std::size_t end, std::size_t termLen) {
    std::size_t len = end - bufPos_;
    if (useScratch) {
      std::size_t room = MAX_LINE_BYTES - std::min(MAX_LINE_BYTES, scratch_.size());
      scratch_.append(buffer_.get() + bufPos_, std::min(len, room));
      line = scratch_;
    } else {
      line = std::string_view(buffer_.get() + bufPos_, len);
    }
    lineLength_ = spilled + static_cast<std::int64_t>(len);
    lineTruncated_ = lineLength_ > static_cast<std::int64_t>(MAX_LINE_BYTES);
    bufPos_ = end + termLen;
    return true;
  };

  std::size_t scan = bufPos_;
  for (;;) {
    const char* base = buffer_.get();
    const void* hit = std::memchr(base + scan, '\r', bufEnd_ - scan);
    std::size_t cr = hit ? static_cast<std::size_t>(static_cast<const char*>(hit) - base) : bufEnd_;
    if (cr + 1 < bufEnd_) return finish(cr, base[cr + 1] == '\n' ? 2 : 1);

    // Either no CR yet, or a CR in the last buffered byte whose follower decides between CR LF
    // and a lone CR: more bytes are needed. `resume` is where the search goes on afterwards.
    std::size_t resume = cr;
    if (bufPos_ == 0 && bufEnd_ == BUFFER_BYTES) {
      // The line fills the whole buffer: keep its head in scratch_ (up to the cap).
      if (!useScratch) scratch_.clear();
      useScratch = true;
      std::size_t room = MAX_LINE_BYTES - std::min(MAX_LINE_BYTES, scratch_.size());
      scratch_.append(base, std::min(resume, room));
      spilled += static_cast<std::int64_t>(resume);
      bufPos_ = resume;
    }
    std::size_t shift = bufPos_;
    bool more = fill();
    resume -= shift;
    if (!more) {
      // End of file: a pending CR is a lone terminator, otherwise the line simply stops.
      return resume < bufEnd_ ? finish(resume, 1) : finish(bufEnd_, 0);
    }
    scan = resume;
  }
}

bool LineReader::readLine(std::string& line) {
  std::string_view view;
  bool ok = readLine(view);
  line.assign(view);
  return ok;
}

bool LineReader::atEnd() {
  if (file_ == nullptr) return true;
  if (bufPos_ < bufEnd_) return false;
  return !fill();
}

void LineReader::seek(std::int64_t pos) {
  if (file_ == nullptr) return;
  std::int64_t offset = std::max<std::int64_t>(pos, 1) - 1;
  // A target inside the buffered bytes needs no system call (section lookups often go back a
  // little).
  if (offset >= bufStart_ && offset <= bufStart_ + static_cast<std::int64_t>(bufEnd_)) {
    bufPos_ = static_cast<std::size_t>(offset - bufStart_);
    return;
  }
  bufStart_ = offset;
  bufPos_ = bufEnd_ = 0;
}

void LineReader::readRange(std::int64_t pos, std::int64_t count, std::string& out) {
  out.clear();
  if (file_ == nullptr || count <= 0) return;
  seek(pos);
  std::int64_t available = length_ - (position() - 1);
  if (available > 0) out.reserve(static_cast<std::size_t>(std::min(count, available)));
  std::size_t wanted = static_cast<std::size_t>(count);
  while (out.size() < wanted) {
    if (bufPos_ == bufEnd_ && !fill()) break;
    std::size_t take = std::min(wanted - out.size(), bufEnd_ - bufPos_);
    out.append(buffer_.get() + bufPos_, take);
    bufPos_ += take;
  }
}

std::int64_t fileLength(const std::string& path) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(path, ec)) return -1;
  auto size = std::filesystem::file_size(path, ec);
  if (ec) return -1;
  return static_cast<std::int64_t>(size);
}

}  // namespace zorvik
