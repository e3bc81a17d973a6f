// Group 6 of the 1.2/2.0 catalogue (and of 3.0): STRT, STOP, STEP and NULL of the ~Well section
// against the index channel of the data.
//
// Never throws on bad input.
#pragma once

#include <string>
#include <string_view>

#include "checks/check_table.h"
#include "checks/data_scan.h"
#include "las/header_line.h"

namespace zorvik {

struct RunContext;

// The ~Well values the driver read (a single space when a mnemonic is absent).
struct WellRange {
  std::string strt;
  std::string stop;
  std::string step;
  std::string nullValue;
};

// Fills slots 1..7 of the run's file and returns CheckStatus::Passed, CheckStatus::Failed or
// CheckStatus::Nothing (the data could not be analysed: record nothing). When STRT, STOP, STEP or
// NULL is missing only slot 1 is written. A STOP equal to NULL (a file written in real time) gives
// CheckStatus::NullStop with the last index, formatted as STOP is to be written, in
// `*nullStopLastIndex` (CheckStatus::Fault when that is null).
CheckStatus checkIndexRange(RunContext& run, const WellRange& well, const std::string& wrapValue,
                            const ParamTable& wellTable, const ParamTable& curveTable, Slots& slots,
                            std::string* nullStopLastIndex);

// --- Pieces of the check, published for their own tests. ---

// First and last index of the data section, each value rounded to five decimals.
struct IndexEnds {
  double first = 0;
  double last = 0;
  std::string firstText;  // as written, before the first delimiter
  std::string lastText;
};
enum class IndexAnswer { Read, NoData, Fault };
// Reads the first index from the first data line and the last one from at most the final
// 100000 bytes of the data. With WRAP other than NO the index stands alone on the first line of a
// record: the last index is the first of the last `linesPerRecord` data lines when that line holds
// no delimiter, else the last line holding none. IndexAnswer::Read, IndexAnswer::NoData (no data
// line) or IndexAnswer::Fault (the file cannot be read).
IndexAnswer readIndexEnds(RunContext& run, const std::string& wrapValue, IndexEnds& ends,
                          int linesPerRecord = 0);

// Increment analysis of the index channel (answers and result in cert2/data_scan.h): walks the
// records of the data section up to the end of the file or a title line.
StepAnswer analyseIncrements(RunContext& run, int linesPerRecord, IncrementResult& result);

// Removes every leading and trailing `c` ("0.1500" with '0' gives ".15").
std::string_view trimChar(std::string_view s, char c);

}  // namespace zorvik
