#include "cert3/section_structure.h"

namespace zorvik {

// Placeholder until the checks land: everything passes.
int checkSectionStructure(const std::string&, Slots& slots) {
  for (int k = 1; k <= 14; ++k) slots[k].clear();
  return CHECK_PASSED;
}

}  // namespace zorvik
