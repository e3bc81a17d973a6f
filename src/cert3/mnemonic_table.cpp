#include "cert3/mnemonic_table.h"

#include <utility>

#include "base/text.h"

namespace zorvik {

void MnemonicTable::add(MnemonicRow row) {
  std::string key = toUpper(trimView(row.mnemonic));
  rows_.push_back(std::move(row));
  if (!key.empty()) firstRow_.emplace(std::move(key), size());  // keeps the first row of a name
}

std::optional<int> MnemonicTable::lookup(std::string_view mnemonic) const {
  std::string_view name = trimView(mnemonic);
  if (name.empty()) return std::nullopt;
  auto found = firstRow_.find(toUpper(name));
  if (found == firstRow_.end()) return std::nullopt;
  return found->second;
}

std::vector<bool> rowsInCircularChains(const MnemonicTable& table) {
  const int n = table.size();
  // The references as row numbers, looked up once.
  std::vector<std::vector<int>> next(static_cast<std::size_t>(n) + 1);
  for (int r = 1; r <= n; ++r) {
    for (const std::string& entry : table.row(r).entries) {
      if (const std::optional<int> target = table.lookup(entry)) next[r].push_back(*target);
    }
  }

  // One depth-first walk over all rows, without recursion so that long chains cannot exhaust the
  // stack. A row still on the walk's path when met again closes a loop; a finished row leads into
  // a loop exactly when one of the rows it refers to does.
  enum : char { UNSEEN, ON_PATH, DONE };
  std::vector<char> state(static_cast<std::size_t>(n) + 1, UNSEEN);
  std::vector<bool> circular(static_cast<std::size_t>(n) + 1, false);
  std::vector<std::pair<int, std::size_t>> path;  // row, index of its next reference to follow
  for (int start = 1; start <= n; ++start) {
    if (state[start] != UNSEEN) continue;
    state[start] = ON_PATH;
    path.emplace_back(start, 0);
    while (!path.empty()) {
      auto& [row, edge] = path.back();
      if (edge < next[row].size()) {
        int target = next[row][edge++];
        if (state[target] == ON_PATH) {
          circular[row] = true;
        } else if (state[target] == DONE) {
          if (circular[target]) circular[row] = true;
        } else {
          state[target] = ON_PATH;
          path.emplace_back(target, 0);
        }
        continue;
      }
      state[row] = DONE;
      bool leadsIntoLoop = circular[row];
      path.pop_back();
      if (leadsIntoLoop && !path.empty()) circular[path.back().first] = true;
    }
  }
  return circular;
}

std::string rowAsLine(const MnemonicRow& row) {
  return row.mnemonic + "." + row.unit + "    " + row.value + " : " + row.description + " | " +
         row.association;
}

}  // namespace zorvik
