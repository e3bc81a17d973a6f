// Group 7 of the 3.0 catalogue, "Column Data Section Checks": for every column data section, its
// channel count against its definition section, the delimited item count of every data line, and
// every data item against the format its channel definition states.
//
// Each data section is read once, line by line; findings about its lines are listed up to a
// bound and then only counted.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cert3/finding_budget.h"
#include "cert3/item_format.h"
#include "checks/check_table.h"
#include "las/section_types.h"

namespace zorvik {

struct RunContext;

// The column data checks of data sections fed line by line, by the column check's own reading or
// by the line check's pass, which reads every data line anyway: its findings are then kept for
// the column check, which takes them while the file stays as it was read. Findings go into rows
// 1-3 of the slots `finish` gives.
class ColumnDataScan {
 public:
  explicit ColumnDataScan(RunContext& run);
  // Starts a data section: reads its channel definitions.
  void beginSection(const SectionEntry& data);
  // Takes the next line of the section, read at the 1-based position `start` (comment and blank
  // lines included; they are passed over).
  void takeLine(std::string_view line, std::int64_t start);
  // Ends the section in hand, if any.
  void endSection();
  // Ends the scan; the findings of rows 1-3.
  Slots finish();
  // What was found before a fault ended the scan.
  const Slots& findingsSoFar() const { return slots_; }

 private:
  void reportChannelCount(const std::string& definitionName, int channels,
                          const std::string& dataName, std::size_t found, std::int64_t position);
  void checkFormats(const std::string& dataName, bool counted, std::int64_t start);
  void reportItemCount(std::string_view line, std::int64_t start, const std::string& dataName,
                       std::size_t expected);

  RunContext& run_;
  char delimiter_ = ' ';
  Slots slots_;
  const SectionEntry* section_ = nullptr;
  std::string definitionName_;
  int channels_ = 0;
  bool first_ = true;
  std::size_t expected_ = 0;  // items of the section's first data line
  std::vector<ItemFormat> formats_;
  std::vector<std::string_view> items_;
  std::vector<ItemShape> shapes_;
  FindingBudget budget2_;
  FindingBudget budget3_;
};

// Fills slots 1-3 (with the findings the line check's pass kept, when it could keep them). Returns
// CheckStatus::Failed when any of them holds findings, CheckStatus::Passed otherwise,
// CheckStatus::Fault when an internal fault ended it (slots then hold what was found so far). A
// file that cannot be opened has no data lines.
CheckStatus checkColumnData(RunContext& run, Slots& slots);

// Name of the definition section whose channels the data section's items follow: the section
// its title names after "|", else the definition section of its set ("Log" of "Log_Data"), else
// for the ~ASCII section the file's curve section; "" when there is none. Cannot fail.
std::string definitionSectionFor(const SectionIndex& sections, const SectionEntry& dataSection);

}  // namespace zorvik
