#include "las/tilde_lines.h"

#include <vector>

#include "las/line_reader.h"

namespace zorvik {

namespace {

constexpr std::size_t BLOCK_BYTES = 256 * 1024;

}  // namespace

bool forEachTildeLine(const LasFile& file, TildeLines* known, const TildeVisitor& visit) {
  if (!file.isOpen()) return false;
  const std::optional<LasFile::Stamp> before = file.stamp();
  if (known != nullptr && known->stamp_ && known->stamp_ == before) {
    for (const TildeLines::Line& kept : known->lines_)
      visit(std::string_view(known->text_).substr(kept.offset, kept.length), kept.start, kept.next);
    return true;
  }
  // What this search finds is kept while it fits, and only for a file that did not change under it.
  TildeLines found;
  bool keeping = known != nullptr && before.has_value();
  const auto see = [&](std::string_view line, std::int64_t start, std::int64_t next) {
    visit(line, start, next);
    if (!keeping) return;
    if (found.text_.size() + line.size() + found.lines_.size() * sizeof(TildeLines::Line) >
        TildeLines::kMaxBytes) {
      keeping = false;
      found = TildeLines{};
      return;
    }
    found.lines_.push_back(TildeLines::Line{found.text_.size(), line.size(), start, next});
    found.text_.append(line);
  };

  LineReader reader;
  if (!reader.open(file)) return false;
  // Blocks are read from the file straight into one buffer, so each byte is copied once.
  std::vector<char> block(BLOCK_BYTES);
  std::string_view line;
  std::int64_t blockStart = 1;  // 1-based position of the block's first byte
  std::int64_t lineStart = 1;   // 1-based position of the line that holds the block's first byte
  bool endedWithCr = false;     // the previous block's last byte was a CR
  for (;;) {
    const std::int64_t got = file.readAt(blockStart - 1, block.data(), block.size());
    if (got <= 0) break;
    const std::string_view bytes(block.data(), static_cast<std::size_t>(got));
    // A CR that ended the previous block ends a line here, with the LF when one follows.
    if (endedWithCr) lineStart = blockStart + (bytes.front() == '\n' ? 1 : 0);
    std::size_t from = 0;  // offset of a line start (or of the block) to search from
    const std::int64_t next = blockStart + static_cast<std::int64_t>(bytes.size());
    for (;;) {
      const std::size_t tilde = bytes.find('~', from);
      if (tilde == std::string_view::npos) break;
      const std::size_t cr = bytes.substr(from, tilde - from).rfind('\r');
      if (cr != std::string_view::npos) {
        const std::size_t after = from + cr + 1;
        lineStart = blockStart + static_cast<std::int64_t>(after + (bytes[after] == '\n'));
      } else if (from > 0) {
        lineStart = blockStart + static_cast<std::int64_t>(from);
      }
      reader.seek(lineStart);
      reader.readLine(line);
      lineStart = reader.position();
      see(line, reader.lineStart(), lineStart);
      if (lineStart >= next) break;
      from = static_cast<std::size_t>(lineStart - blockStart);
    }
    if (lineStart >= next) {  // the line read ran past the block: go on after it
      endedWithCr = false;
      blockStart = lineStart;
      continue;
    }
    const std::size_t cr = bytes.substr(from).rfind('\r');
    endedWithCr = cr != std::string_view::npos && from + cr + 1 == bytes.size();
    if (cr != std::string_view::npos && !endedWithCr) {
      const std::size_t after = from + cr + 1;
      lineStart = blockStart + static_cast<std::int64_t>(after + (bytes[after] == '\n'));
    } else if (cr == std::string_view::npos && from > 0) {
      lineStart = blockStart + static_cast<std::int64_t>(from);
    }
    blockStart = next;
  }
  if (known != nullptr) {
    if (keeping && file.stamp() == before) {
      found.stamp_ = before;
      *known = std::move(found);
    } else {
      *known = TildeLines{};
    }
  }
  return true;
}

}  // namespace zorvik
