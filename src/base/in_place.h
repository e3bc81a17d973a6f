// Rewriting an input file in place, for edits that must never lose or steal the user's file.
//
// The file is locked (an advisory lock, so two runs rewriting one file take turns and the second
// one sees the first one's result), and the rewrite is refused when the file is read-only, has
// more than one hard link (the other names would keep the old content), or changed between the
// moment it was read and the rename (a file still being written by a logger is left alone).
#pragma once

#include <string>

#include "base/file_writer.h"

namespace zorvik {

// What an edit decides once it has looked at the locked file.
struct EditPlan {
  enum class Kind { Write, NothingToDo, Refuse };
  Kind kind = Kind::Refuse;
  Producer produce;    // for Write: streams the new content (it may read the file by its name)
  std::string reason;  // for Refuse
};

// Called with the locked file's name (symbolic links already followed).
using PlanEdit = std::function<EditPlan(const std::string& path)>;

enum class RewriteOutcome { Rewritten, NothingToDo, Refused };

struct RewriteResult {
  RewriteOutcome outcome = RewriteOutcome::Refused;
  std::string reason;  // why it was refused, for the command log
};

RewriteResult rewriteInPlace(const std::string& path, const PlanEdit& plan);

}  // namespace zorvik
