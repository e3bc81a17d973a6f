// One finding of a check: what is wrong, where, and the line that shows it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace zorvik {

// Where a finding's line break sits in the row's text. The report prints the findings of a row one
// after the other: the words, and the quoted line on a line below them; most findings start on a
// line of their own, some end with a line break instead, some run on after what came before.
enum class FindingBreak {
  Before,  // line break, words, [line break, quoted line]
  After,   // words, [line break, quoted line], line break
  None,    // words, [line break, quoted line]
};

struct Finding {
  Finding() = default;
  explicit Finding(std::string words, std::optional<std::string> quotedLine = std::nullopt,
                   std::int64_t at = 0, FindingBreak breakAt = FindingBreak::Before)
      : message(std::move(words)),
        quoted(std::move(quotedLine)),
        position(at),
        lineBreak(breakAt) {}

  std::string message;                // the finding's words as the report prints them
  std::optional<std::string> quoted;  // the offending line as read, when the finding shows one
  std::int64_t position = 0;          // 1-based byte position of that line in the file; 0 unknown
  FindingBreak lineBreak = FindingBreak::Before;
  std::uint64_t line = 0;  // 1-based line number, once numbered (from `position`); 0 when not known

  // The finding as its row's text holds it.
  void appendText(std::string& out) const;

  bool operator==(const Finding&) const = default;
};

// A finding of words alone, closed by a line break: the commonest form in lists of findings.
inline Finding closedFinding(std::string message, std::int64_t position = 0) {
  return Finding{std::move(message), std::nullopt, position, FindingBreak::After};
}

}  // namespace zorvik
