#include "checks/index_range.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/text.h"
#include "checks/data_lines.h"
#include "checks/run_context.h"
#include "checks/wrap_layout.h"
#include "las/line_reader.h"
#include "las/lines.h"
#include "las/sections.h"

namespace zorvik {

namespace {

// How far back from the end of the data the last index is looked for.
constexpr std::int64_t TAIL_BYTES = 100000;

// Where the data section that starts at `start` ends: the start of the next section's title
// (approximately: the line after it, which the tail search stops at anyway), or past the end.
std::int64_t dataSectionEnd(const SectionIndex& sections, std::int64_t start,
                            std::int64_t fileLength) {
  const auto& index = sections.entries;
  for (std::size_t i = 0; i + 1 < index.size(); ++i)
    if (index[i].start == start) return index[i + 1].start;
  return fileLength + 1;
}

// True when the 1-based position `pos` starts a line (the byte before it ends one).
bool startsLine(LineReader& file, std::int64_t pos) {
  std::string before;
  file.readRange(pos - 1, 1, before);
  return !before.empty() && (before[0] == '\r' || before[0] == '\n');
}

std::string shownUnit(const std::string& unit) {
  return unit.empty() ? "<absent>" : unit;
}

// The STEP tolerance: one unit of the last decimal STEP is written with (1 without decimals).
double stepTolerance(std::string_view stepText) {
  std::string_view z = trimChar(trimView(stepText), '0');
  std::size_t period = z.find('.');
  if (period == std::string_view::npos || period + 1 == z.size()) return 1;
  std::size_t decimals = z.size() - period - 1;
  double tolerance = 1;
  parseNumber("0." + std::string(decimals - 1, '0') + "1", tolerance);
  return tolerance;
}

struct WellValue {
  bool found = false;
  double number = 0;
  std::string unit;
  std::string text;
};

WellValue wellValue(const ParamTable& wellTable, std::string_view mnemonic) {
  WellValue v;
  for (int i = 1; i <= wellTable.lastEntry(); ++i) {
    if (!iequals(wellTable.at(FIELD_MNEMONIC, i), mnemonic)) continue;
    v.found = true;
    v.text = trim(wellTable.at(FIELD_VALUE, i));
    v.number = leadingNumber(v.text);
    v.unit = trim(wellTable.at(FIELD_UNIT, i));
    break;
  }
  return v;
}

CheckStatus evaluate(const Slots& slots) {
  for (int k = 1; k <= 7; ++k)
    if (!slots[k].passed()) return CheckStatus::Failed;
  return CheckStatus::Passed;
}

}  // namespace

std::string_view trimChar(std::string_view s, char c) {
  while (!s.empty() && s.front() == c) s.remove_prefix(1);
  while (!s.empty() && s.back() == c) s.remove_suffix(1);
  return s;
}

IndexAnswer readIndexEnds(RunContext& run, const std::string& wrapValue, IndexEnds& ends,
                          int linesPerRecord) {
  ends = {};
  LineReader file;
  if (!file.open(run.source())) return IndexAnswer::Fault;
  std::int64_t first = firstDataLinePosition(run);
  if (noDataAt(first, file.length())) return IndexAnswer::NoData;
  char delimiter = run.dialect.delimiterChar();

  file.seek(first);
  std::string_view line;
  while (file.readLine(line) && isBlankOrComment(line)) {
  }
  ends.firstText = leadingField(line, delimiter);
  ends.first = roundTo5(leadingNumber(ends.firstText));

  // Only the tail of the data is read for the last index: files run to hundreds of MB.
  std::int64_t from = dataSectionEnd(run.sections, first, file.length()) - TAIL_BYTES;
  if (from > first) {
    bool whole = startsLine(file, from);
    file.seek(from);
    if (!whole) file.readLine(line);  // a partial line is no index
  } else {
    file.seek(first);
  }

  bool wrapped = !iequals(trimView(wrapValue), "NO");
  // The last record's lines (wrapped data): a record whose last line holds a single value would
  // otherwise pass that value off as the index.
  std::vector<std::string> recordLines(wrapped ? std::max(1, linesPerRecord) : 1);
  std::size_t counted = 0;
  std::string last;
  while (file.readLine(line)) {
    std::string_view t = trimView(line);
    if (isTitleLine(t)) break;
    if (t.empty() || t[0] == '#') continue;
    if (!wrapped) {
      last.assign(leadingField(t, delimiter));
      continue;
    }
    recordLines[counted++ % recordLines.size()].assign(t);
    if (t.find(delimiter) == std::string_view::npos) last.assign(t);
  }
  if (wrapped && counted >= recordLines.size()) {
    const std::string& recordFirst = recordLines[counted % recordLines.size()];
    if (recordFirst.find(delimiter) == std::string::npos) last = recordFirst;
  }
  ends.lastText = last;
  ends.last = roundTo5(leadingNumber(last));
  return IndexAnswer::Read;
}

StepAnswer analyseIncrements(RunContext& run, int linesPerRecord, IncrementResult& result) {
  result = {};
  LineReader file;
  if (!file.open(run.source())) return StepAnswer::Unreadable;
  std::int64_t first = firstDataLinePosition(run);
  if (noDataAt(first, file.length())) return StepAnswer::NoIncrement;
  IncrementWalk walk(linesPerRecord, run.dialect.delimiterChar());
  file.seek(first);
  std::string_view line;
  while (file.readLine(line) && walk.feed(line)) {
  }
  return walk.finish(result);
}

CheckStatus checkIndexRange(RunContext& run, const WellRange& well, const std::string& wrapValue,
                            const ParamTable& wellTable, const ParamTable& curveTable, Slots& slots,
                            std::string* nullStopLastIndex) {
  const std::string& dataName = run.sections.dataName;

  // Presence: without all four values nothing else can be compared.
  slots[1].clear();
  const std::pair<const std::string*, const char*> required[] = {
      {&well.strt, "STRT value missing"},
      {&well.stop, "STOP value missing"},
      {&well.step, "STEP value missing"},
      {&well.nullValue, "NULL value missing"}};
  for (const auto& [value, message] : required)
    if (trimView(*value).empty()) slots[1].add(closedFinding(message));
  if (!slots[1].passed()) return CheckStatus::Failed;

  WellValue strt = wellValue(wellTable, "STRT");
  WellValue stop = wellValue(wellTable, "STOP");
  WellValue step = wellValue(wellTable, "STEP");
  bool stepZero = step.text.empty() || step.number == 0;
  double tolerance = stepZero ? 0 : stepTolerance(step.text);

  std::string indexMnemonic = curveTable.lastEntry() >= 1 ? curveTable.at(FIELD_MNEMONIC, 1) : "";
  std::string indexUnit = curveTable.lastEntry() >= 1 ? trim(curveTable.at(FIELD_UNIT, 1)) : "";
  slots[7].clear();
  if (!iequals(stop.unit, strt.unit) || !iequals(step.unit, strt.unit) ||
      !iequals(indexUnit, strt.unit))
    slots[7] = RowResult::saying(
        " Units don't match: STRT=" + shownUnit(strt.unit) + ", STOP=" + shownUnit(stop.unit) +
        ", STEP=" + shownUnit(step.unit) + ", " + indexMnemonic + "=" + shownUnit(indexUnit));

  int linesPerRecord = 0;
  int bufferLength = 0;
  int channels = 0;
  analyseWrap(run, linesPerRecord, bufferLength, channels, curveTable.lastEntry());
  IndexEnds ends;
  if (readIndexEnds(run, wrapValue, ends, linesPerRecord) == IndexAnswer::Fault)
    return evaluate(slots);

  slots[2].clear();
  if (roundTo5(strt.number) != ends.first)
    slots[2] = RowResult::saying("STRT = " + formatShortest(strt.number) +
                                 ", First ~ASCII index = " + formatShortest(ends.first));

  slots[3].clear();
  std::string stopText = trim(well.stop);
  std::string nullText = trim(well.nullValue);
  bool stopIsNull = stop.number == leadingNumber(nullText) && iequals(stopText, nullText);
  if (!stopIsNull) {
    if (formatFixed(ends.last) != formatFixed(stop.number))
      slots[3] = RowResult::saying("STOP = " + formatShortest(stop.number) +
                                   ", Last ~ASCII index = " + formatShortest(ends.last));
  } else {
    // A file written in real time leaves STOP at NULL: the driver takes it from the data.
    if (nullStopLastIndex == nullptr) return CheckStatus::Fault;
    *nullStopLastIndex = formatFixed(ends.last);
    return CheckStatus::NullStop;
  }

  slots[4].clear();
  slots[5].clear();
  slots[6].clear();
  std::string_view stepDigits = trimChar(step.text, '0');
  if (contains(stepDigits, '.') && contains(ends.lastText, '.') &&
      decimalsOf(ends.lastText) < decimalsOf(stepDigits))
    slots[5] = RowResult::saying("Index channel does not carry enough precision for STEP. " +
                                 std::string(" Index has ") + toText(decimalsOf(ends.lastText)) +
                                 " decimals while STEP has " + toText(decimalsOf(stepDigits)) +
                                 " decimals");

  // Group 4's pass may already have walked the increments of this very data.
  IncrementResult increments;
  StepAnswer answer = StepAnswer::Unanalysable;
  const DataScan* kept = keptScan(run.dataScan, run.lasFile, firstDataLinePosition(run));
  if (kept != nullptr && kept->incrementAnswer && kept->linesPerRecord == linesPerRecord &&
      kept->delimiter == run.dialect.delimiterChar()) {
    answer = *kept->incrementAnswer;
    increments = kept->increments;
  } else {
    answer = analyseIncrements(run, linesPerRecord, increments);
  }
  switch (answer) {
    case StepAnswer::Constant:
      if (stepZero)
        slots[4] = RowResult::saying(
            "~Well STEP value is 0.0 (implies non-constant step) but the STEP as read from ~" +
            dataName + " section was constant @ " + formatFixed(increments.increment));
      else if (formatFixed(step.number) != formatFixed(increments.increment))
        slots[4] = RowResult::saying("~Well STEP value = " + formatFixed(step.number) +
                                     ", last read increment @ " + increments.indexText + " was " +
                                     formatFixed(increments.increment));
      break;
    case StepAnswer::Varies:
      if (stepZero) break;
      if (std::fabs(step.number - increments.increment) <= tolerance)
        slots[6] = RowResult::saying("Possible rounding error? STEP value = " + step.text +
                                     ", last read increment @ " + increments.indexText + " was " +
                                     formatFixed(increments.increment));
      else
        slots[4] =
            RowResult::saying("STEP no longer constant at : " + formatFixed(increments.index) +
                              " (" + formatFixed(increments.increment) + ")");
      break;
    case StepAnswer::Unreadable:
      return evaluate(slots);
    case StepAnswer::Unanalysable:
      return CheckStatus::Nothing;  // deliberately records nothing for this check
    case StepAnswer::NoIncrement:
      // A single record has no increment to compare STEP with; its STRT and STOP still count.
      break;
  }
  return evaluate(slots);
}

}  // namespace zorvik
