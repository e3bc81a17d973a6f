#include "cert3/associations.h"

#include <exception>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "cert3/mnemonic_table.h"
#include "cert3/section_lines.h"
#include "checks/run_context.h"
#include "las/header_line.h"
#include "las/line_reader.h"
#include "las/v3_line.h"

namespace zorvik {

MnemonicTable buildMnemonicTable(RunContext& run) {
  MnemonicTable table;
  LineReader reader;
  if (!reader.open(run.source())) return table;
  V3LineDiagnostics diagnostics;
  std::string_view line;
  for (const SectionEntry& entry : run.sections.entries) {
    // Column data lines carry no mnemonics; skipping them keeps the table to the header lines.
    if (entry.role == SectionRole::Data) continue;
    reader.seek(entry.start);
    std::string section = entry.name;
    while (readSectionLine(reader, line)) {
      // The table holds every line the 3.0 parser reads as a parameter line: header, parameter
      // and definition lines alike.
      if (parseV3Line(line, section, run.dialect, run.sections, diagnostics) != V3LineType::Pdl)
        continue;
      MnemonicRow row;
      row.mnemonic = fieldMnemonic(line);
      row.unit = fieldUnit(line);
      row.value = fieldValue(line);
      row.description = fieldDescription(line);
      row.association = fieldAssociation(line, run.dialect.delimiter, row.entries);
      row.position = reader.lineStart();
      table.add(std::move(row));
    }
  }
  return table;
}

CheckStatus checkAssociations(RunContext& run, Slots& slots) {
  slots[1].clear();
  slots[2].clear();
  try {
    MnemonicTable table = buildMnemonicTable(run);
    for (int r = 1; r <= table.size(); ++r) {
      const MnemonicRow& row = table.row(r);
      if (row.association.empty()) continue;
      for (const std::string& entry : row.entries) {
        const std::optional<int> target = table.lookup(entry);
        if (!target) {
          slots[1].add(Finding{"Association mnemonic " + std::string(trimView(entry)) +
                                   " not found in file. Line was :",
                               rowAsLine(row), row.position, FindingBreak::After});
        } else if (target == r) {
          // The line runs on after the words, as written.
          slots[2].add(closedFinding("Line was like : " + rowAsLine(row), row.position));
        }
      }
    }
    // The walk names every line whose references loop back (or lead into a loop); a line naming
    // itself is told there again, after its "Line was like" entry above.
    std::vector<bool> circular = rowsInCircularChains(table);
    for (int r = 1; r <= table.size(); ++r) {
      if (!circular[static_cast<std::size_t>(r)]) continue;
      const MnemonicRow& row = table.row(r);
      slots[2].add(Finding{"Circular Association at line: ", rowAsLine(row), row.position,
                           FindingBreak::After});
    }
  } catch (const std::exception&) {
    return CheckStatus::Fault;
  }
  return slots[1].passed() && slots[2].passed() ? CheckStatus::Passed : CheckStatus::Failed;
}

}  // namespace zorvik
