#include "cert3/line_structure3.h"

#include <array>
#include <exception>
#include <optional>
#include <string_view>

#include "base/text.h"
#include "cert3/column_data.h"
#include "cert3/finding_budget.h"
#include "cert3/section_lines.h"
#include "checks/data_lines.h"
#include "checks/data_scan.h"
#include "checks/run_context.h"
#include "las/line_reader.h"
#include "las/lines.h"
#include "las/sections.h"
#include "las/v3_line.h"

namespace zorvik {

namespace {

constexpr std::array<int, 10> kItems = {1, 2, 3, 5, 6, 7, 8, 9, 10, 11};

// Labels that lead the findings of items 1 to 3 (item 4 is never filed).
constexpr std::array<std::string_view, 4> kLabels = {"", "Mnem :", "Unit :", "Value:"};

// Item 9 is the one written with two spaces; the parser never fills slot 9, so every finding a
// user sees reads " ( in ~" alike.
std::string_view sectionOpener(int item) {
  return item == 9 ? " (  in ~" : " ( in ~";
}

// What the rereading of one column data section has found so far.
struct DataSectionScan {
  const SectionEntry* entry = nullptr;
  bool dataSeen = false;
  bool gapReported = false;
  bool noDelimiterReported = false;
  bool lastLineReported = false;
};

class LineStructureCheck {
 public:
  LineStructureCheck(RunContext& run, Slots& slots) : run_(run), slots_(slots) {}

  void run() {
    run_.dataScan = {};
    LineReader reader;
    if (!reader.open(run_.source())) return;
    const auto& index = run_.sections.entries;
    delimiter_ = run_.dialect.delimiterChar();
    walkedStart_ = firstDataLinePosition(run_);
    columns_.emplace(run_);
    std::size_t cursor = 0;
    std::string section;
    std::string_view line;
    while (reader.readLine(line)) {
      std::string_view t = trimView(line);
      if (isTitleLine(t)) {
        finishDataSection();
        finishIncrementWalk();
        feedColumns([&] { columns_->endSection(); });
        std::string association;
        section = parseTitleLine(t, association);
        kind_ = v3SectionKind(section, run_.sections);
        // The index entry of this title is the one whose first line follows it.
        while (cursor < index.size() && index[cursor].start < reader.position()) ++cursor;
        if (cursor < index.size() && index[cursor].start == reader.position() &&
            index[cursor].role == SectionRole::Data) {
          scan_ = DataSectionScan{&index[cursor]};
          if (index[cursor].start == walkedStart_) walk_.emplace(1, delimiter_);
          feedColumns([&] { columns_->beginSection(index[cursor]); });
        }
        continue;
      }
      bool last = wasLastLine(reader);
      fileParserFindings(line, reader.lineStart(), section);
      if (scan_.entry != nullptr) {
        rereadDataLine(t, reader.lineStart(), last);
        feedColumns([&] { columns_->takeLine(line, reader.lineStart()); });
      }
      if (walk_) walk_->feed(line);
    }
    finishDataSection();
    finishIncrementWalk();
    keepForLaterChecks();
    for (int k : kItems) budgets_[k].closeInto(slots_[k]);
    slots_[10].append(dataFindings_);
  }

 private:
  void fileParserFindings(std::string_view line, std::int64_t start, std::string& section) {
    if (parseV3Line(line, section, kind_, run_.dialect, run_.sections, diagnostics_) ==
        V3LineType::Title)
      kind_ = v3SectionKind(section, run_.sections);
    for (int k = 1; k <= 10; ++k) {
      if (k == 4 || diagnostics_[k].empty()) continue;
      std::string_view label = k < 4 ? kLabels[k] : std::string_view();
      std::string_view opener = sectionOpener(k);
      std::size_t bytes =
          label.size() + diagnostics_[k].size() + opener.size() + section.size() + line.size() + 5;
      if (!budgets_[k].take(bytes)) continue;
      std::string words;
      words.reserve(bytes);
      words += label;
      words += diagnostics_[k];
      words += opener;
      words += section;
      words += ")";
      slots_[k].add(Finding{std::move(words), std::string(line), start, FindingBreak::After});
    }
  }

