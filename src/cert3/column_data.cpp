#include "cert3/column_data.h"

namespace zorvik {

// Not built yet: decides every item as passed.
int checkColumnData(const std::string&, Slots& slots) {
  for (int k : {1, 2, 3}) slots[k].clear();
  return CHECK_PASSED;
}

}  // namespace zorvik
