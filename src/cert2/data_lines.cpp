#include "cert2/data_lines.h"

#include <cmath>

#include "las/sections.h"
#include "las/text.h"
#include "run/run_state.h"

namespace zorvik {

std::int64_t firstDataLinePosition(const std::string& fileName) {
  RunState& state = runState();
  if (state.sectionIndex.empty()) buildSectionIndex(fileName);
  if (!state.dataSectionName.empty()) {
    std::string found;
    if (std::int64_t pos = findSection(fileName, state.dataSectionName, found); pos > 0) return pos;
  }
  for (const SectionEntry& section : state.sectionIndex)
    if (section.role == ROLE_DATA) return section.start;
  return 0;
}

bool noDataAt(std::int64_t pos, std::int64_t fileLength) {
  return pos <= 0 || pos >= fileLength;
}

char dataDelimiterChar() {
  const std::string& d = runState().dataDelimiter;
  return d.empty() ? ' ' : d[0];
}

bool isBlankOrComment(std::string_view line) {
  std::string_view t = trimLeftView(line);
  return t.empty() || t[0] == '#';
}

std::string_view leadingField(std::string_view line, char delimiter) {
  std::string_view t = trimView(line);
  std::size_t p = t.find(delimiter);
  return p == std::string_view::npos ? t : trimView(t.substr(0, p));
}

double roundTo5(double value) {
  if (!std::isfinite(value)) return value;
  double scaled = std::round(value * 100000.0);
  return scaled == 0 ? 0.0 : scaled / 100000.0;
}

int decimalsOf(std::string_view text) {
  std::size_t p = text.find('.');
  return p == std::string_view::npos ? 0 : static_cast<int>(text.size() - p - 1);
}

}  // namespace zorvik
