#include "cert2/ascii_checks.h"

#include "base/text.h"
#include "checks/data_lines.h"
#include "checks/data_scan.h"
#include "checks/run_context.h"
#include "las/line_reader.h"

namespace zorvik {

namespace {

CheckStatus evaluate(const Slots& slots) {
  for (int k = 1; k <= 4; ++k)
    if (!slots[k].passed()) return CheckStatus::Failed;
  return CheckStatus::Passed;
}

// The first bad record of one data section into slots 2 and 4, from group 4's pass over this very
// data when it made the same walk, else by reading the records.
void judgeRecords(RunContext& run, std::int64_t start, const RecordRules& rules, Slots& slots) {
  const DataScan* kept = keptScan(run.dataScan, run.lasFile, start);
  if (kept != nullptr && sameRules(kept->rules, rules)) {
    slots[2] = kept->countFinding;
    slots[4] = kept->lengthFinding;
    return;
  }
  LineReader file;
  if (!file.open(run.source())) return;
  file.seek(start);
  RecordWalk walk(rules);
  std::string_view line;
  while (file.readLine(line) && walk.feed(line, file.lineStart(), file.lineLength())) {
  }
  walk.finish(run.source(), slots[2], slots[4]);
}

}  // namespace

int dataChannelDefinitions(RunContext& run, const SectionEntry& dataSection,
                           const ParamTable& curveTable, std::string& definitionName) {
  const std::string& curveName = run.sections.curveName;
  std::string_view association = trimView(dataSection.association);
  definitionName = curveName;
  if (association.empty() || iequals(association, curveName)) return curveTable.lastEntry();
  ParamTable own;
  parseSectionTable(run.source(), run.dialect, run.sections, own, association);
  definitionName = std::string(association);
  return own.lastEntry();
}

RecordRules asciiRecordRules(const std::string& wrapValue, int linesPerRecord, int definitions,
                             bool judgeLength) {
  RecordRules rules;
  rules.wrapped = !iequals(trimView(wrapValue), "NO");
  rules.linesPerRecord = linesPerRecord;
  rules.expectedValues = definitions;
  rules.judgeLength = judgeLength;
  return rules;
}

CheckStatus checkAsciiSection(RunContext& run, const std::string& wrapValue, int linesPerRecord,
                              int channels, const ParamTable& curveTable, Slots& slots) {
  for (int k = 1; k <= 4; ++k) slots[k].clear();
  const std::vector<SectionEntry> index = run.sections.entries;
  std::int64_t length = fileLength(run.lasFile);

  for (const SectionEntry& section : index) {
    if (section.role != SectionRole::Data) continue;

    std::string definitionName;
    int definitions = dataChannelDefinitions(run, section, curveTable, definitionName);
    int values = channels;
    if (run.isV3()) {
      LineReader file(run.source());
      file.seek(section.start);
      std::string_view line;
      values = file.readLine(line) ? countWords(line, run.dialect.delimiter) : 0;
    }
    if (definitions != values) {
      slots[1] = RowResult::saying("~" + definitionName + " has " + toText(definitions) +
                                   " channel descriptions while ~" + section.name +
                                   " 1st line has " + toText(values) + " delimited channels. ");
      return evaluate(slots);
    }

    if (noDataAt(section.start, length)) return CheckStatus::Fault;
    // Line lengths are judged only on request (/W), wrapped data or not.
    judgeRecords(run, section.start,
                 asciiRecordRules(wrapValue, linesPerRecord, definitions, run.doWrap), slots);
    if (!slots[2].passed() || !slots[4].passed()) return evaluate(slots);
  }

  // The data must close the file: nothing may follow it.
  if (!index.empty()) {
    const std::string& lastName = index.back().name;
    if (!iequals(lastName, "A") && !istartsWith(lastName, "Ascii"))
      slots[3] = RowResult::saying("~ASCII section is not last section in the file. ~" + lastName +
                                   " was.");
  }
  return evaluate(slots);
}

}  // namespace zorvik
