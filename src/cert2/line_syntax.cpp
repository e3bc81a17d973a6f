#include "cert2/line_syntax.h"

#include <cstring>

#include "cert2/data_lines.h"
#include "las/line_reader.h"
#include "las/text.h"
#include "las/v3_line.h"
#include "run/run_state.h"
#include "transform/wrap.h"

namespace zorvik {

namespace {

// A finding is its words and the offending line, each after a line break.
void addFinding(std::string& slot, std::string_view words, std::string_view line) {
  slot += "\r\n";
  slot += words;
  slot += "\r\n";
  slot += line;
}

bool isTitle(std::string_view line) {
  std::string_view t = trimLeftView(line);
  return !t.empty() && t[0] == '~';
}

bool hasTab(std::string_view line) {
  return std::memchr(line.data(), '\t', line.size()) != nullptr;
}

// Data lines: only data belongs there, and no tabs unless tabs delimit the values.
void judgeDataLines(LineReader& file, bool tabDelimited, Slots& slots) {
  std::string_view line;
  while (file.readLine(line)) {
    std::string_view t = trimView(line);
    if (!t.empty() && t[0] == '~') break;
    if (t.empty())
      addFinding(slots[5], "Blank Line in ~Ascii Section", line);
    else if (t[0] == '#')
      addFinding(slots[5], "Comment Line in ~Ascii Section", line);
    if (!tabDelimited && hasTab(line)) addFinding(slots[5], "Tab character(s) found.", line);
  }
}

void judgeHeaderLine(std::string_view line, bool tabDelimited, Slots& slots) {
  switch (classifyHeaderLine(line)) {
    case LINE_OK:
      if (!isValidMnemonic(fieldMnemonic(line))) addFinding(slots[1], "Illegal mnemonic: ", line);
      if (!isLegalUnitText(fieldUnit(line))) addFinding(slots[2], "Illegal Unit: ", line);
      if (!isLegalValueText(fieldValue(line))) addFinding(slots[3], "Illegal Value: ", line);
      if (!isLegalDescriptionText(fieldDescription(line)))
        addFinding(slots[4], "Illegal Description: ", line);
      if (!tabDelimited && hasTab(line)) addFinding(slots[4], "Tab character(s) found.", line);
      break;
    case LINE_NO_MNEMONIC:
      addFinding(slots[1], "Missing Mnemonic", line);
      break;
    case LINE_HAS_TAB:
      addFinding(slots[5], "Tab characters used on the line: ", replaceAll(line, "\t", "<Tab>"));
      break;
    case LINE_SPACE_IN_MNEMONIC:
      addFinding(slots[1], "Mnemonic has embedded space(s)", line);
      break;
    case LINE_NOT_DELIMITED:
      addFinding(slots[5], "Unknown or undetermined line type", line);
      break;
    default:  // blank, comment and title lines say nothing about syntax
      break;
  }
}

// Reads on from wherever the previous section stopped, up to and including the next title line.
// Each section's turn therefore judges the lines after the title at which the last one stopped.
void judgeHeaderLines(LineReader& file, bool tabDelimited, Slots& slots) {
  std::string_view line;
  while (file.readLine(line)) {
    if (isTitle(line)) break;
    judgeHeaderLine(line, tabDelimited, slots);
  }
}

std::string wrapMessage(int structure, const std::string& wrapValue) {
  if (structure == 0) return "Error determining Wrap structure. Likely bad file.";
  if (structure != WRAP_UNWRAPPED && structure != WRAP_WRAPPED)
    return "Error determining Wrap structure. Likely missing or extra channels at some depths.";
  std::string wrap = toUpper(trimView(wrapValue));
  std::string looks = structure == WRAP_UNWRAPPED ? "NO" : "YES";
  // A WRAP that is neither YES nor NO is the ~Version check's finding, not this one's.
  if ((wrap == "YES" || wrap == "NO") && wrap != looks)
    return "WRAP value does not match ~ASCII section structure. WRAP =" + wrap +
           " while ~ASCII structure looks like " + looks;
  return {};
}

}  // namespace

int checkLineSyntax(const std::string& fileName, const std::string& wrapValue,
                    const ParamTable& curveTable, Slots& slots, int& linesPerRecord,
                    int& channels) {
  for (int k = 1; k <= 7; ++k) slots[k].clear();
  linesPerRecord = 1;
  channels = 0;
  RunState& state = runState();
  bool tabDelimited = dataDelimiterChar() == '\t';

  LineReader file;
  if (!file.open(fileName)) return CHECK_FAULT;
  for (const SectionEntry& section : state.sectionIndex) {
    if (section.role == ROLE_DATA) {
      file.seek(section.start);
      judgeDataLines(file, tabDelimited, slots);
    } else if (section.role != ROLE_OTHER) {
      judgeHeaderLines(file, tabDelimited, slots);
    }
  }
  std::int64_t length = file.length();
  file.close();

  if (noDataAt(firstDataLinePosition(fileName), length))
    slots[6] = "No data lines in ASCII section";

  int perRecord = 0;
  int bufferLength = 0;
  int perRecordChannels = 0;
  int structure =
      analyseWrap(fileName, perRecord, bufferLength, perRecordChannels, curveTable.lastEntry());
  slots[7] = wrapMessage(structure, wrapValue);
  if (structure == WRAP_UNWRAPPED || structure == WRAP_WRAPPED) {
    linesPerRecord = perRecord;
    channels = perRecordChannels;
  }

  for (int k = 1; k <= 7; ++k)
    if (!slots[k].empty()) return CHECK_FAILED;
  return CHECK_PASSED;
}

}  // namespace zorvik
