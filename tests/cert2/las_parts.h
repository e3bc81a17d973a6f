// Small 2.0 files for the data checks (the lines that vary, the rest a plain ~Version/~Well/~Curve
// head) and what the checks leave in their slots.
#pragma once

#include <string>
#include <vector>

#include "checks/check_table.h"
#include "checks/index_range.h"
#include "checks/run_context.h"
#include "las/header_line.h"
#include "las/sections.h"
#include "support/scratch.h"

namespace zorvik::testing {

struct LasParts {
  std::vector<std::string> data = {};  // the lines after "~A"
  std::string wrap = "NO";
  std::string strt = "STRT.M 1000.0 : START";
  std::string stop = "STOP.M 1001.0 : STOP";
  std::string step = "STEP.M 0.5 : STEP";
  std::string null = "NULL. -999.25 : NULL";
  std::vector<std::string> curve = {"DEPT.M : DEPTH", "GR  .GAPI : GAMMA RAY"};
  std::vector<std::string> after = {};  // sections after the data
};

inline std::string lasBytes(const LasParts& p) {
  std::vector<std::string> lines = {"~Version", "VERS. 2.0 : v", "WRAP. " + p.wrap + " : w",
                                    "~Well",    p.strt,          p.stop,
                                    p.step,     p.null,          "~Curve"};
  lines.insert(lines.end(), p.curve.begin(), p.curve.end());
  lines.push_back("~A");
  lines.insert(lines.end(), p.data.begin(), p.data.end());
  lines.insert(lines.end(), p.after.begin(), p.after.end());
  return crlfLines(lines);
}

// The ~Curve lines of a depth index followed by `count - 1` more channels.
inline std::vector<std::string> curveLines(int count) {
  std::vector<std::string> lines = {"DEPT.M : D"};
  for (int i = 1; i < count; ++i) lines.push_back("C" + std::to_string(i) + ". : c");
  return lines;
}

// Writes the file and gives the context of a 2.0 run on it, its sections indexed as a run would.
inline RunContext prepareLas(const std::string& name, const std::string& bytes) {
  RunContext run;
  run.lasFile = writeScratchFile(name, bytes);
  run.dialect.version = 2.0f;
  locateStandardSections(run.source(), run.dialect, run.sections);
  return run;
}

inline ParamTable sectionTable(RunContext& run, const std::string& name) {
  ParamTable table;
  parseSectionTable(run.source(), run.dialect, run.sections, table, name);
  return table;
}

inline WellRange wellRangeOf(const ParamTable& well) {
  return {mnemonicValue(well, "STRT"), mnemonicValue(well, "STOP"), mnemonicValue(well, "STEP"),
          mnemonicValue(well, "NULL")};
}

// Slots 1..last holding text, as "k: text" lines.
inline std::string filledSlots(const Slots& slots, int last) {
  std::string text;
  for (int k = 1; k <= last; ++k) {
    if (!slots[k].passed()) text += std::to_string(k) + ": " + slots[k].text() + "\n";
  }
  return text;
}

}  // namespace zorvik::testing
