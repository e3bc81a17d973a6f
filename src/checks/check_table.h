// The two check tables: a catalogue and the results of one run kept together. The catalogue's
// texts are cells addressed by (row, column, group), every bound starting at 0; the results are
// typed, one per check row (1..15) of each group.
//
//   (0, 0, g)   heading of group g
//   (r, 2, g)   title of check r of group g (empty: no such check)
//   (r, 1, g)   a note on check r that fails nothing (the missing country sets of 1.2/2.0)
//   (r, 3, g)   display mark of the row for the result grid
//   result(r, g)  result of check r: passed / not applicable, not reached, or its findings
#pragma once

#include <array>
#include <string>
#include <vector>

#include "checks/row_result.h"

namespace zorvik {

// Results of one group's checks: index k is row k (1..15); index 0 is unused.
using Slots = std::array<RowResult, 16>;

// How a check procedure ended.
enum class CheckStatus {
  Passed,    // all its rows passed
  Failed,    // at least one row holds findings
  Fault,     // an internal fault ended it
  Nothing,   // nothing to record
  NullStop,  // the index check found STOP at the NULL value and leaves the repair to its caller
};

// How the file-level checks, a version driver or the report writer ended.
enum class RunStatus { Completed, Fault, Stopped };

// Column numbers of a check table.
inline constexpr int COL_HEADING = 0;  // row 0 only
inline constexpr int COL_NOTE = 1;
inline constexpr int COL_TITLE = 2;
inline constexpr int COL_MARK = 3;

class CheckTable {
 public:
  static constexpr int kLastRow = 15;
  static constexpr int kLastColumn = 3;

  explicit CheckTable(int lastGroup)
      : lastGroup_(lastGroup), cells_(cellCount(lastGroup)), results_(resultCount(lastGroup)) {}

  int lastRow() const { return kLastRow; }
  int lastGroup() const { return lastGroup_; }

  // Out-of-range addresses throw std::out_of_range (a "Subscript out of range" fault), and so
  // does column 0 below row 0, where the typed results live.
  std::string& at(int row, int column, int group);
  const std::string& at(int row, int column, int group) const;

  RowResult& result(int row, int group);
  const RowResult& result(int row, int group) const;

  // Empties every cell and result, keeping the bounds.
  void clear();
  // The same for one group.
  void clearGroup(int group);

 private:
  static std::size_t cellCount(int lastGroup) {
    return static_cast<std::size_t>((kLastRow + 1) * (kLastColumn + 1) * (lastGroup + 1));
  }
  static std::size_t resultCount(int lastGroup) {
    return static_cast<std::size_t>(kLastRow * (lastGroup + 1));
  }
  std::size_t index(int row, int column, int group) const;
  std::size_t resultIndex(int row, int group) const;

  int lastGroup_;
  std::vector<std::string> cells_;
  std::vector<RowResult> results_;
};

}  // namespace zorvik
