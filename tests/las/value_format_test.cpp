#include "las/value_format.h"

#include <gtest/gtest.h>

#include <string>

#include "run/run_state.h"

namespace zorvik {
namespace {

class ValueFormat : public ::testing::Test {
 protected:
  void SetUp() override { resetRunState(); }
  void TearDown() override { resetRunState(); }
};

TEST_F(ValueFormat, ValueAgainstFormat) {
  struct Row {
    const char* delimiter;
    std::string value;
    std::string format;
    int expected;
  };
  const Row rows[] = {
      // An empty or blank value conforms to everything.
      {" ", "", "F10.4", -1},
      {" ", "   ", "Q", -1},
      // Integers.
      {" ", "5", "I", -1},
      {" ", "-5", "I", 1},
      {" ", "5.0", "I", 1},
      {" ", "1E3", "I", 1},
      {" ", "05", "I2", -1},
      {" ", "5", "I2", 1},
      // Fixed point.
      {" ", "1E3", "F", 1},
      {" ", "12.5", "F", -1},
      {" ", "12", "F", -1},  // no spec, no point needed
      {" ", "12", "F10.4", 1},
      {" ", "12.5", "F4.2", 1},
      {" ", "12.5", "F4.1", -1},
      {" ", "1234.5678", "F9.4", -1},
      {" ", "12.5", "F10", 1},
      {" ", "12.5", "F10.", 1},
      {" ", "12.5", "f4.1", -1},
      {" ", "x", "", 1},  // an empty format is fixed point
      // Exponential: the width part is not examined.
      {" ", "1E3", "E", -1},
      {" ", "1.5E+03", "E0.00E+00", -1},
      {" ", "1500", "E", 1},
      // Strings.
      {" ", "abc", "S3", -1},
      {" ", "abcd", "S3", 1},
      {" ", "abc", "s", -1},
      {" ", "1.5", "S", -1},
      // Array values are split on the data delimiter, except for strings.
      {",", "1.0,2.0", "F", -1},
      {",", "1.0,x", "F", 1},
      {",", "1.0,x", "S", -1},
      {",", "1.0,2.0", "S3", 1},
      {",", "1.0,2.0", "F3.1", -1},
      {",", "1.0,2.00", "F3.1", 1},
      {" ", "1.0   2.0", "F3.1", -1},
      {"\t", "1\t2", "I1", -1},
      // Dates and times: same length, same separators.
      {" ", "12/05/1957", "DD/MM/YYYY", -1},
      {" ", "12-05-1957", "DD/MM/YYYY", 1},
      {" ", "12/05/57", "DD/MM/YYYY", 1},
      {" ", "10:30", "hh:mm", -1},
      {" ", "10.30", "hh:mm", 1},
      {" ", "1957", "YYYY", -1},
      {",", "10:30,11:45", "hh:mm", -1},
      // Degrees, minutes and seconds need both marks.
      {",", "45d 30' 15\"", "\xB0'\"", -1},
      {",", "45d 30'", "\xB0'\"", 1},
      {",", "45d 30' 15\",10d 5' 1\"", "\xC2\xB0'\"", -1},
      {",", "45d 30' 15\",10d", "\xC2\xB0'\"", 1},
      // Unknown letters fail every non-empty value.
      {" ", "x", "Q", 1},
      {" ", "1", "A", 1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE("[" + row.value + "] as [" + row.format + "] delimiter [" + row.delimiter + "]");
    runState().dataDelimiter = row.delimiter;
    EXPECT_EQ(valueMatchesFormat(row.value, row.format), row.expected);
  }
}

TEST_F(ValueFormat, PartTestsCountEveryCharacter) {
  struct Row {
    const char* kind;
    const char* part;
    const char* spec;
    bool expected;
  };
  const Row rows[] = {
      {"F", "  12.5", "6.1", true},  // padding counts toward the width
      {"F", "12.5", "6.1", false},  {"F", "-1.25", "5.2", true}, {"I", "", "", false},
      {"I", "0", "", true},         {"I", "12", "x", true},      {"S", "", "3", true},
      {"S", "ab", "", true},        {"S", "ab", "2x", true},     {"E", "1e5", "", true},
      {"E", "e5", "", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.kind) + " [" + row.part + "] spec [" + row.spec + "]");
    bool got = false;
    switch (row.kind[0]) {
      case 'F':
        got = isFloatValue(row.part, row.spec);
        break;
      case 'I':
        got = isIntegerValue(row.part, row.spec);
        break;
      case 'S':
        got = isStringValue(row.part, row.spec);
        break;
      case 'E':
        got = isExponentialValue(row.part, row.spec);
        break;
    }
    EXPECT_EQ(got, row.expected);
  }
}

TEST_F(ValueFormat, FormatSyntax) {
  struct Row {
    std::string format;
    int expected;
  };
  const Row rows[] = {
      {"", -1},
      // Fixed point: digits on both sides of the point, width above decimals; "F" alone is fine.
      {"F", -1},
      {"F10.4", -1},
      {" F10.4 ", -1},
      {"{F10.4}", -1},
      {"F10", 0},
      {"F10.", 0},
      {"F.4", 0},
      {"F4.4", 0},
      {"F4.x", 0},
      {"{F10}", 0},
      // Integer and string widths.
      {"I", -1},
      {"I5", -1},
      {"I0", 0},
      {"I5.0", 0},
      {"Ix", 0},
      {"S", -1},
      {"S12", -1},
      {"S-1", 0},
      // Exponential patterns must write 12 so that it reads back as 12.
      {"E", -1},
      {"E0.00E+00", -1},
      {"E00.0E+00", -1},
      {"E0.00E-00", 0},
      {"E0E+00", 0},
      {"E5", 0},
      {"Ex+E", 0},
      // Dates and times.
      {"DD/MM/YYYY", -1},
      {"MM/DD/YYYY", -1},
      {"YYYY-MM-DD", -1},
      {"DD-MMM-YYYY", -1},
      {"hh:mm", -1},
      {"hh:mm:ss", -1},
      {"DD", 0},
      {"X", 0},
      {"Q", 0},
      // A blank inside: only the leading letter counts.
      {"MM/DD/YYYY hh:mm", -1},
      {"X Y", 0},
      // Arrays.
      {"A", -1},
      {"AF10.4", -1},
      {"AF10.4;3", -1},
      {"AI;2;3", -1},
      {"AF10", 0},
      {"AF10.4;", 0},
      {"AF10.4;;3", 0},
      {"A;", 0},
      // Degrees.
      {"\xB0'", -1},
      {"\xB0'\"", -1},
      {"\xC2\xB0'\"", -1},
      {"\xB0\"", 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE("[" + row.format + "]");
    EXPECT_EQ(isLegalFormat(row.format), row.expected);
  }
  EXPECT_TRUE(isLegalFormatElement("F10.4"));
  EXPECT_FALSE(isLegalFormatElement(""));
}

}  // namespace
}  // namespace zorvik
