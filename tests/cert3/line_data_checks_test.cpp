// The checks that read the file again, on their own: over large data sections and over a file
// that is gone; the fixtures' findings are pinned by their golden reports.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "cert3/array_channels.h"
#include "cert3/associations.h"
#include "cert3/column_data.h"
#include "cert3/line_structure3.h"
#include "checks/data_lines.h"
#include "checks/data_scan.h"
#include "checks/index_range.h"
#include "checks/run_context.h"
#include "checks/section_structure.h"
#include "las/sections.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using Check = std::function<CheckStatus(RunContext&, Slots&)>;

// A 3.0 file: ~Version (comma), a two-channel ~Log_Definition and `data` lines.
std::string lasText(const std::vector<std::string>& data) {
  std::string text = "~Version\r\nVERS. 3.0 : V\r\nWRAP. NO : W\r\nDLM . COMMA : D\r\n";
  text += "~Log_Definition\r\nDEPT.M : DEPTH {F}\r\nGR  .GAPI : GAMMA {F}\r\n";
  text += "~Log_Data | Log_Definition\r\n";
  for (const std::string& line : data) text += line + "\r\n";
  return text;
}

// A run of the comma-delimited 3.0 file at `path`, its sections located.
void prepare(RunContext& run, const std::string& path) {
  run.lasFile = path;
  run.dialect.version = 3.0f;
  run.dialect.delimiter = ",";
  locateStandardSections(LasFile(path), run.dialect, run.sections);
}

using Texts = std::array<std::string, 16>;

// Runs `check` as the driver does, every slot preset to not reached; the rows' texts.
Texts runOn(const std::string& path, const Check& check, CheckStatus& result) {
  RunContext run;
  prepare(run, path);
  Slots slots;
  slots.fill(RowResult::notReachedRow());
  result = check(run, slots);
  Texts texts;
  for (std::size_t k = 0; k < slots.size(); ++k) texts[k] = slots[k].text();
  return texts;
}

std::size_t countOf(const std::string& text, const std::string& what) {
  std::size_t n = 0;
  for (std::size_t p = text.find(what); p != std::string::npos; p = text.find(what, p + 1)) ++n;
  return n;
}

// A file gone between groups: the section structure check faults, the others find nothing.
TEST(LineDataChecks, MissingFile) {
  const std::string gone = "/nonexistent/zorvik/file.las";
  CheckStatus result = CheckStatus::Fault;
  runOn(gone, checkSectionStructure, result);
  EXPECT_EQ(result, CheckStatus::Fault);
  for (const Check& check : {Check(checkLineStructure3), Check(checkColumnData),
                             Check(checkAssociations), Check(checkArrayChannels)}) {
    EXPECT_EQ(runOn(gone, check, result)[1], "");
    EXPECT_EQ(result, CheckStatus::Passed);
  }
}

// Data lines that all fail are listed up to a bound and then counted, so findings about a large
// data section stay readable and small.
TEST(LineDataChecks, DataLineFindingsAreBounded) {
  testing::ScratchDir dir;
  std::vector<std::string> data{"0.5,1"};
  for (int i = 1; i <= 1000; ++i) data.push_back(std::to_string(i) + ".5,x,9");
  CheckStatus result = CheckStatus::Fault;
  Texts slots = runOn(dir.write("bounded.las", lasText(data)), checkColumnData, result);
  EXPECT_EQ(result, CheckStatus::Failed);
  EXPECT_EQ(countOf(slots[3], "Data column item (x) in ~Log_Data @ "), 100u);
  EXPECT_NE(slots[3].find("Data column item (x) in ~Log_Data @ 1.5 wrong format {F}\r\n"),
            std::string::npos);
  EXPECT_NE(slots[3].find("\r\n900 more findings of this kind not listed\r\n"), std::string::npos);
  EXPECT_EQ(countOf(slots[2], "Line was\r\n"), 100u);
  EXPECT_NE(slots[2].find("\r\n900 more findings of this kind not listed\r\n"), std::string::npos);

  // Lines without the delimiter: the parser's findings are bounded too, the section's own
  // finding is told once.
  data.erase(data.begin());
  for (std::string& line : data) line = line.substr(0, line.find(','));
  slots = runOn(dir.write("undelimited.las", lasText(data)), checkLineStructure3, result);
  EXPECT_EQ(countOf(slots[10], "Expected COL_DATA line"), 100u);
  EXPECT_EQ(countOf(slots[10], "No delimiters found in section Log_Data"), 1u);
  EXPECT_EQ(countOf(slots[10], "No Delimiters found in section Log_Data"), 1u);
  EXPECT_NE(slots[10].find("\r\n900 more findings of this kind not listed\r\n"), std::string::npos);
}

