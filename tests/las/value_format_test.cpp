#include "las/value_format.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "las/dialect.h"
#include "las/section_types.h"

namespace zorvik {
namespace {

class ValueFormat : public ::testing::Test {
 protected:
  // What a run would have learnt of the file under test.
  Dialect dialect_;
  SectionIndex sections_;
};

// Integers are unsigned; "F" alone needs no point but "F10" is no spec; an exponential width is
// not examined; dates keep length and separators; degrees need both marks.
TEST_F(ValueFormat, ValueAgainstFormat) {
  const std::tuple<const char*, const char*, int> rows[] = {
      {"   ", "Q", -1},          {"-5", "I", 1},          {"5.0", "I", 1},
      {"05", "I2", -1},          {"5", "I2", 1},          {"1E3", "F", 1},
      {"12", "F", -1},           {"12", "F10.4", 1},      {"12.5", "F4.2", 1},
      {"12.5", "f4.1", -1},      {"12.5", "F10", 1},      {"x", "", 1},
      {"1.5E+3", "E0E+0", -1},   {"1500", "E", 1},        {"abcd", "S3", 1},
      {"1.5", "S", -1},          {"1", "A", 1},           {"12/5/57", "DD/M/YY", -1},
      {"12-5-57", "DD/M/YY", 1}, {"1/5/5", "DD/M/YY", 1}, {"4d3'1\"", "\xB0'", -1},
      {"4 3'", "\xC2\xB0'", 1},
  };
  for (const auto& [value, format, expected] : rows) {
    SCOPED_TRACE(std::string("[") + value + "] as [" + format + "]");
    EXPECT_EQ(valueMatchesFormat(value, format, dialect_.delimiter), expected);
  }
  // Padding counts toward the width.
  EXPECT_TRUE(isFloatValue("  12.5", "6.1"));
}

// One value may hold several array elements written with the data delimiter; string formats
// take the value whole.
TEST_F(ValueFormat, ArrayValuesSplitOnTheDataDelimiter) {
  const std::tuple<const char*, const char*, const char*, int> rows[] = {
      {",", "1.0,x", "F", 1},         {",", "1.0,x", "S", -1},
      {",", "1.0,2.0", "S3", 1},      {",", "1.0,2.00", "F3.1", 1},
      {" ", "1.0  2.0", "F3.1", -1},  {"\t", "1\t2", "I1", -1},
      {",", "1:30,2:45", "h:mm", -1}, {",", "4' 1\",1' 1\"", "\xB0'", -1},
  };
  for (const auto& [delimiter, value, format, expected] : rows) {
    SCOPED_TRACE(std::string("[") + value + "] as [" + format + "]");
    dialect_.delimiter = delimiter;
    EXPECT_EQ(valueMatchesFormat(value, format, dialect_.delimiter), expected);
  }
}

// An exponential pattern must write 12 so that it reads back as 12, a date pattern a date; a
// format with a blank inside is judged by its first letter; array dimensions must not be empty.
TEST_F(ValueFormat, FormatSyntax) {
  for (const char* format :
       {" F10.4 ", "{F10.4}", "I5", "S", "E", "E00.0E+00", "MM/DD/YYYY", "DD-MMM-YYYY", "hh:mm:ss",
        "MM/DD/YYYY hh:mm", "A", "AF10.4;3", "AI;2;3", "\xB0'", "\xC2\xB0'\""}) {
    SCOPED_TRACE(format);
    EXPECT_EQ(isLegalFormat(format), -1);
  }
  for (const char* format :
       {"F10", "F.4", "F4.4", "F4.x", "I0", "I5.0", "S-1", "E0.00E-00", "E0E+00", "E5", "DD", "X",
        "X Y", "AF10", "AF10.4;;3", "A;", "\xB0\""}) {
    SCOPED_TRACE(format);
    EXPECT_EQ(isLegalFormat(format), 0);
  }
}

}  // namespace
}  // namespace zorvik
