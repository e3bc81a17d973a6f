#include "checks/title_lines.h"

#include <cstdint>
#include <exception>
#include <string_view>

#include "base/text.h"
#include "checks/check_table.h"
#include "las/lines.h"
#include "las/tilde_lines.h"

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

void add(RowResult& slot, std::string_view words, std::string_view quoted, std::int64_t start,
         FindingBreak lineBreak) {
  slot.add(Finding{std::string(words), std::string(quoted), start, lineBreak});
}

// Each finding of this pass ends with a line break.
void judgeLine3(std::string_view line, std::int64_t start, RowResult& slot) {
  const std::string_view trimmed = trimView(line);
  if (!trimmed.empty() && trimmed.front() == '#') return;  // a comment may mention a tilde
  if (trimmed.find('~') != 0) {
    add(slot, NOT_FIRST, line, start, FindingBreak::After);
  } else if (trimmed.size() < 2) {
    add(slot, MISSING_TITLE, trimmed, start, FindingBreak::After);
  } else if (std::string_view("][|\t, ").find(trimmed[1]) != std::string_view::npos) {
    add(slot, "Tilde followed by illegal characters; space, comma, tab, | or [ ]", trimmed, start,
        FindingBreak::After);
  }
}

// The findings of this pass that quote the offending line end with the line itself, so a
// following one continues on the same report line; the missing-title finding alone ends with a
// line break.
void judgeLine2(std::string_view line, std::int64_t start, RowResult& slot) {
  const std::string_view trimmed = trimView(line);
  if (trimmed.find('~') != 0) {
    add(slot, NOT_FIRST, line, start, FindingBreak::None);
  } else if (trimmed.size() < 2) {
    add(slot, MISSING_TITLE, trimmed, start, FindingBreak::After);
  } else {
    const auto c = static_cast<unsigned char>(trimmed[1]);
    if (c >= 'A' && c <= 'Z') return;
    add(slot,
        "Tilde not followed by upper case letter, A-Z. Character was " + describeCharacter(c) +
            " on line:",
        trimmed, start, FindingBreak::None);
  }
}

CheckStatus runPass(const LasFile& file, RowResult& slot, TildeLines* known,
                    void (*judge)(std::string_view, std::int64_t, RowResult&)) {
  try {
    const bool read = forEachTildeLine(
        file, known, [&](std::string_view line, std::int64_t start, std::int64_t /*next*/) {
          judge(line, start, slot);
        });
    if (!read) return CheckStatus::Fault;
    return slot.passed() ? CheckStatus::Passed : CheckStatus::Failed;
  } catch (const std::exception&) {
    return CheckStatus::Fault;
  }
}

}  // namespace

CheckStatus checkTitleLines3(const LasFile& file, RowResult& slot, TildeLines* known) {
  return runPass(file, slot, known, judgeLine3);
}

CheckStatus checkTitleLines2(const LasFile& file, RowResult& slot, TildeLines* known) {
  return runPass(file, slot, known, judgeLine2);
}

}  // namespace zorvik
