#include "cert3/mnemonic_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace zorvik {
namespace {

// Builds a table from "MNEM>REF,REF" specs ("MNEM" alone for a row without references).
MnemonicTable tableOf(const std::vector<std::string>& specs) {
  MnemonicTable table;
  for (const std::string& spec : specs) {
    MnemonicRow row;
    std::size_t arrow = spec.find('>');
    row.mnemonic = spec.substr(0, arrow);
    if (arrow != std::string::npos) {
      row.association = spec.substr(arrow + 1);
      std::size_t start = 0;
      for (;;) {
        std::size_t comma = row.association.find(',', start);
        row.entries.push_back(row.association.substr(start, comma - start));
        if (comma == std::string::npos) break;
        start = comma + 1;
      }
    }
    table.add(row);
  }
  return table;
}

TEST(MnemonicTable, LookupFindsTheFirstRowIgnoringCaseAndBlanks) {
  MnemonicTable table = tableOf({"DEPT", "GR", "Nphi", "GR", "  "});
  struct Case {
    const char* name;
    int row;
  } cases[] = {
      {"DEPT", 1},  {"dept", 1}, {" GR ", 2}, {"NPHI", 3}, {"nPhI", 3},
      {"RHOB", -1}, {"", -1},    {"   ", -1}, {"GR2", -1}, {"DEP", -1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string("[") + c.name + "]");
    EXPECT_EQ(table.lookup(c.name), c.row);
  }
}

TEST(MnemonicTable, ChainWalkFindsLoops) {
  struct Case {
    const char* what;
    std::vector<std::string> rows;
    std::vector<bool> circular;  // rows 1..n
  } cases[] = {
      {"no references", {"A", "B"}, {false, false}},
      {"plain chain", {"A>B", "B>C", "C"}, {false, false, false}},
      {"self-reference is not a chain", {"A>A", "B>A"}, {false, false}},
      {"two lines refer to each other", {"A>B", "B>A"}, {true, true}},
      {"three-line loop", {"A>B", "B>C", "C>a"}, {true, true, true}},
      {"line leading into a loop", {"X>A", "A>B", "B>A"}, {true, true, true}},
      {"shared target is not a loop", {"A>B,C", "B>D", "C>D", "D"}, {false, false, false, false}},
      {"missing reference ends the branch", {"A>Q", "B>A"}, {false, false}},
      {"empty entry", {"A>,B", "B"}, {false, false}},
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
    std::string spec = "D" + std::to_string(i);
    for (int j = 0; j < i; ++j) spec += (j == 0 ? ">D" : ",D") + std::to_string(j);
    dense.push_back(spec);
  }
  found = rowsInCircularChains(tableOf(dense));
  EXPECT_EQ(std::count(found.begin(), found.end(), true), 0);
}

TEST(MnemonicTable, RowAsLineLaysOutAParameterLine) {
  MnemonicRow row{"NPHI", "V/V", "0.25", "Neutron", "DEPT,GR", {"DEPT", "GR"}};
  EXPECT_EQ(rowAsLine(row), "NPHI.V/V    0.25 : Neutron | DEPT,GR");
}

}  // namespace
}  // namespace zorvik
