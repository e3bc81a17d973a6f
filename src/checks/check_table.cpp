#include "checks/check_table.h"

#include <stdexcept>

namespace zorvik {

std::size_t CheckTable::index(int row, int column, int group) const {
  if (row < 0 || row > kLastRow || column < 0 || column > kLastColumn || group < 0 ||
      group > lastGroup_)
    throw std::out_of_range("check table address");
  return static_cast<std::size_t>((group * (kLastRow + 1) + row) * (kLastColumn + 1) + column);
}

std::string& CheckTable::at(int row, int column, int group) {
  return cells_[index(row, column, group)];
}

const std::string& CheckTable::at(int row, int column, int group) const {
  return cells_[index(row, column, group)];
}

void CheckTable::clear() {
  for (std::string& cell : cells_) cell.clear();
}

}  // namespace zorvik
