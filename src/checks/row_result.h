// The result of one check row: passed, not reached, or the findings that fail it.
//
// The report and the grid show a row's result as one text ("" passed, a single blank not
// reached, else the findings one after the other); `text()` makes that text, and nothing else
// needs to. A row that was marked not reached and then given findings keeps the blank in front
// of them, which is how such a row has always printed.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "checks/finding.h"

namespace zorvik {

class RowResult {
 public:
  RowResult() = default;

  // A row not reached: its text is a single blank.
  static RowResult notReachedRow() {
    RowResult row;
    row.blank_ = true;
    return row;
  }
  // A row failed by one finding whose words are the row's whole text.
  static RowResult saying(std::string text);

  bool passed() const { return textSize() == 0; }
  bool notReached() const { return blank_ && textBytes_ == 0; }
  bool failed() const { return textBytes_ > 0; }

  // Back to passed.
  void clear() {
    blank_ = false;
    findings_.clear();
    textBytes_ = 0;
  }
  void markNotReached() {
    clear();
    blank_ = true;
  }

  // A finding that would add no text is not kept: it could not be seen.
  void add(Finding finding);
  // Adds the findings of `other` after this row's own.
  void append(const RowResult& other);

  const std::vector<Finding>& findings() const { return findings_; }

  // Length of `text()`, kept as findings are added so that callers can bound a row's size.
  std::size_t textSize() const { return textBytes_ + (blank_ ? 1 : 0); }
  std::string text() const;

  bool operator==(const RowResult&) const = default;

 private:
  bool blank_ = false;
  std::vector<Finding> findings_;
  std::size_t textBytes_ = 0;
};

}  // namespace zorvik
