#include "transform/changes.h"

#include "base/text.h"

namespace zorvik {

std::string describeChanges(const std::vector<Change>& changes) {
  std::string out;
  for (const Change& c : changes) {
    if (c.kind == ChangeKind::NotRepaired)
      out += "Not repaired";
    else if (c.kind == ChangeKind::FillIn)
      out += "Fill in";
    else if (c.line > 0)
      out += "Line " + toText(c.line);
    else
      out += "File";
    if (c.row.group > 0) out += " (check " + toText(c.row.group) + "." + toText(c.row.row) + ")";
    out += ": " + c.what;
    if (!c.before.empty() || !c.after.empty()) {
      out += ": ";
      if (!c.before.empty()) out += "\"" + c.before + "\"";
      if (!c.before.empty() && !c.after.empty()) out += " -> ";
      if (!c.after.empty()) out += "\"" + c.after + "\"";
    }
    out += "\r\n";
  }
  return out;
}

}  // namespace zorvik
