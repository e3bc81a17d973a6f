// Repair of the common faults of 1.2/2.0 files, each tied to the check row that finds it: line
// ends, tabs (between data values too), blanks before a title's tilde, missing ~Version and ~Well
// lines, and STRT/STOP/STEP values that disagree with the data. Data value texts never change.
//
// The file is read twice line by line and written once through the safe file writer (in place: as
// a locked rewrite, refused for a read-only, multiply linked or changing file): only the header
// and a few facts of the data are held in memory.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "checks/check_table.h"
#include "transform/changes.h"

namespace zorvik {

inline constexpr const char* INDEX_UNITS_PROMPT = "Please enter the index units (FT, M, S etc)";

struct RepairRequest {
  std::string file;
  // Where the repaired file goes; empty: it replaces `file` (the caller has the user's consent).
  std::string output;
  // The rows certification found failing: a repair runs only when its row is among them. Unset:
  // every repair whose fault is present runs.
  std::optional<std::vector<CatalogueRow>> found;
  // Asked for the index unit when ~Well lines with units are missing and the index channel has
  // none; an empty answer (or no function) skips those lines.
  std::function<std::string(const std::string& prompt)> askIndexUnits;
};

enum class RepairOutcome {
  Repaired,         // the file was rewritten
  NothingRepaired,  // no repair applied: nothing was written
  Failed,           // reading or writing failed: nothing was changed
};

struct RepairResult {
  RepairOutcome outcome = RepairOutcome::Failed;
  std::string error;
  // Every change made, then the faults left for the user ("not repaired").
  std::vector<Change> changes;
};

RepairResult repairFile(const RepairRequest& request);

// Certification stops at the first failing group, so one repair can bring later faults to light.
// Repairs in rounds: the rows of `request.found` (or of a first certification when unset) are
// repaired, the file is certified again by `certify` (which gives back the failing rows, or
// nothing for a file that is not 1.2/2.0), and so on until a round repairs nothing. The result
// lists every change of every round and the faults left after the last one; it is Failed when a
// round failed (earlier rounds stay done).
using CertifyForRepair = std::function<std::optional<std::vector<CatalogueRow>>()>;
RepairResult repairInRounds(RepairRequest request, const CertifyForRepair& certify,
                            int maxRounds = 5);

// The rows of a 1.2/2.0 check table that hold findings (a lone blank, "not reached", is none,
// except in the content check of group 1, where it marks the failure).
std::vector<CatalogueRow> failingRows(const CheckTable& table);

// The rows the repairs are tied to.
bool isRepairableRow(CatalogueRow row);

}  // namespace zorvik
