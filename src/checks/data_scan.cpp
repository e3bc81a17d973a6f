#include "checks/data_scan.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "base/text.h"
#include "checks/data_lines.h"
#include "las/line_reader.h"
#include "las/lines.h"

namespace zorvik {

namespace {

// Longest lines allowed, without the line end: the messages name the limits with it (80, 256).
constexpr std::int64_t MAX_WRAPPED_LINE = 78;
constexpr std::int64_t MAX_UNWRAPPED_LINE = 254;

// The record's lines joined by single blanks, read again from `start`.
std::string recordText(const LasFile& source, std::int64_t start, int lines) {
  LineReader file;
  if (!file.open(source)) return {};
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

LineBytes scanLineBytes(std::string_view line) {
  // This loop sees every byte of the data. Written as independent byte tests summed in 8-bit
  // counters over blocks of at most 255 bytes, it lets the compiler work 16 or 32 bytes at a time.
  const auto* p = reinterpret_cast<const unsigned char*>(line.data());
  std::size_t n = line.size();
  LineBytes bytes;
  if (n == 0) return bytes;
  bytes.values = p[0] != ' ';
  unsigned char tilde = p[0] == '~';
  unsigned char tab = p[0] == '\t';
  for (std::size_t start = 1; start < n; start += 255) {
    std::size_t end = std::min(n, start + 255);
    unsigned char steps = 0;  // blank-to-value steps of this block
    for (std::size_t i = start; i < end; ++i) {
      steps += (p[i] != ' ') & (p[i - 1] == ' ');
      tilde |= p[i] == '~';
      tab |= p[i] == '\t';
    }
    bytes.values += steps;
  }
  bytes.tilde = tilde != 0;
  bytes.tab = tab != 0;
  return bytes;
}

IncrementWalk::IncrementWalk(int linesPerRecord, char delimiter)
    : linesPerRecord_(std::max(1, linesPerRecord)), delimiter_(delimiter) {}

bool IncrementWalk::feed(std::string_view line) {
  if (answer_) return false;
  std::string_view t = trimLeftView(line);
  if (isTitleLine(t)) {
    answer_ = records_ < 2 ? StepAnswer::NoIncrement : StepAnswer::Constant;
    return false;
  }
  if (t.empty() || t[0] == '#') return true;
  bool indexLine = lineInRecord_ == 0;
  lineInRecord_ = (lineInRecord_ + 1) % linesPerRecord_;
  if (!indexLine) return true;

  std::string_view field = leadingField(t, delimiter_);
  double value = 0;
  if (!parseRoundedNumber(field, value)) {
    answer_ = StepAnswer::Unanalysable;
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
      answer_ = StepAnswer::Varies;
      return false;
    }
  }
  previous_ = value;
  return true;
}

StepAnswer IncrementWalk::finish(IncrementResult& result) const {
  const StepAnswer answer =
      answer_.value_or(records_ < 2 ? StepAnswer::NoIncrement : StepAnswer::Constant);
  result = answer == StepAnswer::Unanalysable || answer == StepAnswer::NoIncrement
               ? IncrementResult{}
               : result_;
  return answer;
}

RecordWalk::RecordWalk(const RecordRules& rules)
    : rules_(rules), perRecord_(rules.wrapped ? std::max(1, rules.linesPerRecord) : 1) {}

bool RecordWalk::feed(std::string_view line, std::int64_t lineStart, std::int64_t lineLength) {
  return done_ ? false : feed(line, lineStart, lineLength, scanLineBytes(line));
}

bool RecordWalk::feed(std::string_view line, std::int64_t lineStart, std::int64_t lineLength,
                      const LineBytes& bytes) {
  if (done_) return false;
  if (rules_.judgeLength) {
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
  values_ += bytes.values;
  tilde_ = tilde_ || bytes.tilde;
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

void RecordWalk::finish(const LasFile& file, std::string& countFinding,
                        std::string& lengthFinding) {
  if (!done_ && lines_ > 0) judgeRecord();
  done_ = true;
  countFinding.clear();
  if (badValues_ >= 0)
    countFinding = "Space delimited column count differs from ~Curve channel count. Expected: " +
                   toText(rules_.expectedValues) + ". Found: " + toText(badValues_) + "\r\n" +
                   recordText(file, badStart_, badLines_);
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

const DataScan* keptScan(const DataScan& scan, const std::string& fileName, std::int64_t start) {
  std::int64_t size = 0;
  std::int64_t modified = 0;
  if (!scan.valid || scan.fileName != fileName || scan.start != start ||
      !fileStamp(fileName, size, modified) || size != scan.fileSize || modified != scan.modified)
    return nullptr;
  return &scan;
}

}  // namespace zorvik
