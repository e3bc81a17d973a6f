// The mnemonic table of the association checks: one row per parameter line of the file, the
// lookup of a referenced mnemonic, and the walk that finds reference chains that loop.
//
// Nothing here can fail. The lookup and the walk take time in proportion to the table's size and
// its number of references, whatever the references are (self-references, loops, long chains).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zorvik {

struct MnemonicRow {
  std::string mnemonic;
  std::string unit;
  std::string value;
  std::string description;
  std::string association;           // the text after the last "|", "" when none
  std::vector<std::string> entries;  // the association split into referenced mnemonics
  std::int64_t position = 0;         // 1-based byte position of its line in the file
};

class MnemonicTable {
 public:
  // Appends a row; rows are numbered from 1 in the order added.
  void add(MnemonicRow row);
  int size() const { return static_cast<int>(rows_.size()); }
  // Row `number` (1..size()).
  const MnemonicRow& row(int number) const { return rows_[static_cast<std::size_t>(number) - 1]; }
  // Number of the first row whose mnemonic equals the trimmed `mnemonic`, ignoring case; none for
  // an empty mnemonic or one no row has.
  std::optional<int> lookup(std::string_view mnemonic) const;

 private:
  std::vector<MnemonicRow> rows_;
  std::unordered_map<std::string, int> firstRow_;  // upper-cased mnemonic -> row number
};

// For every row (index 1..size(); index 0 unused): true when following its references, row to
// referenced row, can come back to a row already met on the way, so the chain never ends; a row
// that leads into such a loop counts too. A row naming itself is such a loop, the shortest one;
// references to missing mnemonics end their branch.
std::vector<bool> rowsInCircularChains(const MnemonicTable& table);

// The row laid out as a parameter line: "MNEM.UNIT    VALUE : DESCRIPTION | ASSOCIATION".
std::string rowAsLine(const MnemonicRow& row);

}  // namespace zorvik
