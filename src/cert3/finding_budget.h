// Keeps the findings about lines of a file to a readable, bounded amount. A data section of
// millions of lines may fail on every line; the report lists the first ones and counts the rest,
// so that neither the report nor the memory of a run grows with the size of the file. Cannot fail.
#pragma once

#include <cstddef>
#include <optional>

#include "base/text.h"
#include "checks/row_result.h"

namespace zorvik {

class FindingBudget {
 public:
  static constexpr int kMaxListed = 100;
  static constexpr std::size_t kMaxBytes = 1 << 20;

  // True when one more finding of `bytes` characters may be listed; either way it is counted.
  bool take(std::size_t bytes) {
    if (listed_ < kMaxListed && bytes_ < kMaxBytes) {
      ++listed_;
      bytes_ += bytes;
      return true;
    }
    ++unlisted_;
    return false;
  }
  long long unlisted() const { return unlisted_; }

  // Adds to `slot` the count of findings left out, when there were any.
  void closeInto(RowResult& slot) const {
    if (unlisted_ == 0) return;
    slot.add(closedFinding(toText(unlisted_) + " more findings of this kind not listed"));
  }

 private:
  int listed_ = 0;
  std::size_t bytes_ = 0;
  long long unlisted_ = 0;
};

}  // namespace zorvik
