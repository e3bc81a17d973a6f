// Group 6 of the 1.2/2.0 catalogue (and of 3.0): STRT, STOP, STEP and NULL of the ~Well section
// against the index channel of the data; the null STOP repair of real-time files.
//
// Never throws on bad input. CHECK_FAULT only when a null STOP could not be rewritten.
#pragma once

#include <string>
#include <string_view>

#include "checks/check_table.h"
#include "las/header_line.h"

namespace zorvik {

// The ~Well values the driver read (a single space when a mnemonic is absent).
struct WellRange {
  std::string strt;
  std::string stop;
  std::string step;
  std::string nullValue;
};

// Fills slots 1..7 and returns CHECK_PASSED, CHECK_FAILED, CHECK_FAULT (the null STOP repair
// failed) or CHECK_NOTHING (the data could not be analysed: record nothing). May rewrite the
// STOP value in the file and then sets runState().nullStopRepaired and rebuilds the section
// index.
int checkIndexRange(const std::string& fileName, const WellRange& well,
                    const std::string& wrapValue, const ParamTable& wellTable,
                    const ParamTable& curveTable, Slots& slots);

// --- Pieces of the check, published for their own tests. ---

// First and last index of the data section.
struct IndexEnds {
  double first = 0;
  double last = 0;
  std::string firstText;  // as written, before the first delimiter
  std::string lastText;
};
inline constexpr int INDEX_FAULT = 0;
inline constexpr int INDEX_READ = -1;
inline constexpr int INDEX_NO_DATA = 2;
// Reads the first index from the first data line and the last one from at most the final
// 100000 bytes of the file. INDEX_READ, INDEX_NO_DATA (no data line) or INDEX_FAULT.
int readIndexEnds(const std::string& fileName, const std::string& wrapValue, IndexEnds& ends);

// Increment analysis of the index channel.
inline constexpr int STEP_CONSTANT = 1;
inline constexpr int STEP_VARIES = 2;
inline constexpr int STEP_UNREADABLE = 3;  // the file could not be read
inline constexpr int STEP_TOO_FEW = 4;     // fewer than two records: nothing to analyse
struct IncrementResult {
  double increment = 0;   // the constant increment, or the one that broke the pattern
  std::string indexText;  // index text of the record where it broke
};
// Walks the records of the data section (`linesPerRecord` physical lines each).
int analyseIncrements(const std::string& fileName, int linesPerRecord, IncrementResult& result);

// Removes every leading and trailing `c` ("0.1500" with '0' gives ".15").
std::string_view trimChar(std::string_view s, char c);

}  // namespace zorvik
