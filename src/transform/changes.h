// What a rewriting routine did to a file, item by item, for the user to read.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zorvik {

// A row of the 1.2/2.0 check catalogue: the group and the check number within it.
struct CatalogueRow {
  int group = 0;
  int row = 0;
  friend bool operator==(const CatalogueRow&, const CatalogueRow&) = default;
};

enum class ChangeKind {
  Changed,      // a line was rewritten
  Added,        // a line was added
  Removed,      // a line was dropped
  Moved,        // a line was moved elsewhere
  FillIn,       // a line was added with an empty value that the user has to fill in
  NotRepaired,  // a fault that only the user can put right
};

struct Change {
  ChangeKind kind = ChangeKind::Changed;
  std::int64_t line = 0;  // 1-based line of the input; 0 for the file as a whole
  CatalogueRow row;       // the check row that found the fault, {0, 0} for none
  std::string what;
  std::string before;
  std::string after;
};

// One line per change: "Line 12: <what>: <before> -> <after>" and the like.
std::string describeChanges(const std::vector<Change>& changes);

}  // namespace zorvik