  // Blank and comment lines among the data, and data lines without the delimiter; each kind is
  // told once per section.
  void rereadDataLine(std::string_view t, std::int64_t start, bool lastLineOfFile) {
    const std::string& title = scan_.entry->name;
    if (t.empty() || t.front() == '#') {
      if (scan_.dataSeen && !scan_.gapReported) {
        scan_.gapReported = true;
        addDataFinding(" Comment or blank line within Column Data lines in section ", title, start);
      }
      return;
    }
    scan_.dataSeen = true;
    if (t.find(delimiter_) != std::string_view::npos) return;
    if (lastLineOfFile) {
      if (!scan_.lastLineReported) addDataFinding("No Delimiters found in section ", title, start);
      scan_.lastLineReported = true;
    } else {
      if (!scan_.noDelimiterReported)
        addDataFinding("No delimiters found in section ", title, start);
      scan_.noDelimiterReported = true;
    }
  }

  void addDataFinding(std::string_view words, const std::string& title, std::int64_t start) {
    dataFindings_.add(closedFinding(std::string(words) + title, start));
  }

  // The increments of the run's data section, walked on this pass, and the column data check's
  // findings are kept for the index and column checks, which take them as long as the file stays
  // as it was read (and, for the increments, its records are single lines).
  void finishIncrementWalk() {
    if (!walk_) return;
    increments_.emplace();
    incrementAnswer_ = walk_->finish(*increments_);
    walk_.reset();
  }

  void keepForLaterChecks() {
    std::optional<Slots> columnFindings;
    feedColumns([&] { columnFindings = columns_->finish(); });
    DataScan scan;
    stampScan(scan, run_.lasFile, walkedStart_);
    scan.delimiter = delimiter_;
    scan.linesPerRecord = 1;
    scan.incrementAnswer = incrementAnswer_;
    if (increments_) scan.increments = *increments_;
    scan.columnData = std::move(columnFindings);
    run_.dataScan = std::move(scan);
  }

  // The column checks ride on this pass but are not part of it: a fault in them only means the
  // column check reads the data itself later, and meets the fault there.
  template <class Step>
  void feedColumns(Step step) {
    if (!columns_) return;
    try {
      step();
    } catch (const std::exception&) {
      columns_.reset();
    }
  }

  void finishDataSection() {
    if (scan_.entry != nullptr && !scan_.dataSeen) {
      slots_[11].add(Finding{"No Data lines found in section " + scan_.entry->name, std::nullopt,
                             scan_.entry->titleStart, FindingBreak::Before});
    }
    scan_ = DataSectionScan{};
  }

  RunContext& run_;
  Slots& slots_;
  char delimiter_ = ' ';
  V3LineDiagnostics diagnostics_;
  V3SectionKind kind_ = V3SectionKind::None;  // of the section being read
  std::array<FindingBudget, 12> budgets_;
  DataSectionScan scan_;
  std::int64_t walkedStart_ = 0;       // first line of the run's data section
  std::optional<IncrementWalk> walk_;  // while that section is read
  std::optional<StepAnswer> incrementAnswer_;
  std::optional<IncrementResult> increments_;
  std::optional<ColumnDataScan> columns_;  // none once it faulted
  RowResult dataFindings_;  // item 10 findings of the data sections, listed after the parser's
};

}  // namespace

CheckStatus checkLineStructure3(RunContext& run, Slots& slots) {
  for (int k : kItems) slots[k].clear();
  try {
    LineStructureCheck(run, slots).run();
  } catch (const std::exception&) {
    return CheckStatus::Fault;
  }
  for (int k : kItems) {
    if (!slots[k].passed()) return CheckStatus::Failed;
  }
  return CheckStatus::Passed;
}

}  // namespace zorvik
