// The option parser of the command-line tool: each command describes its options in a small
// table, and one parser reads any command's words against its table.
//
//   --name VALUE, --name=VALUE, -x VALUE, -xVALUE   an option with a value
//   --name, -x                                      a flag
//   --                                              every later word is an operand
//   -                                               an operand (as are all words not starting with
//   -)
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zorvik {

struct OptionSpec {
  std::string_view name;       // long name without the dashes, e.g. "report-dir"
  char letter = 0;             // short form, 0 when there is none
  std::string_view valueName;  // e.g. "DIR"; empty for a flag
  std::string_view help;       // one line for the usage text
};

struct ParsedOptions {
  std::map<std::string, std::string, std::less<>> values;  // by long name; "" for a flag
  std::vector<std::string> operands;

  bool has(std::string_view name) const { return values.find(name) != values.end(); }
  std::optional<std::string> value(std::string_view name) const;
};

struct ParseResult {
  ParsedOptions options;
  std::string error;  // empty when the words were understood
};

// Reads `words` (the words after the command name) against `table`. An option given twice keeps
// its last value.
ParseResult parseOptions(std::span<const std::string> words, std::span<const OptionSpec> table);

// The usage lines of `table`: "  -j, --jobs N   help", aligned.
std::string optionHelp(std::span<const OptionSpec> table);

}  // namespace zorvik
