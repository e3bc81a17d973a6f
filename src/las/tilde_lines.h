// Finding the lines of a file that hold a "~" without reading every line as a line.
//
// Big files hold tildes only in their first few lines and in their section titles, so the file is
// searched for tildes block by block, at the speed of a byte search, and only a line that holds
// one is read as a line. Line ends are those of LineReader (CR LF or a lone CR).
//
// A run searches its file twice, for the section index and for the title-line check. The first
// search can keep what it found in a TildeLines, and the second then reads nothing: on a file of
// hundreds of MB each reading costs about as much as the checks of its data.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "las/las_file.h"

namespace zorvik {

// Called with a tilde line, the 1-based position of its first byte and that of the line after it.
using TildeVisitor =
    std::function<void(std::string_view line, std::int64_t start, std::int64_t next)>;

// The tilde lines of one file as a search found them, for as long as the file stays as it was.
// Kept only up to kMaxBytes, so a file of tildes on every line is simply searched again.
class TildeLines {
 public:
  static constexpr std::size_t kMaxBytes = 4 << 20;

 private:
  friend bool forEachTildeLine(const LasFile& file, TildeLines* known, const TildeVisitor& visit);

  struct Line {
    std::size_t offset;  // into text_
    std::size_t length;
    std::int64_t start;
    std::int64_t next;
  };
  std::optional<LasFile::Stamp> stamp_;  // of the file they were found in; none: nothing kept
  std::string text_;
  std::vector<Line> lines_;
};

// Calls `visit` with every line that holds a "~", in file order. With `known`, lines kept there for
// the same, unchanged file are given without reading it, and otherwise what this search finds is
// kept there. False when the file is not open. Exceptions from `visit` pass through.
bool forEachTildeLine(const LasFile& file, TildeLines* known, const TildeVisitor& visit);
inline bool forEachTildeLine(const LasFile& file, const TildeVisitor& visit) {
  return forEachTildeLine(file, nullptr, visit);
}

}  // namespace zorvik
