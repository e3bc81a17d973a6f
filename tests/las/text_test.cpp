#include "las/text.h"

#include <gtest/gtest.h>

namespace zorvik {
namespace {

TEST(Text, TrimRemovesBlanksButNotTabs) {
  EXPECT_EQ(trim("  a b  "), "a b");
  EXPECT_EQ(trim("\ta "), "\ta");
  EXPECT_EQ(trim("   "), "");
}

TEST(Text, SearchesAreOneBasedAndIgnoreCase) {
  EXPECT_EQ(ifind("~ascii", "~A"), 1u);
  EXPECT_EQ(ifind("abc", "x"), 0u);
  EXPECT_EQ(ifindLast("a.b.c", "."), 4u);
  EXPECT_EQ(findPos("a:b:c", ":", 3), 4u);
}

TEST(Text, LeadingNumberReadsLikeClassicVal) {
  struct Row {
    const char* text;
    double value;
  };
  const Row rows[] = {
      {"2.0", 2.0}, {"  1.20  : x", 1.2}, {"abc", 0}, {"-3.5e2x", -350}, {"3.", 3}, {"", 0},
      {"1e", 1}};
  for (const Row& r : rows) {
    SCOPED_TRACE(r.text);
    EXPECT_DOUBLE_EQ(leadingNumber(r.text), r.value);
  }
}

TEST(Text, WholeNumberParsing) {
  EXPECT_TRUE(isNumeric(" -1.5E+3 "));
  EXPECT_TRUE(isNumeric(".5"));
  EXPECT_FALSE(isNumeric("1.2.3"));
  EXPECT_FALSE(isNumeric("-"));
  EXPECT_FALSE(isNumeric("12a"));
}

TEST(Text, NumberFormats) {
  EXPECT_EQ(formatShortest(2.0f), "2");
  EXPECT_EQ(formatShortest(1.2f), "1.2");
  EXPECT_EQ(formatShortest(0.0f), "0");
  EXPECT_EQ(formatFixed(1670.0), "1670.00000");
  EXPECT_EQ(formatFixed(-0.000001), "0.00000");
  EXPECT_EQ(formatFixed(0.123456), "0.12346");
}

TEST(Text, SplitKeepsEmptyFields) {
  EXPECT_EQ(split("a,,b", ","), (std::vector<std::string>{"a", "", "b"}));
  EXPECT_EQ(splitOnBlanks("  a   b "), (std::vector<std::string>{"a", "b"}));
}

}  // namespace
}  // namespace zorvik
