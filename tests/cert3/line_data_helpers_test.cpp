// The helpers of the line data checks: data items and their formats, array channel names and
// association chains.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "cert3/array_channels.h"
#include "cert3/data_items.h"
#include "cert3/item_format.h"
#include "cert3/mnemonic_table.h"
#include "las/value_format.h"

namespace zorvik {
namespace {

struct SplitCase {
  const char* line;
  char delimiter;
  std::vector<std::string> items;
};

// Splits into a vector that holds stale items, as the caller's reused one does.
std::vector<std::string> splitToStrings(std::string_view line, char delimiter) {
  std::vector<std::string_view> views{"stale", "stale", "stale", "stale", "stale"};
  splitDataItems(line, delimiter, views);
  return {views.begin(), views.end()};
}

TEST(DataItems, SplitsLinesIntoItems) {
  const SplitCase cases[] = {
      // Comma and tab: every delimiter separates, empty items count, blanks around are trimmed.
      {"1.0, 2.0 ,3.0", ',', {"1.0", "2.0", "3.0"}},
      {"1.0,,3.0,", ',', {"1.0", "", "3.0", ""}},
      {"1.0\t2.0\t\t4", '\t', {"1.0", "2.0", "", "4"}},
      // Space: runs of spaces are one separator; leading and trailing blanks do not count.
      {"  1.0   2.0 3.0  ", ' ', {"1.0", "2.0", "3.0"}},
      {"   ", ' ', {}},
      {"1.0\t2.0 3", ' ', {"1.0\t2.0", "3"}},
      // A quoted item keeps its delimiters and loses its quotes.
      {"100 \"pick gamma\" 3.5", ' ', {"100", "pick gamma", "3.5"}},
      {"100,\"Smith, J.\",2", ',', {"100", "Smith, J.", "2"}},
      // An unmatched quote runs to the end of the line.
      {"100 \"open item 2", ' ', {"100", "open item 2"}},
  };
  for (const SplitCase& c : cases) {
    SCOPED_TRACE(std::string("line [") + c.line + "] delimiter [" + c.delimiter + "]");
    EXPECT_EQ(splitToStrings(c.line, c.delimiter), c.items);
  }
}

// Every item against every format: the quick scan may only ever agree with the full test.
TEST(ItemFormat, AgreesWithTheFullValueTest) {
  const char* formats[] = {"",     "F",   "F10.4", "F4.2",      "F4.1",       "F6.2", "F10",
                           "F10.", "F.4", "f",     "I",         "I3",         "I0",   "I3.0",
                           "S",    "S3",  "E",     "E0.00E+00", "DD/MM/YYYY", "Q",    "s"};
  const char* items[] = {"12.5",      "12",      "-12.50",     "+1.25", ".5",      "5.", "1E3",
                         "abc",       "1.2.3",   "-",          ".",     "007",     "-0", "12.3456",
                         "1234.5678", "-999.25", "12/05/1957", "a b",   "1.0,2.0", "",   " "};
  for (const char* format : formats) {
    ItemFormat parsed = parseItemFormat(format);
    EXPECT_EQ(parsed.text, format);
    for (const char* item : items) {
      SCOPED_TRACE(std::string("item [") + item + "] format [" + format + "]");
      EXPECT_EQ(itemFitsFormat(item, parsed, ","), valueFitsFormat(item, format, ","));
    }
  }
}

// The one-pass cut of the common line gives the items of the ordinary split, and counts each
// item's bytes as the quick scan counts them.
TEST(DataItems, CountingSplitAgreesWithTheSplitAndTheQuickScan) {
  const char* lines[] = {
      "1000.0000,42.6060,-999.25,+7,.5,5.",         " 1.0 , 2.0 ,3.0 ,",       ",,", "", "   ",
      "12/05/1957,1E3,a b,1.2.3,--1,1-,-,.,007,-0", "12.3456, 1234.5678 ,x\t1"};
  // And lines long enough to be read in blocks, made of the bytes that matter, delimiters and
  // blanks falling on every offset of a block.
  std::vector<std::string> generated(std::begin(lines), std::end(lines));
  std::mt19937 random(20261124);
  const std::string alphabet = "0123456789012345.+- ,,,,x";
  for (int n = 0; n < 400; ++n) {
    std::string line(random() % 70, ' ');
    for (char& c : line) c = alphabet[random() % alphabet.size()];
    generated.push_back(line);
  }
  for (char delimiter : {',', '\t'}) {
    for (const std::string& text : generated) {
      std::string line = text;
      if (delimiter == '\t') std::replace(line.begin(), line.end(), ',', '\t');
      SCOPED_TRACE("line [" + line + "]");
      std::vector<std::string_view> items;
      std::vector<ItemShape> shapes;
      ASSERT_TRUE(splitCountingItems(line, delimiter, items, shapes));
      ASSERT_EQ(std::vector<std::string>(items.begin(), items.end()),
                splitToStrings(line, delimiter));
      ASSERT_EQ(shapes.size(), items.size());
      for (std::size_t k = 0; k < items.size(); ++k)
        EXPECT_EQ(shapes[k].counts, item_scan::shapeOf(items[k]).counts) << items[k];
    }
  }
  // Quoted items, and items too long to count, are left to the ordinary split.
  std::vector<std::string_view> items;
  std::vector<ItemShape> shapes;
  EXPECT_FALSE(splitCountingItems("1,\"a,b\",2", ',', items, shapes));
  EXPECT_FALSE(splitCountingItems("1," + std::string(70000, '7'), ',', items, shapes));
  EXPECT_TRUE(items.empty() && shapes.empty());
}

TEST(ArrayNames, ElementNumberAndBase) {
  struct Case {
    const char* mnemonic;
    std::optional<int> number;
    const char* base;
  } cases[] = {
      {"NMR[3]", 3, "NMR"},
      {"NMR[0]", 0, "NMR"},
      {"NMR", std::nullopt, "NMR"},
      {"NMR[]", std::nullopt, "NMR"},
      {"NMR[1", std::nullopt, "NMR"},
      {"NMR]1[", std::nullopt, "NMR]1"},
      {"NMR[-1]", std::nullopt, "NMR"},
      {"[2]", 2, ""},
      {"NMR[99999999999]", std::nullopt, "NMR"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.mnemonic);
    EXPECT_EQ(arrayElementNumber(c.mnemonic), c.number);
    EXPECT_EQ(arrayBaseMnemonic(c.mnemonic), c.base);
  }
}

// Builds a table from "MNEM>REF,REF" lines ("MNEM" alone for a row without references).
MnemonicTable tableOf(const std::vector<std::string>& lines) {
  MnemonicTable table;
  for (const std::string& line : lines) {
    MnemonicRow row;
    std::istringstream in(line);
    std::getline(in, row.mnemonic, '>');
    std::getline(in, row.association);
    std::istringstream entries(row.association);
    for (std::string entry; std::getline(entries, entry, ',');) row.entries.push_back(entry);
    table.add(row);
  }
  return table;
}

TEST(MnemonicTable, ChainWalkFindsLoops) {
  struct Case {
    const char* what;
    std::vector<std::string> rows;
    std::vector<bool> circular;  // rows 1..n
  } cases[] = {
      {"self-reference is the shortest loop", {"A>A", "B>A", "C>B"}, {true, true, true}},
      {"two lines refer to each other", {"A>B", "B>A"}, {true, true}},
      {"three-line loop", {"A>B", "B>C", "C>a"}, {true, true, true}},
      {"line leading into a loop", {"X>A", "A>B", "B>A"}, {true, true, true}},
      {"shared target is not a loop", {"A>B,C", "B>D", "C>D", "D"}, {false, false, false, false}},
      {"missing reference ends the branch", {"A>Q", "B>A"}, {false, false}},
      {"duplicate name uses its first row", {"A>B", "B", "B>A"}, {false, false, false}},
      {"loop through a duplicate's first row", {"A>B", "B>A", "B"}, {true, true, false}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    std::vector<bool> found = rowsInCircularChains(tableOf(c.rows));
    ASSERT_EQ(found.size(), c.circular.size() + 1);
    EXPECT_EQ(std::vector<bool>(found.begin() + 1, found.end()), c.circular);
  }
}

TEST(MnemonicTable, ChainWalkEndsOnLongChainsAndLoops) {
  // A chain of 20000 lines whose last line points back to the first, and a second chain of the
  // same length that only runs into it: every row is in or leads into the loop.
  const int n = 20000;
  std::vector<std::string> rows;
  for (int i = 0; i < n; ++i)
    rows.push_back("L" + std::to_string(i) + ">L" + std::to_string((i + 1) % n));
  for (int i = 0; i < n; ++i)
    rows.push_back("M" + std::to_string(i) + ">" +
                   (i + 1 < n ? "M" + std::to_string(i + 1) : "L0"));
  std::vector<bool> found = rowsInCircularChains(tableOf(rows));
  EXPECT_EQ(std::count(found.begin() + 1, found.end(), true), 2 * n);

  // Every line referring to every earlier line: many paths, no loop.
  std::vector<std::string> dense;
  for (int i = 0; i < 300; ++i) {
    std::string line = "D" + std::to_string(i);
    for (int j = 0; j < i; ++j) line += (j == 0 ? ">D" : ",D") + std::to_string(j);
    dense.push_back(line);
  }
  found = rowsInCircularChains(tableOf(dense));
  EXPECT_EQ(std::count(found.begin(), found.end(), true), 0);
}

}  // namespace
}  // namespace zorvik
