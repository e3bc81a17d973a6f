#include "cert3/array_channels.h"

namespace zorvik {

// Not built yet: decides every item as passed.
int checkArrayChannels(const std::string&, Slots& slots) {
  for (int k : {1, 2, 3, 4, 5}) slots[k].clear();
  return CHECK_PASSED;
}

}  // namespace zorvik
