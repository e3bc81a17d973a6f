#include "ui/check_details.h"

#include <gtest/gtest.h>

#include "checks/check_table.h"

namespace zorvik {
namespace {

TEST(CheckDetails, ShowsLabelAndResultOfTheKeyedCheck) {
  CheckTable table(7);
  table.at(2, COL_RESULT, 2) = "\r\nVERS line missing\r\n~V";
  table.at(3, COL_RESULT, 2) = " ";
  table.at(4, COL_RESULT, 2) = "  ";  // blanks that are not the single blank are findings
  table.at(15, COL_RESULT, 7) = "x";
  struct Row {
    const char* key;
    const char* details;
  };
  const Row rows[] = {
      {"2^1", "2a:  Check OK"},
      {"2^2", "2b: \r\nVERS line missing\r\n~V"},
      {"2^3", "2c:  Check Not Performed"},
      {"2^4", "2d:   "},
      {"7^15", "7o: x"},
      {"0^1", "0a:  Check OK"},
      {"8^1", ""},   // group past the table
      {"2^16", ""},  // row past the table
      {"2^0", ""},   // the heading row is no check
      {"-1^2", ""},
      {"2", ""},
      {"^", ""},
      {"2^b", ""},
      {"2^3x", ""},
      {"", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.key);
    EXPECT_EQ(checkDetails(table, row.key), row.details);
  }
}

}  // namespace
}  // namespace zorvik
