// The two passes over the tilde lines of a file that judge how section title lines are written:
// one with the 3.0 rules, one with the 1.2/2.0 rules. Each reads the file itself, from the first
// line to the last, independently of the section model.
//
// Both add findings to `slot` and return CheckStatus::Passed when the slot passes at the end,
// CheckStatus::Failed when it is not, CheckStatus::Fault when the file cannot be opened (slot left
// as it was). Never throw.
#pragma once

#include <string>

#include "checks/check_table.h"
#include "las/las_file.h"
#include "las/tilde_lines.h"

namespace zorvik {

// With `known`, tilde lines an earlier search of the same file kept are read from there, and what
// this search finds is kept there.
CheckStatus checkTitleLines3(const LasFile& file, RowResult& slot, TildeLines* known = nullptr);
CheckStatus checkTitleLines2(const LasFile& file, RowResult& slot, TildeLines* known = nullptr);

}  // namespace zorvik
