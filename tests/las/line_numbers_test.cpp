#include "las/line_numbers.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/scratch.h"

namespace zorvik {
namespace {

// Positions become the numbers of the lines that hold them, line ends being CR LF or a lone CR
// (a lone LF stays inside its line); asked in any order, answered in that order.
TEST(LinesAt, NumbersTheLinesThatHoldEachPosition) {
  // Lines start at bytes 1 ("ab"), 5 ("cd", ended by a lone CR), 8 ("e\nf"), 13 ("") and 15.
  const std::string text = "ab\r\ncd\re\nf\r\n\r\ngh";
  const std::string path = testing::writeScratchFile("numbers.las", text);
  const LasFile file(path);
  struct Row {
    std::int64_t position;
    std::uint64_t number;
    std::string line;
  };
  const Row rows[] = {
      {12, 3, "e\nf"},  // the LF of the CR LF that ends a line holding a lone LF
      {1, 1, "ab"},    {5, 2, "cd"}, {2, 1, "ab"},  // not a line start: the line that holds it
      {13, 4, ""},                                  // the empty line
      {15, 5, "gh"},                                // the last line, without an end
      {0, 0, ""},                                   // no place given
      {99, 0, ""},                                  // past the end
      {5, 2, "cd"},                                 // asked twice
  };
  std::vector<std::int64_t> positions;
  for (const Row& row : rows) positions.push_back(row.position);
  const std::vector<NumberedLine> lines = linesAt(file, positions);
  ASSERT_EQ(lines.size(), positions.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    SCOPED_TRACE(rows[i].position);
    EXPECT_EQ(lines[i].number, rows[i].number);
    EXPECT_EQ(lines[i].text, rows[i].line);
  }
  EXPECT_TRUE(linesAt(file, {}).empty());
}

}  // namespace
}  // namespace zorvik
