// One finding of a check: what is wrong, where, and the line that shows it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

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
  std::string message;                // the finding's words as the report prints them
  std::optional<std::string> quoted;  // the offending line as read, when the finding shows one
  std::int64_t position = 0;          // 1-based byte position of that line in the file; 0 unknown
  std::uint64_t line = 0;             // 1-based line number, once numbered; 0 when not known
  FindingBreak lineBreak = FindingBreak::Before;

  // The finding as its row's text holds it.
  void appendText(std::string& out) const;

  bool operator==(const Finding&) const = default;
};

// A finding of a line read at `position`, quoting it: its words, then the line below them.
inline Finding lineFinding(std::string message, std::string quoted, std::int64_t position) {
  return Finding{std::move(message), std::move(quoted), position, 0, FindingBreak::Before};
}

// A finding of words only, on a line of its own.
inline Finding wordsFinding(std::string message) {
  return Finding{std::move(message), std::nullopt, 0, 0, FindingBreak::Before};
}

}  // namespace zorvik
