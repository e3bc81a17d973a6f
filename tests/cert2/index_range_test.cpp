// STRT/STOP/STEP/NULL against the index channel: the index reader, the increment walk, and the
// rules of the check the fixture reports do not show.
#include "checks/index_range.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "base/text.h"
#include "cert2/las_parts.h"
#include "checks/null_stop_repair.h"
#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::lasBytes;
using testing::LasParts;
using testing::prepareLas;

TEST(IndexChannel, EndsAndIncrements) {
  // Over 100000 bytes: the last index is read from a tail that starts inside a line, which must
  // not pass for an index; the section after the data is not data.
  std::vector<std::string> big;
  for (int i = 0; i < 20000; ++i) big.push_back(std::to_string(2000 + i) + ".25 7.5");
  big.insert(big.end(), {"~Other", "NOTE"});
  // Most files here start at 1000.0 and end at 1000.5, one record to the next.
  struct Row {
    const char* name;
    int linesPerRecord;  // of WRAP YES records; 1 for WRAP NO
    std::vector<std::string> data;
    std::string increments = "constant 0.50000 1000.5";  // answer, last increment, its index text
    std::string ends = "1000.0 1000.5 1000 1000.5";      // first and last as written, their values
  };
  const Row rows[] = {
      {"plain", 1, {" 1000.0  10", "1000.25 11", "1000.5 12"}, "constant 0.25000 1000.5"},
      {"comments and blanks around", 1, {"# first", "", "1000.0 10", "1000.5 11", "# end", "  "}},
      {"wrapped, comments passed over", 2, {"1000.0", "10 11", "# note", "1000.5", "", "12 13"}},
      {"wrapped: a record ending in one value", 3, {"1000.0", "1 2", "3", "1000.5", "4 5", "6"}},
      {"wrapped, length unknown: the last line alone", 0, {"1000.0", "1 2", "1000.5", "3 4"}, ""},
      {"values are those of the 0.00000 text, decreasing",
       1,
       {"1000.654321 1", "1000.123456 1"},
       "constant -0.53086 1000.123456",
       "1000.654321 1000.123456 1000.65432 1000.12346"},
      {"differences below five decimals do not count",
       1,
       {"1000.0 1", "1000.5000001 1", "1001.0 1"},
       "constant 0.50000 1001.0",
       "1000.0 1001.0 1000 1001"},
      {"an index that is no number",
       1,
       {"10:00:00 1", "10:00:10 1"},
       "unanalysable 0.00000 ",
       "10:00:00 10:00:10 10 10"},
      {"no data line", 1, {}, "no-increment 0.00000 ", "  0 0"},
      {"a single record", 1, {"1000.0 1"}, "no-increment 0.00000 ", "1000.0 1000.0 1000 1000"},
      {"a large section", 1, big, "constant 1.00000 21999.25", "2000.25 21999.25 2000.25 21999.25"},
  };
  // In the order of StepAnswer.
  const char* answers[] = {"constant", "varies", "unreadable", "unanalysable", "no-increment"};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string wrap = row.linesPerRecord == 1 ? "NO" : "YES";
    RunContext run = prepareLas("index.las", lasBytes({.data = row.data, .wrap = wrap}));
    IndexEnds ends;
    EXPECT_EQ(readIndexEnds(run, wrap, ends, row.linesPerRecord),
              row.data.empty() ? IndexAnswer::NoData : IndexAnswer::Read);
    EXPECT_EQ(ends.firstText + " " + ends.lastText + " " + formatShortest(ends.first) + " " +
                  formatShortest(ends.last),
              row.ends);
    if (row.increments.empty()) continue;  // no record length to walk by
    IncrementResult result;
    const StepAnswer answer = analyseIncrements(run, row.linesPerRecord, result);
    EXPECT_EQ(std::string(answers[static_cast<int>(answer)]) + " " + formatFixed(result.increment) +
                  " " + result.indexText,
              row.increments);
  }
  IncrementResult result;
  RunContext missing;
  missing.lasFile = "/nonexistent/file.las";
  EXPECT_EQ(analyseIncrements(missing, 1, result), StepAnswer::Unreadable);
}

CheckStatus checkRange(RunContext& run, const ParamTable& well, const ParamTable& curve,
                       Slots& slots) {
  return checkIndexRangeRepairing(run, testing::wellRangeOf(well), "NO", well, curve, slots);
}

CheckStatus checkRange(RunContext& run, Slots& slots) {
  return checkRange(run, testing::sectionTable(run, "Well"), testing::sectionTable(run, "Curve"),
                    slots);
}

