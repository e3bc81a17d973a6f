#include "cert2/ascii_checks.h"

#include "cert2/data_lines.h"
#include "las/line_reader.h"
#include "las/text.h"
#include "run/run_state.h"

namespace zorvik {

namespace {

// Longest lines allowed, without the line end: the messages name the limits with it (80, 256).
constexpr std::int64_t MAX_WRAPPED_LINE = 78;
constexpr std::int64_t MAX_UNWRAPPED_LINE = 254;

int evaluate(const Slots& slots) {
  for (int k = 1; k <= 4; ++k)
    if (!slots[k].empty()) return CHECK_FAILED;
  return CHECK_PASSED;
}

// Values of a line split at runs of blanks, and whether it holds a "~"; one pass over the bytes.
int countValues(std::string_view line, bool& tilde) {
  int values = 0;
  bool inValue = false;
  for (char c : line) {
    if (c == ' ') {
      inValue = false;
      continue;
    }
    if (c == '~') tilde = true;
    if (!inValue) ++values;
    inValue = true;
  }
  return values;
}

// Reads the records of one data section from `start`; the first bad record fills slot 2 or 4.
void judgeRecords(const std::string& fileName, std::int64_t start, bool wrapped, int linesPerRecord,
                  int expected, Slots& slots) {
  LineReader file;
  if (!file.open(fileName)) return;
  file.seek(start);
  bool judgeLength = wrapped || runState().doWrap;  // unwrapped lengths only on request
  std::int64_t maxLength = wrapped ? MAX_WRAPPED_LINE : MAX_UNWRAPPED_LINE;
  const char* tooLong =
      wrapped ? "Line too long for WRAP YES. Was " : "Line too long for WRAP NO. Was ";
  const char* limit = wrapped ? " long. 80 is max." : " long. 256 is max.";
  int perRecord = wrapped ? std::max(1, linesPerRecord) : 1;

  std::string record;  // the record's lines joined by single blanks, kept for the finding only
  std::string_view line;
  for (;;) {
    int values = 0;
    int lines = 0;
    bool tilde = false;
    record.clear();
    while (lines < perRecord && file.readLine(line)) {
      if (judgeLength && file.lineLength() > maxLength) {
        slots[4] = tooLong + toText(file.lineLength()) + limit + "\r\n" + std::string(line);
        return;
      }
      values += countValues(line, tilde);
      if (perRecord > 1) {
        if (lines > 0) record += ' ';
        record.append(line);
      }
      ++lines;
    }
    if (lines == 0 || tilde) return;  // end of the file, or the next section's title
    if (values != expected) {
      std::string_view shown = trimView(perRecord > 1 ? std::string_view(record) : line);
      slots[2] = "Space delimited column count differs from ~Curve channel count. Expected: " +
                 toText(expected) + ". Found: " + toText(values) + "\r\n" + std::string(shown);
      return;
    }
  }
}

}  // namespace

int checkAsciiSection(const std::string& fileName, const std::string& wrapValue, int linesPerRecord,
                      int channels, const ParamTable& curveTable, Slots& slots) {
  for (int k = 1; k <= 4; ++k) slots[k].clear();
  RunState& state = runState();
  const std::vector<SectionEntry> index = state.sectionIndex;
  bool wrapped = !iequals(trimView(wrapValue), "NO");
  std::int64_t length = fileLength(fileName);

  for (const SectionEntry& section : index) {
    if (section.role != ROLE_DATA) continue;

    // The channels this data must carry: those of the section it is associated with; the
    // driver's ~Curve table when that is the one (or when the data names none).
    ParamTable own;
    const ParamTable* curves = &curveTable;
    std::string curveName = state.curveSectionName;
    std::string_view association = trimView(section.association);
    if (!association.empty() && !iequals(association, state.curveSectionName)) {
      parseSectionTable(fileName, own, association);
      curves = &own;
      curveName = std::string(association);
    }
    int definitions = curves->lastEntry();

    int values = channels;
    if (isVersion3()) {
      LineReader file(fileName);
      file.seek(section.start);
      std::string_view line;
      values = file.readLine(line) ? countWords(line, state.dataDelimiter) : 0;
    }
    if (definitions != values) {
      slots[1] = "~" + curveName + " has " + toText(definitions) + " channel descriptions while ~" +
                 section.name + " 1st line has " + toText(values) + " delimited channels. ";
      return evaluate(slots);
    }

    if (noDataAt(section.start, length)) return CHECK_FAULT;
    judgeRecords(fileName, section.start, wrapped, linesPerRecord, definitions, slots);
    if (!slots[2].empty() || !slots[4].empty()) return evaluate(slots);
  }

  // The data must close the file: nothing may follow it.
  if (!index.empty()) {
    const std::string& lastName = index.back().name;
    if (!iequals(lastName, "A") && !istartsWith(lastName, "Ascii"))
      slots[3] = "~ASCII section is not last section in the file. ~" + lastName + " was.";
  }
  return evaluate(slots);
}

}  // namespace zorvik
