// Reading the lines of one section of a file, from its first line up to the next title line.
// None of these can fail: a read error looks like the end of the file.
#pragma once

#include <cstdint>
#include <string_view>

#include "las/line_reader.h"
#include "las/lines.h"

namespace zorvik {

// Reads the next line of the section into `line` (a view valid until the next read). False at
// the end of the file or at the next title line (a line whose trimmed text begins with "~"),
// which is then consumed.
inline bool readSectionLine(LineReader& reader, std::string_view& line) {
  return reader.readLine(line) && !isTitleLine(line);
}

// True when the line last read was the last line of the file.
inline bool wasLastLine(const LineReader& reader) {
  return reader.position() > reader.length();
}

}  // namespace zorvik
