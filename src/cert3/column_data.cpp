#include "cert3/column_data.h"

#include <algorithm>
#include <exception>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "cert3/data_items.h"
#include "cert3/finding_budget.h"
#include "cert3/item_format.h"
#include "cert3/section_lines.h"
#include "checks/run_context.h"
#include "las/header_line.h"
#include "las/line_reader.h"
#include "las/sections.h"

namespace zorvik {

ColumnDataScan::ColumnDataScan(RunContext& run)
    : run_(run), delimiter_(run.dialect.delimiterChar()) {}

void ColumnDataScan::beginSection(const SectionEntry& data) {
  section_ = &data;
  definitionName_ = definitionSectionFor(run_.sections, data);
  ParamTable definitions;
  if (!definitionName_.empty())
    parseSectionTable(run_.source(), run_.dialect, run_.sections, definitions, definitionName_);
  channels_ = definitions.lastEntry();
  formats_.clear();
  for (int k = 1; k <= channels_; ++k) {
    formats_.push_back(parseItemFormat(definitions.at(FIELD_FORMAT, k)));
  }
  first_ = true;
  expected_ = 0;
}

void ColumnDataScan::takeLine(std::string_view line, std::int64_t start) {
  if (isBlankOrComment(line)) return;
  const std::string& dataName = section_->name;
  const bool counted = delimiter_ != ' ' && splitCountingItems(line, delimiter_, items_, shapes_);
  if (!counted) splitDataItems(line, delimiter_, items_);
  if (first_) {
    first_ = false;
    expected_ = items_.size();
    if (expected_ != static_cast<std::size_t>(channels_)) {
      reportChannelCount(definitionName_, channels_, dataName, expected_, start);
    }
  }
  checkFormats(dataName, counted, start);
  // Each line is held to the count of the section's first data line, so a line that differs from
  // its neighbours is named even when the definitions disagree with all.
  if (items_.size() != expected_) reportItemCount(line, start, dataName, expected_);
}

void ColumnDataScan::endSection() {
  if (section_ != nullptr && first_ && channels_ != 0)
    reportChannelCount(definitionName_, channels_, section_->name, 0, section_->titleStart);
  section_ = nullptr;
}

Slots ColumnDataScan::finish() {
  endSection();
  budget2_.closeInto(slots_[2]);
  budget3_.closeInto(slots_[3]);
  return std::move(slots_);
}

void ColumnDataScan::reportChannelCount(const std::string& definitionName, int channels,
                                        const std::string& dataName, std::size_t found,
                                        std::int64_t position) {
  slots_[1].add(closedFinding("~" + definitionName + " has " + toText(channels) +
                                  " channel descriptions while ~" + dataName + " has " +
                                  toText(static_cast<long long>(found)) + " delimited channels. ",
                              position));
}

// `counted`: the items come with their shapes (the common line, read in one pass).
void ColumnDataScan::checkFormats(const std::string& dataName, bool counted, std::int64_t start) {
  const std::string_view delimiterText = run_.dialect.delimiter;
  std::size_t n = std::min(items_.size(), formats_.size());
  for (std::size_t k = 0; k < n; ++k) {
    const bool fits = counted ? itemFitsFormat(items_[k], shapes_[k], formats_[k], delimiterText)
                              : itemFitsFormat(items_[k], formats_[k], delimiterText);
    if (fits) continue;
    const ItemFormat& f = formats_[k];
    // The line is placed by its index value, the depth or time a user looks for.
    std::string_view place = items_[0];
    if (!budget3_.take(items_[k].size() + dataName.size() + place.size() + f.text.size() + 48)) {
      continue;
    }
    slots_[3].add(closedFinding("Data column item (" + std::string(items_[k]) + ") in ~" +
                                    dataName + " @ " + std::string(place) + " wrong format {" +
                                    f.text + "}",
                                start));
  }
}

void ColumnDataScan::reportItemCount(std::string_view line, std::int64_t start,
                                     const std::string& dataName, std::size_t expected) {
  if (!budget2_.take(line.size() + dataName.size() + 60)) return;
  slots_[2].add(Finding{"Section " + dataName + ", expected " +
                            toText(static_cast<long long>(expected)) + " channels, found " +
                            toText(static_cast<long long>(items_.size())) + ". Line was",
                        std::string(line), start, FindingBreak::After});
}

std::string definitionSectionFor(const SectionIndex& sections, const SectionEntry& dataSection) {
  std::string named = trim(dataSection.association);
  if (!named.empty()) return named;
  std::size_t underscore = dataSection.name.find('_');
  if (underscore != std::string::npos) {
    std::string_view prefix = trimView(std::string_view(dataSection.name).substr(0, underscore));
    for (const SectionGroup& group : sections.groups) {
      if (!iequals(group.prefix, prefix) || group.definition <= 0) continue;
      std::size_t number = static_cast<std::size_t>(group.definition);
      if (number <= sections.entries.size()) return sections.entries[number - 1].name;
    }
  }
  int arrayIndex = -1;
  if (iequals(splitArrayIndex(dataSection.name, arrayIndex), "ASCII")) return sections.curveName;
  return {};
}

CheckStatus checkColumnData(RunContext& run, Slots& slots) {
  for (int k = 1; k <= 3; ++k) slots[k].clear();
  const DataScan* kept = keptScan(run.dataScan, run.lasFile, run.dataScan.start);
  if (kept != nullptr && kept->columnData && kept->delimiter == run.dialect.delimiterChar()) {
    for (int k = 1; k <= 3; ++k) slots[k] = (*kept->columnData)[k];
  } else {
    ColumnDataScan scan(run);
    try {
      LineReader reader;
      if (reader.open(run.source())) {
        for (const SectionEntry& entry : run.sections.entries) {
          if (entry.role != SectionRole::Data) continue;
          scan.beginSection(entry);
          reader.seek(entry.start);
          std::string_view line;
          while (readSectionLine(reader, line)) scan.takeLine(line, reader.lineStart());
          scan.endSection();
        }
      }
      Slots found = scan.finish();
      for (int k = 1; k <= 3; ++k) slots[k] = std::move(found[k]);
    } catch (const std::exception&) {
      for (int k = 1; k <= 3; ++k) slots[k] = scan.findingsSoFar()[k];
      return CheckStatus::Fault;
    }
  }
  for (int k = 1; k <= 3; ++k) {
    if (!slots[k].passed()) return CheckStatus::Failed;
  }
  return CheckStatus::Passed;
}

}  // namespace zorvik
