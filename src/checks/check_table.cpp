#include "checks/check_table.h"

#include <stdexcept>

namespace zorvik {

std::size_t CheckTable::index(int row, int column, int group) const {
  if (row < 0 || row > kLastRow || column < 0 || column > kLastColumn || group < 0 ||
      group > lastGroup_ || (row > 0 && column == COL_HEADING))
    throw std::out_of_range("check table address");
  return static_cast<std::size_t>((group * (kLastRow + 1) + row) * (kLastColumn + 1) + column);
}

std::string& CheckTable::at(int row, int column, int group) {
  return cells_[index(row, column, group)];
}

const std::string& CheckTable::at(int row, int column, int group) const {
  return cells_[index(row, column, group)];
}

std::size_t CheckTable::resultIndex(int row, int group) const {
  if (row < 1 || row > kLastRow || group < 0 || group > lastGroup_)
    throw std::out_of_range("check table address");
  return static_cast<std::size_t>(group * kLastRow + row - 1);
}

RowResult& CheckTable::result(int row, int group) {
  return results_[resultIndex(row, group)];
}

const RowResult& CheckTable::result(int row, int group) const {
  return results_[resultIndex(row, group)];
}

void CheckTable::clearGroup(int group) {
  for (int row = 0; row <= kLastRow; ++row)
    for (int column = 0; column <= kLastColumn; ++column)
      if (row == 0 || column != COL_HEADING) at(row, column, group).clear();
  for (int row = 1; row <= kLastRow; ++row) result(row, group).clear();
}

void CheckTable::clear() {
  for (std::string& cell : cells_) cell.clear();
  for (RowResult& result : results_) result.clear();
}

}  // namespace zorvik
