// Finding the lines of a file that hold a "~" without reading every line as a line.
//
// Big files hold tildes only in their first few lines and in their section titles, so the file is
// searched for tildes block by block, at the speed of a byte search, and only a line that holds
// one is read as a line. Line ends are those of LineReader (CR LF or a lone CR).
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "las/las_file.h"

namespace zorvik {

// Calls `visit` with every line that holds a "~", in file order, and the 1-based position of the
// line after it. False when the file is not open. Exceptions from `visit` pass through.
bool forEachTildeLine(const LasFile& file,
                      const std::function<void(std::string_view line, std::int64_t next)>& visit);

}  // namespace zorvik
