#include "checks/wrap_layout.h"

#include <cmath>
#include <vector>

#include "base/text.h"
#include "checks/run_context.h"
#include "checks/run_observer.h"
#include "las/header_line.h"
#include "las/line_reader.h"
#include "las/sections.h"

namespace zorvik {

namespace {

struct SampledLine {
  int fields = 0;
  int length = 0;  // right-trimmed
};

// Field counts of lines first..first+count-1 written one after another ("1", "5", "5" -> "155").
std::string countPattern(const std::vector<SampledLine>& lines, std::size_t first,
                         std::size_t count) {
  std::string pattern;
  for (std::size_t i = first; i < first + count && i < lines.size(); ++i)
    pattern += toText(lines[i].fields);
  return pattern;
}

// Lets the window repaint and take an Escape press; true when the user asked to cancel.
bool serviceWindow(RunObserver* observer) {
  if (observer == nullptr) return false;
  observer->processEvents();
  return observer->cancelRequested();
}

std::int64_t dataSectionStart(const LasFile& file, const Dialect& dialect, SectionIndex& sections) {
  std::string found;
  for (const std::string& name : {sections.dataName, std::string("Log_Data"), std::string("A")}) {
    if (name.empty()) continue;
    if (std::int64_t pos = findSection(file, dialect, sections, name, found); pos > 0) return pos;
  }
  return 0;
}

int curveLineCount(const LasFile& file, const Dialect& dialect, SectionIndex& sections) {
  const std::string& curve = sections.curveName;
  if (curve.empty()) return 0;
  ParamTable table;
  parseSectionTable(file, dialect, sections, table, curve);
  return table.lastEntry();
}

}  // namespace

WrapLayout analyseWrap(const LasFile& source, const Dialect& dialect, SectionIndex& sections,
                       RunObserver* observer, int& linesPerRecord, int& bufferLength, int& channels,
                       int sampleHint) {
  linesPerRecord = bufferLength = channels = 0;
  std::int64_t start = dataSectionStart(source, dialect, sections);
  LineReader file;
  if (start <= 0 || !file.open(source) || start >= file.length()) return WrapLayout::Undetermined;
  const std::string delimiter = dialect.delimiter.empty() ? std::string(" ") : dialect.delimiter;

  // About three fifths of the channel count: enough lines for two records of any usual layout.
  int count = sampleHint > 0 ? sampleHint : curveLineCount(source, dialect, sections);
  std::size_t sampleSize = static_cast<std::size_t>(std::floor(count / 5.0 * 3.0));

  std::vector<SampledLine> lines;
  file.seek(start);
  std::string_view line;
  while (lines.size() <= sampleSize && file.readLine(line)) {
    if (trimView(line).empty()) continue;
    lines.push_back({countWords(line, delimiter), static_cast<int>(trimRightView(line).size())});
    if (serviceWindow(observer)) return WrapLayout::Cancelled;
  }
  if (lines.empty()) return WrapLayout::Undetermined;

  bool uniform = true;
  for (const SampledLine& l : lines) uniform = uniform && l.fields == lines[0].fields;
  if (uniform) {
    linesPerRecord = 1;
    bufferLength = lines[0].length + 2;
    channels = lines[0].fields;
    return WrapLayout::Unwrapped;
  }

  // A record of k lines repeats when the field counts of lines 1..k match those of k+1..2k and
  // its first line starts with a single field (the index alone); the test on the pattern's first
  // character is deliberately loose.
  std::size_t lastK = lines.size() / 2 + 1;
  for (std::size_t k = 1; k <= lastK; ++k) {
    std::string a = countPattern(lines, 0, k);
    if (a.empty() || a[0] != '1' || a != countPattern(lines, k, k)) continue;
    linesPerRecord = static_cast<int>(k);
    for (std::size_t i = 0; i < k && i < lines.size(); ++i) {
      bufferLength += lines[i].length + 2;
      channels += lines[i].fields;
    }
    return WrapLayout::Wrapped;
  }
  return WrapLayout::Undetermined;
}

WrapLayout analyseWrap(RunContext& run, int& linesPerRecord, int& bufferLength, int& channels,
                       int sampleHint) {
  return analyseWrap(run.source(), run.dialect, run.sections, run.observer, linesPerRecord,
                     bufferLength, channels, sampleHint);
}

}  // namespace zorvik