TEST(CheckIndexRange, FindingsPerSlot) {
  const std::vector<std::string> data = {"1000.0 10", "1000.5 11", "1001.0 12"};
  struct Row {
    const char* name;
    LasParts parts;
    std::string slots = "";  // slots 1..7 holding text
  };
  const Row rows[] = {
      {"STRT rounded to five decimals passes", {.data = data, .strt = "STRT.M 1000.000001 : S"}},
      {"STEP 0 with varying data says nothing",
       {.data = {"1000.0 1", "1000.5 1", "1002.0 1"},
        .stop = "STOP.M 1002 : S",
        .step = "STEP.M 0 : S"}},
      {"an index without a period is not judged for precision",
       {.data = {"1000 1", "1001 1", "1002 1"},
        .strt = "STRT.M 1000 : S",
        .stop = "STOP.M 1002 : S",
        .step = "STEP.M 1.00 : S"}},
      {"absent units are named",
       {.data = data, .strt = "STRT. 1000.0 : S", .stop = "STOP. 1001.0 : S"},
       "7:  Units don't match: STRT=<absent>, STOP=<absent>, STEP=M, DEPT=M\n"},
      {"index channel unit compared ignoring case",
       {.data = data, .curve = {"DEPT.m : DEPTH", "GR.GAPI : G"}}},
      // Same number as NULL, different text: the file is not taken for a real-time one.
      {"a STOP of the NULL value written otherwise is compared",
       {.data = data, .stop = "STOP.M -999.250 : STOP"},
       "3: STOP = -999.25, Last ~ASCII index = 1001\n"},
      // One record: no increment to judge STEP by, but STRT and STOP are still compared.
      {"a single record passes when STRT and STOP are its index",
       {.data = {"1000.0 1"}, .stop = "STOP.M 1000.0 : S"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RunContext run = prepareLas("index_range.las", lasBytes(row.parts));
    Slots slots;
    slots.fill(RowResult::notReachedRow());
    EXPECT_EQ(checkRange(run, slots),
              row.slots.empty() ? CheckStatus::Passed : CheckStatus::Failed);
    EXPECT_EQ(testing::filledSlots(slots, 7), row.slots);
    EXPECT_FALSE(run.nullStopRepaired);
  }
  Slots slots;
  RunContext run = prepareLas("index_range.las", lasBytes({.data = {"10:00:00 1", "10:00:10 1"}}));
  EXPECT_EQ(checkRange(run, slots), CheckStatus::Nothing);  // an index that is no number
}

TEST(CheckIndexRange, RepairsANullStopInTheFileOrSaysWhyNot) {
  LasParts parts{.data = {"1000.0 10", "1000.5 11", "1001.0 12"},
                 .stop = "STOP.M     -999.25 : STOP DEPTH"};
  const std::string bytes = lasBytes(parts);
  std::string repaired = bytes;
  repaired.replace(repaired.find(parts.stop), parts.stop.size(), "STOP.M  1001.00000 : STOP DEPTH");
  struct Row {
    const char* name;
    std::function<void(const std::string&)> prepare;
    CheckStatus result;
    bool changed;         // the file holds the repaired STOP afterwards
    std::string message;  // the command log entry, "<las>" for the file's name
  };
  const Row rows[] = {
      {"repaired", nullptr, CheckStatus::Passed, true,
       "LAS file <las> rewritten: STOP value -999.25 replaced by 1001.00000.\n"},
      {"read-only", [](const std::string& p) { ::chmod(p.c_str(), 0444); }, CheckStatus::Fault,
       false, "Error: LAS file <las> could not be rewritten: it is read-only.\n"},
      {"hard link", [](const std::string& p) { std::filesystem::create_hard_link(p, p + ".2"); },
       CheckStatus::Fault, false,
       "Error: LAS file <las> could not be rewritten: it has more than one hard link.\n"},
      // Another run repaired it after this one read the ~Well section: nothing left to do.
      {"repaired meanwhile",
       [&](const std::string& p) { std::ofstream(p, std::ios::binary) << repaired; },
       CheckStatus::Passed, true, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    testing::RunSandbox sandbox;
    RunContext run = prepareLas("null_stop.las", bytes);
    const std::string& path = run.lasFile;
    ParamTable well = testing::sectionTable(run, "Well");
    ParamTable curve = testing::sectionTable(run, "Curve");
    if (row.prepare) row.prepare(path);
    Slots slots;
    EXPECT_EQ(checkRange(run, well, curve, slots), row.result);
    EXPECT_EQ(run.nullStopRepaired, row.changed);
    EXPECT_EQ(testing::readBytes(path), row.changed ? repaired : bytes);
    EXPECT_EQ(testing::commandLogMessages(sandbox.commandLog()),
              replaceAll(row.message, "<las>", path));
    if (row.changed) {
      // The index was rebuilt: the data section starts where the rewritten file has it.
      EXPECT_EQ(run.sections.entries.back().start,
                static_cast<std::int64_t>(repaired.find("~A\r\n") + 4 + 1));
    }
    ::chmod(path.c_str(), 0644);
    std::filesystem::remove(path + ".2");
  }
}

}  // namespace
}  // namespace zorvik
