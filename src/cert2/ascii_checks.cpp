#include "cert2/ascii_checks.h"

#include <cstring>

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

// Values of a line split at runs of blanks: the blank-to-value steps. Written without branches so
// that the compiler can vectorise it; this loop sees every byte of the data.
int countValues(std::string_view line) {
  const char* p = line.data();
  std::size_t n = line.size();
  if (n == 0) return 0;
  int values = p[0] != ' ';
  for (std::size_t i = 1; i < n; ++i) values += (p[i] != ' ') & (p[i - 1] == ' ');
  return values;
}

bool hasTilde(std::string_view line) {
  return std::memchr(line.data(), '~', line.size()) != nullptr;
}

// The record's lines joined by single blanks, read again from `start` for a finding.
std::string recordText(LineReader& file, std::int64_t start, int lines) {
  std::string record;
  file.seek(start);
  std::string_view line;
  for (int i = 0; i < lines && file.readLine(line); ++i) {
    if (i > 0) record += ' ';
    record.append(line);
  }
  return std::string(trimView(record));
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

  std::string_view line;
  for (;;) {
    int values = 0;
    int lines = 0;
    bool tilde = false;
    std::int64_t recordStart = 0;
    while (lines < perRecord && file.readLine(line)) {
      if (judgeLength && file.lineLength() > maxLength) {
        slots[4] = tooLong + toText(file.lineLength()) + limit + "\r\n" + std::string(line);
        return;
      }
      if (lines == 0) recordStart = file.lineStart();
      values += countValues(line);
      tilde = tilde || hasTilde(line);
      ++lines;
    }
    if (lines == 0 || tilde) return;  // end of the file, or the next section's title
    if (values != expected) {
      slots[2] = "Space delimited column count differs from ~Curve channel count. Expected: " +
                 toText(expected) + ". Found: " + toText(values) + "\r\n" +
                 recordText(file, recordStart, lines);
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