// The line check walks the data section's increments on its pass; the index check takes that
// answer instead of reading the data again, so it must be the one its own walk gives.
TEST(LineDataChecks, IncrementsWalkedOnTheLinePassMatchTheIndexChecksOwnWalk) {
  testing::ScratchDir dir;
  const std::vector<std::vector<std::string>> cases = {
      {"1000.0,1", "1000.5,2", "1001.0,3"},             // constant
      {"1000.0,1", "1000.5,2", "1000.7,3", "1001,4"},   // varies, and where
      {"# c", "1000.0,1", "", "1000.5,2", "1001.0,3"},  // comments and blanks passed over
      {"1000.0,1"},                                     // one record: no increment
      {"1000.0,1", "x,2"},                              // an index that is no number
      {"1000.0,1", "1000.5,2", "~Other", "7,7"},        // another section ends the walk
  };
  for (const auto& data : cases) {
    SCOPED_TRACE(data.back());
    const std::string path = dir.write("increments.las", lasText(data));
    RunContext run;
    prepare(run, path);
    Slots slots;
    checkLineStructure3(run, slots);
    ASSERT_NE(keptScan(run.dataScan, path, firstDataLinePosition(run)), nullptr);
    IncrementResult own;
    EXPECT_EQ(run.dataScan.incrementAnswer, analyseIncrements(run, 1, own));
    EXPECT_EQ(run.dataScan.increments.indexText, own.indexText);
    EXPECT_EQ(run.dataScan.increments.increment, own.increment);
  }
}

// The column checks ride on the line check's pass; what they keep must be what the column check
// finds reading the data itself, and a changed file is read again.
TEST(LineDataChecks, ColumnFindingsKeptOnTheLinePassMatchTheColumnChecksOwn) {
  testing::ScratchDir dir;
  const std::vector<std::vector<std::string>> cases = {
      {"1000.0,1", "1000.5,2"},                            // nothing to find
      {"1000.0,1", "1000.5,x", "1001.0,2,3", "# c", ""},   // format, count, comment, blank
      {"1000.0,\"a,b\"", "1000.5, 2 "},                    // quoted and padded items
      {},                                                  // no data lines
      {"1000.0,1", "~Log_Data[2] | Log_Definition", "7"},  // a second data section
  };
  for (const auto& data : cases) {
    SCOPED_TRACE(data.empty() ? "no data" : data.back());
    const std::string path = dir.write("columns.las", lasText(data));
    RunContext run;
    prepare(run, path);
    Slots lineSlots, kept, own;
    checkLineStructure3(run, lineSlots);
    ASSERT_TRUE(run.dataScan.columnData.has_value());
    const CheckStatus keptStatus = checkColumnData(run, kept);
    run.dataScan = {};
    EXPECT_EQ(checkColumnData(run, own), keptStatus);
    EXPECT_EQ(kept, own);
  }
  // A file changed after the pass: its kept findings are not used.
  const std::string path = dir.write("changed.las", lasText({"1000.0,1"}));
  RunContext run;
  prepare(run, path);
  Slots slots;
  checkLineStructure3(run, slots);
  dir.write("changed.las", lasText({"1000.0,1,2,3"}));
  run.closeSource();
  EXPECT_EQ(checkColumnData(run, slots), CheckStatus::Failed);
}

}  // namespace
}  // namespace zorvik
