#include "cert2/line_syntax.h"

#include <cstring>

#include "base/text.h"
#include "cert2/ascii_checks.h"
#include "checks/data_lines.h"
#include "checks/data_scan.h"
#include "checks/run_context.h"
#include "checks/wrap_layout.h"
#include "las/line_reader.h"
#include "las/lines.h"
#include "las/v3_line.h"

namespace zorvik {

namespace {

// A slot stops taking findings at this size: a data section of hundreds of MB with a fault on
// every line would otherwise hold the whole file, several times over, in memory and report.
constexpr std::size_t MAX_SLOT_BYTES = 8 << 20;

// A finding is its words and the offending line, each after a line break.
void addFinding(RowResult& slot, std::string_view words, std::string_view line,
                std::int64_t start) {
  if (slot.textSize() >= MAX_SLOT_BYTES) return;
  slot.add(Finding{std::string(words), std::string(line), start});
}

bool hasTab(std::string_view line) {
  return std::memchr(line.data(), '\t', line.size()) != nullptr;
}

// The walks of groups 6 and 7, fed from this pass so that they need not read the data again.
struct DataWalks {
  IncrementWalk increments;
  RecordWalk records;
  bool incrementsOn = true;
  bool recordsOn = true;
};

// Data lines: only data belongs there, and no tabs unless tabs delimit the values. The walks may
// need lines past the title that ends the data; the reading then goes back to where this check's
// own reading stopped, since the next header section's turn starts there.
void judgeDataLines(LineReader& file, bool tabDelimited, Slots& slots, DataWalks* walks) {
  std::int64_t resume = 0;  // set once the title line after the data has been read
  std::string_view line;
  while (file.readLine(line)) {
    // One look at the bytes serves the record walk and the tab test.
    bool scanned = walks != nullptr && walks->recordsOn;
    LineBytes bytes = scanned ? scanLineBytes(line) : LineBytes{};
    if (resume == 0) {
      std::string_view t = trimView(line);
      if (isTitleLine(t)) {
        resume = file.position();
      } else {
        if (t.empty())
          addFinding(slots[5], "Blank Line in ~Ascii Section", line, file.lineStart());
        else if (t[0] == '#')
          addFinding(slots[5], "Comment Line in ~Ascii Section", line, file.lineStart());
        if (!tabDelimited && (scanned ? bytes.tab : hasTab(line)))
          addFinding(slots[5], "Tab character(s) found.", line, file.lineStart());
      }
    }
    if (walks != nullptr) {
      if (walks->incrementsOn) walks->incrementsOn = walks->increments.feed(line);
      if (walks->recordsOn)
        walks->recordsOn = walks->records.feed(line, file.lineStart(), file.lineLength(), bytes);
    }
    if (resume != 0 && (walks == nullptr || (!walks->incrementsOn && !walks->recordsOn))) break;
  }
  if (resume != 0) file.seek(resume);
}

void judgeHeaderLine(std::string_view line, std::int64_t start, const Dialect& dialect,
                     bool tabDelimited, Slots& slots) {
  switch (classifyHeaderLine(line)) {
    case LineKind::Ok:
      if (!isValidMnemonic(fieldMnemonic(line), dialect))
        addFinding(slots[1], "Illegal mnemonic: ", line, start);
      if (!isLegalUnitText(fieldUnit(line), dialect))
        addFinding(slots[2], "Illegal Unit: ", line, start);
      if (!isLegalValueText(fieldValue(line), dialect))
        addFinding(slots[3], "Illegal Value: ", line, start);
      if (!isLegalDescriptionText(fieldDescription(line), dialect))
        addFinding(slots[4], "Illegal Description: ", line, start);
      if (!tabDelimited && hasTab(line))
        addFinding(slots[4], "Tab character(s) found.", line, start);
      break;
    case LineKind::NoMnemonic:
      addFinding(slots[1], "Missing Mnemonic", line, start);
      break;
    case LineKind::HasTab:
      addFinding(slots[5], "Tab characters used on the line: ", replaceAll(line, "\t", "<Tab>"),
                 start);
      break;
    case LineKind::SpaceInMnemonic:
      addFinding(slots[1], "Mnemonic has embedded space(s)", line, start);
      break;
    case LineKind::NotDelimited:
      addFinding(slots[5], "Unknown or undetermined line type", line, start);
      break;
    default:  // blank, comment and title lines say nothing about syntax
      break;
  }
}

// Reads on from wherever the previous section stopped, up to and including the next title line.
// Each section's turn therefore judges the lines after the title at which the last one stopped.
void judgeHeaderLines(LineReader& file, const Dialect& dialect, bool tabDelimited, Slots& slots) {
  std::string_view line;
  while (file.readLine(line)) {
    if (isTitleLine(line)) break;
    judgeHeaderLine(line, file.lineStart(), dialect, tabDelimited, slots);
  }
}

std::string wrapMessage(WrapLayout structure, const std::string& wrapValue) {
  if (structure != WrapLayout::Unwrapped && structure != WrapLayout::Wrapped)
    return "Error determining Wrap structure. Likely missing or extra channels at some depths.";
  std::string wrap = toUpper(trimView(wrapValue));
  std::string looks = structure == WrapLayout::Unwrapped ? "NO" : "YES";
  // A WRAP that is neither YES nor NO is the ~Version check's finding, not this one's.
  if ((wrap == "YES" || wrap == "NO") && wrap != looks)
    return "WRAP value does not match ~ASCII section structure. WRAP =" + wrap +
           " while ~ASCII structure looks like " + looks;
  return {};
}

// The one data section whose walks groups 6 and 7 would make (several data sections, or one
// group 6 would not find by its name, are left to their own reading); null when none.
const SectionEntry* walkedDataSection(RunContext& run) {
  const SectionEntry* data = nullptr;
  for (const SectionEntry& section : run.sections.entries) {
    if (section.role != SectionRole::Data) continue;
    if (data != nullptr) return nullptr;
    data = &section;
  }
  if (data == nullptr || data->start != firstDataLinePosition(run)) return nullptr;
  return data;
}

}  // namespace

CheckStatus checkLineSyntax(RunContext& run, const std::string& wrapValue,
                            const ParamTable& curveTable, Slots& slots, int& linesPerRecord,
                            int& channels) {
  for (int k = 1; k <= 7; ++k) slots[k].clear();
  run.dataScan = {};
  char delimiter = run.dialect.delimiterChar();
  bool tabDelimited = delimiter == '\t';

  int perRecord = 0;
  int bufferLength = 0;
  int perRecordChannels = 0;
  const WrapLayout structure =
      analyseWrap(run, perRecord, bufferLength, perRecordChannels, curveTable.lastEntry());
  linesPerRecord = 1;
  channels = 0;
  if (structure == WrapLayout::Unwrapped || structure == WrapLayout::Wrapped) {
    linesPerRecord = perRecord;
    channels = perRecordChannels;
  }

  LineReader file;
  if (!file.open(run.source())) return CheckStatus::Fault;
  const SectionEntry* walked = walkedDataSection(run);
  for (const SectionEntry& section : run.sections.entries) {
    if (section.role == SectionRole::Data) {
      file.seek(section.start);
      if (&section != walked) {
        judgeDataLines(file, tabDelimited, slots, nullptr);
        continue;
      }
      std::string definitionName;
      RecordRules rules = asciiRecordRules(
          wrapValue, linesPerRecord,
          dataChannelDefinitions(run, section, curveTable, definitionName), run.doWrap);
      DataWalks walks{IncrementWalk(perRecord, delimiter), RecordWalk(rules)};
      judgeDataLines(file, tabDelimited, slots, &walks);
      DataScan scan;
      stampScan(scan, run.lasFile, section.start);
      scan.delimiter = delimiter;
      scan.linesPerRecord = perRecord;
      scan.rules = rules;
      scan.incrementAnswer = walks.increments.finish(scan.increments);
      walks.records.finish(run.source(), scan.countFinding, scan.lengthFinding);
      run.dataScan = std::move(scan);
    } else if (section.role != SectionRole::Other) {
      judgeHeaderLines(file, run.dialect, tabDelimited, slots);
    }
  }
  std::int64_t length = file.length();
  file.close();

  if (noDataAt(firstDataLinePosition(run), length))
    slots[6] = RowResult::saying("No data lines in ASCII section");
  slots[7] = RowResult::saying(wrapMessage(structure, wrapValue));

  for (int k = 1; k <= 7; ++k)
    if (!slots[k].passed()) return CheckStatus::Failed;
  return CheckStatus::Passed;
}

}  // namespace zorvik
