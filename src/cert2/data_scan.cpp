#include "cert2/data_scan.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "cert2/data_lines.h"
#include "las/line_reader.h"
#include "las/text.h"
#include "run/run_state.h"

namespace zorvik {

namespace {

// Longest lines allowed, without the line end: the messages name the limits with it (80, 256).
constexpr std::int64_t MAX_WRAPPED_LINE = 78;
constexpr std::int64_t MAX_UNWRAPPED_LINE = 254;

// The record's lines joined by single blanks, read again from `start`.
std::string recordText(const std::string& fileName, std::int64_t start, int lines) {
  LineReader file;
  if (!file.open(fileName)) return {};
  file.seek(start);
  std::string record;
  std::string_view line;
  for (int i = 0; i < lines && file.readLine(line); ++i) {
    if (i > 0) record += ' ';
    record.append(line);
  }
  return std::string(trimView(record));
}

}  // namespace

namespace {

constexpr std::uint64_t kLow7 = 0x7F7F7F7F7F7F7F7FULL;
constexpr std::uint64_t kHigh = 0x8080808080808080ULL;

// The high bit of every byte of `w` that equals the byte repeated in `pattern`.
std::uint64_t bytesEqual(std::uint64_t w, std::uint64_t pattern) {
  std::uint64_t z = w ^ pattern;
  return ~(((z & kLow7) + kLow7) | z | kLow7);
}

}  // namespace

int countBlankSeparated(std::string_view line, bool& tilde) {
  // The blank-to-value steps, eight bytes at a time: this loop sees every byte of the data.
  const char* p = line.data();
  std::size_t n = line.size();
  int values = 0;
  std::uint64_t before = kHigh;  // the byte before the line counts as a blank
  std::uint64_t tildes = 0;
  std::size_t i = 0;
  // The shifts below take byte k of a word to be its k-th lowest byte; elsewhere go byte by byte.
  std::size_t wordBytes = std::endian::native == std::endian::little ? n - n % 8 : 0;
  for (; i < wordBytes; i += 8) {
    std::uint64_t w;
    std::memcpy(&w, p + i, 8);
    std::uint64_t blanks = bytesEqual(w, 0x2020202020202020ULL);
    std::uint64_t previous = (blanks << 8) | (before >> 56);
    // One bit per byte at most: a multiply adds the eight bytes (no popcount instruction needed).
    values += static_cast<int>((((~blanks & kHigh & previous) >> 7) * 0x0101010101010101ULL) >> 56);
    tildes |= bytesEqual(w, 0x7E7E7E7E7E7E7E7EULL);
    before = blanks;
  }
  bool blankBefore = (before >> 63) != 0;
  for (; i < n; ++i) {
    bool blank = p[i] == ' ';
    values += !blank && blankBefore;
    tildes |= p[i] == '~';
    blankBefore = blank;
  }
  tilde = tilde || tildes != 0;
  return values;
}

int countBlankSeparated(std::string_view line) {
  bool tilde = false;
  return countBlankSeparated(line, tilde);
}

IncrementWalk::IncrementWalk(int linesPerRecord, char delimiter)
    : linesPerRecord_(std::max(1, linesPerRecord)), delimiter_(delimiter) {}

bool IncrementWalk::feed(std::string_view line) {
  if (answer_ != 0) return false;
  std::string_view t = trimLeftView(line);
  if (!t.empty() && t[0] == '~') {
    answer_ = records_ < 2 ? STEP_UNANALYSABLE : STEP_CONSTANT;
    return false;
  }
  if (t.empty() || t[0] == '#') return true;
  bool indexLine = lineInRecord_ == 0;
  lineInRecord_ = (lineInRecord_ + 1) % linesPerRecord_;
  if (!indexLine) return true;

  std::string_view field = leadingField(t, delimiter_);
  double value = 0;
  if (!parseRoundedNumber(field, value)) {
    answer_ = STEP_UNANALYSABLE;
    return false;
  }
  if (++records_ >= 2) {
    double increment = value - previous_;
    result_.increment = increment;
    result_.index = value;
    result_.indexText.assign(field);
    if (records_ == 2) {
      firstIncrement_ = static_cast<float>(increment);
    } else if (static_cast<float>(increment) != firstIncrement_) {
      answer_ = STEP_VARIES;
      return false;
    }
  }
  previous_ = value;
  return true;
}

int IncrementWalk::finish(IncrementResult& result) const {
  int answer = answer_ != 0 ? answer_ : (records_ < 2 ? STEP_UNANALYSABLE : STEP_CONSTANT);
  result = answer == STEP_UNANALYSABLE ? IncrementResult{} : result_;
  return answer;
}

RecordWalk::RecordWalk(const RecordRules& rules)
    : rules_(rules), perRecord_(rules.wrapped ? std::max(1, rules.linesPerRecord) : 1) {}

bool RecordWalk::feed(std::string_view line, std::int64_t lineStart, std::int64_t lineLength) {
  if (done_) return false;
  if (rules_.wrapped || rules_.judgeLength) {
    std::int64_t limit = rules_.wrapped ? MAX_WRAPPED_LINE : MAX_UNWRAPPED_LINE;
    if (lineLength > limit) {
      lengthFinding_ = (rules_.wrapped ? "Line too long for WRAP YES. Was "
                                       : "Line too long for WRAP NO. Was ") +
                       toText(lineLength) +
                       (rules_.wrapped ? " long. 80 is max." : " long. 256 is max.") + "\r\n" +
                       std::string(line);
      done_ = true;
      return false;
    }
  }
  if (lines_ == 0) recordStart_ = lineStart;
  values_ += countBlankSeparated(line, tilde_);
  if (++lines_ < perRecord_) return true;
  return judgeRecord();
}

// A complete record (or what the end of the data left of one): a "~" ends the data, a wrong
// value count is the finding.
bool RecordWalk::judgeRecord() {
  if (tilde_) {
    tilde_ = false;
    done_ = true;
  } else if (values_ != rules_.expectedValues) {
    badValues_ = values_;
    badLines_ = lines_;
    badStart_ = recordStart_;
    done_ = true;
  }
  lines_ = values_ = 0;
  return !done_;
}

void RecordWalk::finish(const std::string& fileName, std::string& countFinding,
                        std::string& lengthFinding) {
  if (!done_ && lines_ > 0) judgeRecord();
  done_ = true;
  countFinding.clear();
  if (badValues_ >= 0)
    countFinding = "Space delimited column count differs from ~Curve channel count. Expected: " +
                   toText(rules_.expectedValues) + ". Found: " + toText(badValues_) + "\r\n" +
                   recordText(fileName, badStart_, badLines_);
  lengthFinding = lengthFinding_;
}

bool sameRules(const RecordRules& a, const RecordRules& b) {
  return a.wrapped == b.wrapped && a.linesPerRecord == b.linesPerRecord &&
         a.expectedValues == b.expectedValues && a.judgeLength == b.judgeLength;
}

namespace {

bool fileStamp(const std::string& fileName, std::int64_t& size, std::int64_t& modified) {
  std::error_code ec;
  auto bytes = std::filesystem::file_size(fileName, ec);
  if (ec) return false;
  auto time = std::filesystem::last_write_time(fileName, ec);
  if (ec) return false;
  size = static_cast<std::int64_t>(bytes);
  modified = static_cast<std::int64_t>(time.time_since_epoch().count());
  return true;
}

}  // namespace

void stampScan(DataScan& scan, const std::string& fileName, std::int64_t start) {
  scan.valid = fileStamp(fileName, scan.fileSize, scan.modified);
  scan.fileName = fileName;
  scan.start = start;
}

const DataScan* keptScan(const std::string& fileName, std::int64_t start) {
  const DataScan& scan = runState().dataScan;
  std::int64_t size = 0;
  std::int64_t modified = 0;
  if (!scan.valid || scan.fileName != fileName || scan.start != start ||
      !fileStamp(fileName, size, modified) || size != scan.fileSize || modified != scan.modified)
    return nullptr;
  return &scan;
}

}  // namespace zorvik
