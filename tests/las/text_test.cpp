#include "base/text.h"

#include <gtest/gtest.h>

#include <tuple>

namespace zorvik {
namespace {

TEST(Text, TrimAndSearchHabits) {
  EXPECT_EQ(trim("\ta  "), "\ta");  // blanks only, never tabs
  EXPECT_EQ(ifind("x~ascii", "~A"), 1u);
  EXPECT_EQ(ifind("~a~A", "~A", 1), 2u);
  EXPECT_EQ(ifind("~a", "~b"), std::string_view::npos);
  EXPECT_EQ(ifindLast("~a~A~x", "~A"), 2u);
  EXPECT_EQ(ifindLast("~a", "~a~a"), std::string_view::npos);
  EXPECT_EQ(split("a,,b", ","), (std::vector<std::string>{"a", "", "b"}));
  EXPECT_EQ(splitOnBlanks("  a   b "), (std::vector<std::string>{"a", "b"}));
}

TEST(Text, NumbersReadFromTheFront) {
  const std::tuple<const char*, double> rows[] = {
      {"  1.20  : x", 1.2}, {"abc", 0}, {"-3.5e2x", -350}, {"3.", 3}, {"", 0}, {"1e", 1},
  };
  for (const auto& [text, value] : rows) {
    SCOPED_TRACE(text);
    EXPECT_DOUBLE_EQ(leadingNumber(text), value);
  }
  EXPECT_TRUE(isNumeric(" -1.5E+3 "));
  EXPECT_TRUE(isNumeric(".5"));
  for (const char* text : {"1.2.3", "-", "12a"}) EXPECT_FALSE(isNumeric(text)) << text;
  EXPECT_EQ(formatShortest(1.2f), "1.2");
  EXPECT_EQ(formatFixed(-0.000001), "0.00000");  // no negative zero
}

}  // namespace
}  // namespace zorvik
