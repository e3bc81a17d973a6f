#include "cert3/line_structure3.h"

namespace zorvik {

// Not built yet: decides every item as passed.
int checkLineStructure3(const std::string&, Slots& slots) {
  for (int k : {1, 2, 3, 5, 6, 7, 8, 9, 10, 11}) slots[k].clear();
  return CHECK_PASSED;
}

}  // namespace zorvik
