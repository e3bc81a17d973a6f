#include "run/cli_options.h"

#include <algorithm>

namespace zorvik {

std::optional<std::string> ParsedOptions::value(std::string_view name) const {
  auto found = values.find(name);
  if (found == values.end()) return std::nullopt;
  return found->second;
}

namespace {

const OptionSpec* byName(std::span<const OptionSpec> table, std::string_view name) {
  auto found = std::find_if(table.begin(), table.end(),
                            [&](const OptionSpec& spec) { return spec.name == name; });
  return found == table.end() ? nullptr : &*found;
}

const OptionSpec* byLetter(std::span<const OptionSpec> table, char letter) {
  auto found = std::find_if(table.begin(), table.end(),
                            [&](const OptionSpec& spec) { return spec.letter == letter; });
  return found == table.end() ? nullptr : &*found;
}

}  // namespace

ParseResult parseOptions(std::span<const std::string> words, std::span<const OptionSpec> table) {
  ParseResult result;
  bool operandsOnly = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (operandsOnly || word.size() < 2 || word[0] != '-') {
      result.options.operands.push_back(word);
      continue;
    }
    if (word == "--") {
      operandsOnly = true;
      continue;
    }

    const OptionSpec* spec = nullptr;
    std::optional<std::string> attached;  // a value written into the same word
    std::string shown;                    // the option as the user wrote it, for messages
    if (word.starts_with("--")) {
      std::string_view body = std::string_view(word).substr(2);
      std::size_t equals = body.find('=');
      if (equals != std::string_view::npos) {
        attached = std::string(body.substr(equals + 1));
        body = body.substr(0, equals);
      }
      shown = "--" + std::string(body);
      spec = byName(table, body);
    } else {
      shown = word.substr(0, 2);
      spec = byLetter(table, word[1]);
      if (word.size() > 2) attached = word.substr(2);
    }
    if (spec == nullptr) {
      result.error = "unknown option " + shown;
      return result;
    }

    if (spec->valueName.empty()) {
      if (attached) {
        result.error = "option " + shown + " takes no value";
        return result;
      }
      result.options.values[std::string(spec->name)] = "";
      continue;
    }
    if (!attached) {
      if (i + 1 >= words.size()) {
        result.error = "option " + shown + " needs a value (" + std::string(spec->valueName) + ")";
        return result;
      }
      attached = words[++i];
    }
    result.options.values[std::string(spec->name)] = *attached;
  }
  return result;
}

std::string optionHelp(std::span<const OptionSpec> table) {
  std::vector<std::string> heads;
  std::size_t width = 0;
  for (const OptionSpec& spec : table) {
    std::string head = spec.letter != 0 ? std::string("-") + spec.letter + ", " : "    ";
    head += "--" + std::string(spec.name);
    if (!spec.valueName.empty()) head += " " + std::string(spec.valueName);
    width = std::max(width, head.size());
    heads.push_back(std::move(head));
  }
  std::string text;
  for (std::size_t i = 0; i < table.size(); ++i) {
    text += "  " + heads[i] + std::string(width - heads[i].size() + 3, ' ');
    text += std::string(table[i].help) + "\n";
  }
  return text;
}

}  // namespace zorvik
