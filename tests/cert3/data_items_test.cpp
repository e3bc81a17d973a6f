#include "cert3/data_items.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zorvik {
namespace {

struct SplitCase {
  const char* line;
  char delimiter;
  std::vector<std::string> items;
};

std::vector<std::string> splitToStrings(std::string_view line, char delimiter) {
  std::vector<std::string_view> views;
  splitDataItems(line, delimiter, views);
  return {views.begin(), views.end()};
}

TEST(DataItems, SplitsLinesIntoItems) {
  const SplitCase cases[] = {
      // Comma and tab: every delimiter separates, empty items count, blanks around are trimmed.
      {"1.0,2.0,3.0", ',', {"1.0", "2.0", "3.0"}},
      {"1.0, 2.0 ,3.0", ',', {"1.0", "2.0", "3.0"}},
      {"1.0,,3.0,", ',', {"1.0", "", "3.0", ""}},
      {"1.0\t2.0\t\t4", '\t', {"1.0", "2.0", "", "4"}},
      {"1.0 2.0", ',', {"1.0 2.0"}},
      {"", ',', {""}},
      // Space: runs of spaces are one separator; leading and trailing blanks do not count.
      {"  1.0   2.0 3.0  ", ' ', {"1.0", "2.0", "3.0"}},
      {"1.0", ' ', {"1.0"}},
      {"   ", ' ', {}},
      {"1.0\t2.0 3", ' ', {"1.0\t2.0", "3"}},
      // A quoted item keeps its delimiters and loses its quotes.
      {"100 \"pick gamma\" 3.5", ' ', {"100", "pick gamma", "3.5"}},
      {"100,\"Smith, J.\",2", ',', {"100", "Smith, J.", "2"}},
      {"100, \"a b\" ,2", ',', {"100", "a b", "2"}},
      {"100 \"\" 2", ' ', {"100", "", "2"}},
      // An unmatched quote runs to the end of the line.
      {"100 \"open item 2", ' ', {"100", "open item 2"}},
      {"100,\"x,y", ',', {"100", "x,y"}},
  };
  for (const SplitCase& c : cases) {
    SCOPED_TRACE(std::string("line [") + c.line + "] delimiter [" + c.delimiter + "]");
    EXPECT_EQ(splitToStrings(c.line, c.delimiter), c.items);
  }
}

TEST(DataItems, ReusesTheCallersVector) {
  std::vector<std::string_view> items{"stale", "stale"};
  splitDataItems("7,8,9", ',', items);
  ASSERT_EQ(items.size(), 3u);
  EXPECT_EQ(items[2], "9");
}

}  // namespace
}  // namespace zorvik
