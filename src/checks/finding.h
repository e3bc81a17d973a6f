// One finding of a check: what is wrong, where, and the line that shows it.
#pragma once

#include <cstdint>
#include <string>

namespace zorvik {

struct Finding {
  std::string message;     // the finding's words as the report prints them
  std::uint64_t line = 0;  // 1-based line number in the LAS file; 0 when the finding has no line
  std::string quoted;      // the offending line as read
};

}  // namespace zorvik
