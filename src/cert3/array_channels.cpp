#include "cert3/array_channels.h"

#include <exception>
#include <limits>
#include <string>
#include <unordered_map>

#include "base/text.h"
#include "cert3/section_lines.h"
#include "checks/run_context.h"
#include "las/header_line.h"
#include "las/line_reader.h"
#include "las/v3_line.h"

namespace zorvik {

std::optional<int> arrayElementNumber(std::string_view mnemonic) {
  std::size_t open = mnemonic.find('[');
  if (open == std::string_view::npos) return std::nullopt;
  std::size_t close = mnemonic.find(']', open + 1);
  if (close == std::string_view::npos || close == open + 1) return std::nullopt;
  long long number = 0;
  for (char c : mnemonic.substr(open + 1, close - open - 1)) {
    if (c < '0' || c > '9') return std::nullopt;
    number = number * 10 + (c - '0');
    if (number > std::numeric_limits<int>::max()) return std::nullopt;
  }
  return static_cast<int>(number);
}

std::string_view arrayBaseMnemonic(std::string_view mnemonic) {
  return mnemonic.substr(0, std::min(mnemonic.find('['), mnemonic.size()));
}

std::string_view writtenFormat(std::string_view line) {
  std::size_t open = line.find('{');
  std::size_t close = line.find('}');
  if (open == std::string_view::npos || close == std::string_view::npos || close < open) return {};
  return trimView(line.substr(open + 1, close - open - 1));
}

namespace {

// The spacing of an array format: what follows its ";" (trimmed), "" without one.
std::string_view spacingOf(std::string_view format) {
  std::size_t semicolon = format.find(';');
  return semicolon == std::string_view::npos ? std::string_view()
                                             : trimView(format.substr(semicolon + 1));
}

bool isArrayFormat(std::string_view format) {
  return !format.empty() && (format.front() == 'A' || format.front() == 'a');
}

struct Element {
  std::string mnemonic;
  std::string unit;
  std::string format;  // as written between the braces
  bool isArray = false;
  std::int64_t position = 0;  // of its line
};

struct ArrayGroup {
  int lastNumber = 0;
  bool closed = false;
  std::string spacing;
  std::string unit;
};

std::vector<Element> definitionLines(RunContext& run, LineReader& reader,
                                     const SectionEntry& section) {
  std::vector<Element> lines;
  V3LineDiagnostics diagnostics;
  std::string name = section.name;
  std::string_view line;
  reader.seek(section.start);
  while (readSectionLine(reader, line)) {
    if (parseV3Line(line, name, run.dialect, run.sections, diagnostics) != V3LineType::Pdl)
      continue;
    Element e;
    e.mnemonic = fieldMnemonic(line);
    e.unit = fieldUnit(line);
    e.format = std::string(writtenFormat(line));
    e.isArray = isArrayFormat(e.format);
    e.position = reader.lineStart();
    lines.push_back(std::move(e));
  }
  return lines;
}

// Judges one definition section; false when its unnumbered elements kept items 2 to 5 from being
// tested.
bool checkSection(const std::vector<Element>& lines, Slots& slots) {
  bool unnumbered = false;
  for (const Element& e : lines) {
    if (e.isArray && !arrayElementNumber(e.mnemonic)) {
      slots[1].add(closedFinding(e.mnemonic, e.position));
      unnumbered = true;
    }
  }
  if (unnumbered) return false;
  // The first section tested decides these items from their preset on.
  for (int k = 2; k <= 5; ++k)
    if (slots[k].notReached()) slots[k].clear();

  std::unordered_map<std::string, ArrayGroup> groups;  // upper-cased base mnemonic
  ArrayGroup* current = nullptr;
  for (const Element& e : lines) {
    if (!e.isArray) {
      if (current != nullptr) current->closed = true;
      current = nullptr;
      continue;
    }
    std::string key = toUpper(arrayBaseMnemonic(e.mnemonic));
    // Every element is numbered: unnumbered ones ended the section's test above.
    const int number = arrayElementNumber(e.mnemonic).value_or(-1);
    auto [it, opened] = groups.try_emplace(key);
    ArrayGroup& group = it->second;
    if (current != &group && current != nullptr) current->closed = true;
    if (opened) {
      group.spacing = std::string(spacingOf(e.format));
      group.unit = e.unit;
    } else if (group.closed) {
      slots[3].add(closedFinding(e.mnemonic, e.position));
    }
    current = &group;
    // Each out-of-sequence element stands on a line of its own, as in the other array items.
    if (number != group.lastNumber + 1) {
      slots[2].add(closedFinding(e.mnemonic, e.position));
    }
    group.lastNumber = number;
    if (!opened && spacingOf(e.format) != group.spacing) {
      slots[4].add(closedFinding(e.mnemonic + ", format was: {" + e.format + "}", e.position));
    }
    // Units are compared exactly: "ms" and "MS" are different units.
    if (!opened && e.unit != group.unit) {
      slots[5].add(closedFinding(
          e.mnemonic + ", unit was: " + e.unit + ", first was: " + group.unit, e.position));
    }
  }
  return true;
}

}  // namespace

CheckStatus checkArrayChannels(RunContext& run, Slots& slots) {
  slots[1].clear();
  // Items 2 to 5 stay undecided (as the driver preset them) only when every section that has
  // arrays could not be tested for them.
  bool skipped = false;
  try {
    LineReader reader;
    if (reader.open(run.source())) {
      // Findings of every definition section are kept, one section after the other.
      for (const SectionEntry& entry : run.sections.entries) {
        if (entry.role == SectionRole::Definition &&
            !checkSection(definitionLines(run, reader, entry), slots))
          skipped = true;
      }
    }
  } catch (const std::exception&) {
    return CheckStatus::Fault;
  }
  if (!skipped) {
    for (int k = 2; k <= 5; ++k)
      if (slots[k].notReached()) slots[k].clear();
  }
  for (int k = 1; k <= 5; ++k) {
    if (!slots[k].passed()) return CheckStatus::Failed;
  }
  return CheckStatus::Passed;
}

}  // namespace zorvik
