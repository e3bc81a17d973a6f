#include "checks/data_scan.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <system_error>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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

// The byte tests one at a time: short lines, and machines without SSE2.
LineBytes scanLineBytesOneByOne(std::string_view line) {
  const auto* p = reinterpret_cast<const unsigned char*>(line.data());
  std::size_t n = line.size();
  LineBytes bytes;
  if (n == 0) return bytes;
  bytes.values = p[0] != ' ';
  unsigned char tilde = p[0] == '~';
  unsigned char tab = p[0] == '\t';
  for (std::size_t i = 1; i < n; ++i) {
    bytes.values += (p[i] != ' ') & (p[i - 1] == ' ');
    tilde |= p[i] == '~';
    tab |= p[i] == '\t';
  }
  bytes.tilde = tilde != 0;
  bytes.tab = tab != 0;
  return bytes;
}

}  // namespace

LineBytes scanLineBytes(std::string_view line) {
#if defined(__SSE2__)
  // This sees every byte of the data, sixteen at a time. Each block is compared with the same
  // bytes one place earlier (a second load, one byte back), so a blank-to-value step is one byte
  // of 0xFF; steps are summed in the lanes of a counter, emptied before a lane could overflow.
  // The line's last, partial block is read as its last sixteen bytes, the bytes already seen
  // masked off.
  const std::size_t n = line.size();
  if (n <= 16) return scanLineBytesOneByOne(line);
  const char* p = line.data();
  const __m128i blank = _mm_set1_epi8(' ');
  const __m128i tilde = _mm_set1_epi8('~');
  const __m128i tab = _mm_set1_epi8('\t');
  const __m128i zero = _mm_setzero_si128();
  LineBytes bytes;
  bytes.values = p[0] != ' ';
  bytes.tilde = p[0] == '~';
  bytes.tab = p[0] == '\t';
  __m128i steps = zero;  // per lane: steps counted since the last emptying
  __m128i tildes = zero;
  __m128i tabs = zero;
  int blocks = 0;
  const auto emptySteps = [&] {
    const __m128i sums = _mm_sad_epu8(steps, zero);  // two 64-bit sums of eight lanes each
    bytes.values += _mm_cvtsi128_si32(sums) + _mm_cvtsi128_si32(_mm_srli_si128(sums, 8));
    steps = zero;
    blocks = 0;
  };
  std::size_t at = 1;
  for (; at + 16 <= n; at += 16) {
    const __m128i here = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
    const __m128i before = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at - 1));
    // A step reads 0xFF, so subtracting it adds one.
    steps = _mm_sub_epi8(
        steps, _mm_andnot_si128(_mm_cmpeq_epi8(here, blank), _mm_cmpeq_epi8(before, blank)));
    tildes = _mm_or_si128(tildes, _mm_cmpeq_epi8(here, tilde));
    tabs = _mm_or_si128(tabs, _mm_cmpeq_epi8(here, tab));
    if (++blocks == 255) emptySteps();
  }
  if (at < n) {
    const std::size_t from = n - 16;
    // 0xFF in the lanes of bytes not seen yet.
    alignas(16) static constexpr char kLaneIndex[16] = {0, 1, 2,  3,  4,  5,  6,  7,
                                                        8, 9, 10, 11, 12, 13, 14, 15};
    const __m128i fresh =
        _mm_cmpgt_epi8(_mm_load_si128(reinterpret_cast<const __m128i*>(kLaneIndex)),
                       _mm_set1_epi8(static_cast<char>(at - from - 1)));
    const __m128i here = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + from));
    const __m128i before = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + from - 1));
    steps =
        _mm_sub_epi8(steps, _mm_and_si128(fresh, _mm_andnot_si128(_mm_cmpeq_epi8(here, blank),
                                                                  _mm_cmpeq_epi8(before, blank))));
    tildes = _mm_or_si128(tildes, _mm_and_si128(fresh, _mm_cmpeq_epi8(here, tilde)));
    tabs = _mm_or_si128(tabs, _mm_and_si128(fresh, _mm_cmpeq_epi8(here, tab)));
  }
  emptySteps();
  bytes.tilde = bytes.tilde || _mm_movemask_epi8(tildes) != 0;
  bytes.tab = bytes.tab || _mm_movemask_epi8(tabs) != 0;
  return bytes;
#else
  return scanLineBytesOneByOne(line);
#endif
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
      lengthFinding_.clear();
      lengthFinding_.add(Finding{(rules_.wrapped ? "Line too long for WRAP YES. Was "
                                                 : "Line too long for WRAP NO. Was ") +
                                     toText(lineLength) +
                                     (rules_.wrapped ? " long. 80 is max." : " long. 256 is max."),
                                 std::string(line), lineStart, FindingBreak::None});
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

void RecordWalk::finish(const LasFile& file, RowResult& countFinding, RowResult& lengthFinding) {
  if (!done_ && lines_ > 0) judgeRecord();
  done_ = true;
  countFinding.clear();
  if (badValues_ >= 0)
    countFinding.add(
        Finding{"Space delimited column count differs from ~Curve channel count. Expected: " +
                    toText(rules_.expectedValues) + ". Found: " + toText(badValues_),
                recordText(file, badStart_, badLines_), badStart_, FindingBreak::None});
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
