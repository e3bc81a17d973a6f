#include "las/line_numbers.h"

#include <algorithm>
#include <numeric>
#include <string_view>

#include "las/line_reader.h"

namespace zorvik {

std::vector<NumberedLine> linesAt(const LasFile& file, const std::vector<std::int64_t>& positions) {
  std::vector<NumberedLine> lines(positions.size());
  std::vector<std::size_t> order(positions.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return positions[a] < positions[b]; });
  auto next =
      std::find_if(order.begin(), order.end(), [&](std::size_t i) { return positions[i] > 0; });
  if (next == order.end()) return lines;

  LineReader reader(file);
  std::string_view line;
  for (std::uint64_t number = 1; next != order.end() && reader.readLine(line); ++number) {
    // The line spans from its start up to the start of the next one.
    const std::int64_t after = reader.position();
    for (; next != order.end() && positions[*next] < after; ++next) {
      lines[*next].number = number;
      lines[*next].text.assign(line);
    }
  }
  return lines;
}

}  // namespace zorvik
