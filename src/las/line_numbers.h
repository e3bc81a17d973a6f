// Line numbers for byte positions. Checks note where a finding's line starts as they read it;
// turning positions into line numbers costs a reading of the file up to the last one, so it is
// done once a run, and only by those who show line numbers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "las/las_file.h"

namespace zorvik {

struct NumberedLine {
  std::uint64_t number = 0;  // 1-based; 0 when the position is 0 or past the end of the file
  std::string text;          // the line that holds the position, as the file holds it
};

// The lines that hold each of the 1-based byte positions, in the order given. Line ends are
// those of LineReader (CR LF or a lone CR).
std::vector<NumberedLine> linesAt(const LasFile& file, const std::vector<std::int64_t>& positions);

}  // namespace zorvik
