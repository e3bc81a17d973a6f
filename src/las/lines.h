// The kinds of line every reader of a LAS file tells apart, and the line end the program writes.
#pragma once

#include <string_view>

namespace zorvik {

// The line end of every file and report the program writes.
inline constexpr std::string_view CRLF = "\r\n";

// A section title: its first non-blank character is "~".
inline bool isTitleLine(std::string_view line) {
  std::size_t first = line.find_first_not_of(' ');
  return first != std::string_view::npos && line[first] == '~';
}

// A line with nothing to read: blank, or a comment whose first non-blank character is "#".
inline bool isBlankOrComment(std::string_view line) {
  std::size_t first = line.find_first_not_of(' ');
  return first == std::string_view::npos || line[first] == '#';
}

}  // namespace zorvik
