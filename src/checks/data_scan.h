// The walks over data lines that groups 6 and 7 make, written as line consumers so that group 4,
// which must read every data line anyway, can feed them in its own pass and keep their answers
// for the later groups (files run to hundreds of MB; each pass over them costs).
//
// Nothing here fails: a walk that cannot go on simply ends with the answer it has.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "checks/check_table.h"
#include "las/las_file.h"

namespace zorvik {

// Answers of the increment walk.
enum class StepAnswer {
  Constant,
  Varies,
  Unreadable,    // the file could not be read
  Unanalysable,  // an index that is not a number
  NoIncrement,   // fewer than two records: no increment to judge
};

struct IncrementResult {
  double increment = 0;   // the last increment read (the one that broke the pattern, if any)
  double index = 0;       // index value (rounded to five decimals) where it was read
  std::string indexText;  // that index as written
};

// Follows the index of records of `linesPerRecord` lines (comment and blank lines passed over),
// comparing each increment, rounded to five decimals, with the first one in single precision.
class IncrementWalk {
 public:
  IncrementWalk(int linesPerRecord, char delimiter);
  // Takes the next data line; false once the answer is known (a title line also ends the walk).
  bool feed(std::string_view line);
  // The answer for the lines fed so far.
  StepAnswer finish(IncrementResult& result) const;

 private:
  int linesPerRecord_;
  char delimiter_;
  int lineInRecord_ = 0;
  std::int64_t records_ = 0;
  double previous_ = 0;
  float firstIncrement_ = 0;
  std::optional<StepAnswer> answer_;  // none while walking
  IncrementResult result_;
};

// What one pass over a line's bytes tells.
struct LineBytes {
  int values = 0;      // values split at runs of blanks
  bool tilde = false;  // holds a "~"
  bool tab = false;    // holds a tab
};
LineBytes scanLineBytes(std::string_view line);

// What the record walk is asked to judge.
struct RecordRules {
  bool wrapped = false;  // records of `linesPerRecord` lines
  int linesPerRecord = 1;
  int expectedValues = 0;  // values every record must hold
  // Line lengths judged (78 characters when wrapped, else 254): only when the user asked for the
  // wrap checks, whose row is not listed otherwise.
  bool judgeLength = false;
};

// Reads records (one line, or `linesPerRecord` lines when wrapped) until the first one that is
// too long or holds the wrong number of blank-separated values, or one holding a "~".
class RecordWalk {
 public:
  explicit RecordWalk(const RecordRules& rules);
  // Takes the next physical line with its 1-based start and full length; false once done.
  bool feed(std::string_view line, std::int64_t lineStart, std::int64_t lineLength);
  // The same, for a caller that has scanned the line's bytes already.
  bool feed(std::string_view line, std::int64_t lineStart, std::int64_t lineLength,
            const LineBytes& bytes);
  // At the end of the lines: the findings for the value count and the line length (passed when
  // none). The offending record is read again from `file` for its text.
  void finish(const LasFile& file, RowResult& countFinding, RowResult& lengthFinding);

 private:
  bool judgeRecord();

  RecordRules rules_;
  int perRecord_;
  int lines_ = 0;
  int values_ = 0;
  bool tilde_ = false;
  std::int64_t recordStart_ = 0;
  bool done_ = false;
  int badValues_ = -1;  // value count of the offending record, -1 when none
  int badLines_ = 0;
  std::int64_t badStart_ = 0;
  RowResult lengthFinding_;
};

// The answers of both walks as group 4's pass left them, with the inputs they were made for; a
// later group takes them only when its own inputs are the same.
struct DataScan {
  bool valid = false;
  std::string fileName;
  std::int64_t fileSize = -1;
  std::int64_t modified = 0;  // modification time, in the file system's own ticks
  std::int64_t start = 0;     // first data line
  char delimiter = ' ';
  int linesPerRecord = 1;
  RecordRules rules;
  std::optional<StepAnswer> incrementAnswer;  // none when the pass did not walk the increments
  IncrementResult increments;
  RowResult countFinding;
  RowResult lengthFinding;
  // 3.0: rows 1-3 of the column data check, when the pass made them.
  std::optional<Slots> columnData;
};

bool sameRules(const RecordRules& a, const RecordRules& b);

// Stamps `scan` with the file's size and modification time (left invalid when the file cannot be
// read).
void stampScan(DataScan& scan, const std::string& fileName, std::int64_t start);
// `scan` when it was made of this very file (same size and time) from `start`;
// null otherwise.
const DataScan* keptScan(const DataScan& scan, const std::string& fileName, std::int64_t start);

}  // namespace zorvik
