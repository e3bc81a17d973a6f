#include "checks/title_lines.h"

#include <cstdint>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "checks/check_table.h"
#include "las/line_reader.h"
#include "las/lines.h"

namespace zorvik {
namespace {

constexpr std::string_view NOT_FIRST = "Tilde not first non-space character of the line";
constexpr std::string_view MISSING_TITLE = "Missing section title";

// How the 1.2/2.0 pass names a character that should have been an upper-case letter.
std::string describeCharacter(unsigned char c) {
  if (c == '\t') return "<TAB>";
  if (c == ' ') return "<space>";
  if (c < 32 || c >= 128)
    return "Unprintable control character ASCII code =" + toText(static_cast<long long>(c));
  return std::string(1, static_cast<char>(c));
}

void judgeLine3(std::string_view line, std::string& slot) {
  const std::string_view trimmed = trimView(line);
  if (!trimmed.empty() && trimmed.front() == '#') return;  // a comment may mention a tilde
  if (trimmed.find('~') != 0) {
    slot.append(NOT_FIRST).append(CRLF).append(line).append(CRLF);
  } else if (trimmed.size() < 2) {
    slot.append(MISSING_TITLE).append(CRLF).append(trimmed).append(CRLF);
  } else if (std::string_view("][|\t, ").find(trimmed[1]) != std::string_view::npos) {
    slot.append("Tilde followed by illegal characters; space, comma, tab, | or [ ]")
        .append(CRLF)
        .append(trimmed)
        .append(CRLF);
  }
}

// The entries of this pass that quote the offending line end with the line itself, so a following
// entry continues on the same report line; the missing-title entry alone ends with a line break.
void judgeLine2(std::string_view line, std::string& slot) {
  const std::string_view trimmed = trimView(line);
  if (trimmed.find('~') != 0) {
    slot.append(NOT_FIRST).append(CRLF).append(line);
  } else if (trimmed.size() < 2) {
    slot.append(MISSING_TITLE).append(CRLF).append(trimmed).append(CRLF);
  } else {
    const auto c = static_cast<unsigned char>(trimmed[1]);
    if (c >= 'A' && c <= 'Z') return;
    slot.append("Tilde not followed by upper case letter, A-Z. Character was ")
        .append(describeCharacter(c))
        .append(" on line:")
        .append(CRLF)
        .append(trimmed);
  }
}

// Big files hold tildes only in their first few lines, so the file is searched for tildes block
// by block and only a line that holds one is read as a line. `lineStart` is the 1-based position
// of the line that holds the first byte of the block in hand.
constexpr std::int64_t BLOCK_BYTES = 256 * 1024;

CheckStatus runPass(const LasFile& file, std::string& slot,
                    void (*judge)(std::string_view, std::string&)) {
  try {
    LineReader reader;
    if (!reader.open(file)) return CheckStatus::Fault;
    // Blocks are read from the file straight into one buffer, so each byte is copied once.
    std::vector<char> block(static_cast<std::size_t>(BLOCK_BYTES));
    std::string_view line;
    std::int64_t blockStart = 1;
    std::int64_t lineStart = 1;
    bool endedWithCr = false;  // the previous block's last byte was a CR
    for (;;) {
      const std::int64_t got = file.readAt(blockStart - 1, block.data(), block.size());
      if (got <= 0) break;
      const std::string_view bytes(block.data(), static_cast<std::size_t>(got));
      // A CR that ended the previous block ends a line here, with the LF when one follows.
      if (endedWithCr) lineStart = blockStart + (bytes.front() == '\n' ? 1 : 0);
      std::size_t from = 0;  // offset of a line start (or of the block) to search from
      std::int64_t next = blockStart + static_cast<std::int64_t>(bytes.size());
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
        judge(line, slot);
        lineStart = reader.position();
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
    return slot.empty() ? CheckStatus::Passed : CheckStatus::Failed;
  } catch (const std::exception&) {
    return CheckStatus::Fault;
  }
}

}  // namespace

CheckStatus checkTitleLines3(const LasFile& file, std::string& slot) {
  return runPass(file, slot, judgeLine3);
}

CheckStatus checkTitleLines2(const LasFile& file, std::string& slot) {
  return runPass(file, slot, judgeLine2);
}

}  // namespace zorvik
