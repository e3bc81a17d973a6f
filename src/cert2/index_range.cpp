#include "cert2/index_range.h"

namespace zorvik {

int checkIndexRange(const std::string&, const WellRange&, const std::string&, const ParamTable&,
                    const ParamTable&, Slots& slots) {
  for (int k = 1; k <= 7; ++k) slots[k].clear();
  return CHECK_PASSED;
}

int readIndexEnds(const std::string&, const std::string&, IndexEnds& ends) {
  ends = {};
  return INDEX_NO_DATA;
}

int analyseIncrements(const std::string&, int, IncrementResult& result) {
  result = {};
  return STEP_TOO_FEW;
}

std::string_view trimChar(std::string_view s, char c) {
  while (!s.empty() && s.front() == c) s.remove_prefix(1);
  while (!s.empty() && s.back() == c) s.remove_suffix(1);
  return s;
}

}  // namespace zorvik
