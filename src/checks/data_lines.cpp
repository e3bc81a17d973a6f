#include "checks/data_lines.h"

#include <cmath>

#include "base/text.h"
#include "checks/run_context.h"
#include "las/sections.h"

namespace zorvik {

std::int64_t firstDataLinePosition(RunContext& run) {
  if (run.sections.entries.empty()) buildSectionIndex(run.source(), run.dialect, run.sections);
  if (!run.sections.dataName.empty()) {
    std::string found;
    if (std::int64_t pos =
            findSection(run.source(), run.dialect, run.sections, run.sections.dataName, found);
        pos > 0)
      return pos;
  }
  for (const SectionEntry& section : run.sections.entries)
    if (section.role == SectionRole::Data) return section.start;
  return 0;
}

bool noDataAt(std::int64_t pos, std::int64_t fileLength) {
  return pos <= 0 || pos >= fileLength;
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

bool parseRoundedNumber(std::string_view field, double& value) {
  field = trimView(field);
  std::size_t i = 0;
  std::size_t n = field.size();
  bool negative = false;
  if (i < n && (field[i] == '+' || field[i] == '-')) negative = field[i++] == '-';
  std::uint64_t mantissa = 0;
  int digits = 0;
  int decimals = 0;
  bool point = false;
  for (; i < n; ++i) {
    char c = field[i];
    if (c >= '0' && c <= '9') {
      mantissa = mantissa * 10 + static_cast<std::uint64_t>(c - '0');
      ++digits;
      decimals += point;
    } else if (c == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  // In units of 0.00001 the number is an integer below 2^53: exact, and the same double the
  // "0.00000" text would read back as.
  if (i == n && digits > 0 && decimals <= 5 && digits + 5 - decimals <= 15) {
    static constexpr double kUnits[] = {100000, 10000, 1000, 100, 10, 1};
    double units = static_cast<double>(mantissa) * kUnits[decimals];
    value = units == 0 ? 0.0 : (negative ? -units : units) / 100000.0;
    return true;
  }
  if (!parseNumber(field, value)) return false;
  value = roundTo5(value);
  return true;
}

int decimalsOf(std::string_view text) {
  std::size_t p = text.find('.');
  return p == std::string_view::npos ? 0 : static_cast<int>(text.size() - p - 1);
}

}  // namespace zorvik
