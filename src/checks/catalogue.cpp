#include "checks/catalogue.h"

namespace zorvik {

void layOutCatalogue() {}

void storeGroupResults(CheckTable& table, int group, const Slots& slots) {
  for (int row = 1; row <= 15; ++row) table.at(row, COL_RESULT, group) = slots[row];
}

bool anyFailure(const CheckTable& table) {
  for (int group = 1; group <= table.lastGroup(); ++group)
    for (int row = 1; row <= table.lastRow(); ++row)
      if (!table.at(row, COL_RESULT, group).empty()) return true;
  return false;
}

}  // namespace zorvik
