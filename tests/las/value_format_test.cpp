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
  const std::tuple<const char*, const char*, bool> rows[] = {
      {"   ", "Q", true},
      {"-5", "I", false},
      {"5.0", "I", false},
      {"05", "I2", true},
      {"5", "I2", false},
      {"1E3", "F", false},
      {"12", "F", true},
      {"12", "F10.4", false},
      {"12.5", "F4.2", false},
      {"12.5", "f4.1", true},
      {"12.5", "F10", false},
      {"x", "", false},
      {"1.5E+3", "E0E+0", true},
      {"1500", "E", false},
      {"abcd", "S3", false},
      {"1.5", "S", true},
      {"1", "A", false},
      {"12/5/57", "DD/M/YY", true},
      {"12-5-57", "DD/M/YY", false},
      {"1/5/5", "DD/M/YY", false},
      {"4d3'1\"", "\xB0'", true},
      {"4 3'", "\xC2\xB0'", false},
  };
  for (const auto& [value, format, expected] : rows) {
    SCOPED_TRACE(std::string("[") + value + "] as [" + format + "]");
    EXPECT_EQ(valueFitsFormat(value, format, dialect_.delimiter), expected);
  }
  // Padding counts toward the width.
  EXPECT_TRUE(isFloatValue("  12.5", "6.1"));
}

// One value may hold several array elements written with the data delimiter; string formats
// take the value whole.
TEST_F(ValueFormat, ArrayValuesSplitOnTheDataDelimiter) {
  const std::tuple<const char*, const char*, const char*, bool> rows[] = {
      {",", "1.0,x", "F", false},       {",", "1.0,x", "S", true},
      {",", "1.0,2.0", "S3", false},    {",", "1.0,2.00", "F3.1", false},
      {" ", "1.0  2.0", "F3.1", true},  {"\t", "1\t2", "I1", true},
      {",", "1:30,2:45", "h:mm", true}, {",", "4' 1\",1' 1\"", "\xB0'", true},
  };
  for (const auto& [delimiter, value, format, expected] : rows) {
    SCOPED_TRACE(std::string("[") + value + "] as [" + format + "]");
    dialect_.delimiter = delimiter;
    EXPECT_EQ(valueFitsFormat(value, format, dialect_.delimiter), expected);
  }
}

// An exponential pattern must write 12 so that it reads back as 12, a date pattern a date; a
// format with a blank inside is judged by its first letter; array dimensions must not be empty.
TEST_F(ValueFormat, FormatSyntax) {
  for (const char* format :
       {" F10.4 ", "{F10.4}", "I5", "S", "E", "E00.0E+00", "MM/DD/YYYY", "DD-MMM-YYYY", "hh:mm:ss",
        "MM/DD/YYYY hh:mm", "A", "AF10.4;3", "AI;2;3", "\xB0'", "\xC2\xB0'\""}) {
    SCOPED_TRACE(format);
    EXPECT_TRUE(isLegalFormat(format));
  }
  for (const char* format :
       {"F10", "F.4", "F4.4", "F4.x", "I0", "I5.0", "S-1", "E0.00E-00", "E0E+00", "E5", "DD", "X",
        "X Y", "AF10", "AF10.4;;3", "A;", "\xB0\""}) {
    SCOPED_TRACE(format);
    EXPECT_FALSE(isLegalFormat(format));
  }
}

}  // namespace
}  // namespace zorvik
