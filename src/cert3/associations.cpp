#include "cert3/associations.h"

namespace zorvik {

// Not built yet: decides every item as passed.
int checkAssociations(const std::string&, Slots& slots) {
  for (int k : {1, 2}) slots[k].clear();
  return CHECK_PASSED;
}

}  // namespace zorvik
