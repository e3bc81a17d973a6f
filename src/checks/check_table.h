// The two check tables: a catalogue and the results of one run kept together as text cells
// addressed by (row, column, group), every bound starting at 0.
//
//   (0, 0, g)   heading of group g
//   (r, 2, g)   title of check r of group g (empty: no such check)
//   (r, 0, g)   result of check r: "" passed / not applicable, " " not reached, else the findings
//   (r, 1, g)   a note on check r that fails nothing (the missing country sets of 1.2/2.0)
//   (r, 3, g)   display mark of the row for the result grid
#pragma once

#include <array>
#include <string>
#include <vector>

namespace zorvik {

// Result texts of one group: index k is the text of row k (1..15); index 0 is unused.
using Slots = std::array<std::string, 16>;

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
inline constexpr int COL_RESULT = 0;
inline constexpr int COL_NOTE = 1;
inline constexpr int COL_TITLE = 2;
inline constexpr int COL_MARK = 3;

class CheckTable {
 public:
  static constexpr int kLastRow = 15;
  static constexpr int kLastColumn = 3;

  explicit CheckTable(int lastGroup) : lastGroup_(lastGroup), cells_(cellCount(lastGroup)) {}

  int lastRow() const { return kLastRow; }
  int lastColumn() const { return kLastColumn; }
  int lastGroup() const { return lastGroup_; }

  // Out-of-range addresses throw std::out_of_range (a "Subscript out of range" fault).
  std::string& at(int row, int column, int group);
  const std::string& at(int row, int column, int group) const;

  // Empties every cell, keeping the bounds.
  void clear();

 private:
  static std::size_t cellCount(int lastGroup) {
    return static_cast<std::size_t>((kLastRow + 1) * (kLastColumn + 1) * (lastGroup + 1));
  }
  std::size_t index(int row, int column, int group) const;

  int lastGroup_;
  std::vector<std::string> cells_;
};

}  // namespace zorvik
