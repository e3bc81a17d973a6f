// The rows of the result grid, worked out from a check table: one row per group that has a
// heading, under it one row per titled check with its mark, and under a failed check the lines
// of its findings.
//
// A check is failed when its result holds findings, not performed when its result is the single
// blank or when its group was never reached (the run stopped at an earlier failing group), and
// passed otherwise. Never fails.
#pragma once

#include <string>
#include <vector>

namespace zorvik {

class CheckTable;

enum class CheckMark { Passed, Failed, NotPerformed };

struct CheckRow {
  int row = 0;       // check number within its group, 1..15
  std::string text;  // "a. File exists"
  CheckMark mark = CheckMark::Passed;
  std::vector<std::string> findings;  // the result text's non-empty lines (failed checks only)
};

struct GroupRow {
  int group = 0;
  std::string text;  // "02: ~Version section VERS and WRAP Checks"
  CheckMark mark =
      CheckMark::Passed;  // failed when any check failed, else not performed when any was not
  std::vector<CheckRow> checks;
};

std::vector<GroupRow> resultRows(const CheckTable& table);

// "Check OK", "Failed" or "Check Not Performed".
const char* markText(CheckMark mark);

// Splits a result text at its line ends (CR LF, CR or LF) and drops empty lines.
std::vector<std::string> findingLines(const std::string& result);

}  // namespace zorvik
