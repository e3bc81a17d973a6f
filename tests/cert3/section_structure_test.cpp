#include "checks/section_structure.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "checks/run_context.h"
#include "las/sections.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

struct StructureRow {
  const char* what;
  std::vector<std::string> titles;    // title lines of the file, in order
  std::map<int, std::string> failed;  // items expected to hold findings; all others empty
};

// Certifies the structure of a 3.0 file made of the given title lines, each followed by a line.
CheckStatus runStructure(const std::vector<std::string>& titles, Slots& slots) {
  std::string text;
  for (const std::string& t : titles) text += t + "\r\n x.  1 : y\r\n";
  testing::ScratchDir dir;
  const std::string path = dir.write("titles.las", text);
  RunContext run;
  run.lasFile = path;
  run.dialect.version = 3.0f;
  locateStandardSections(LasFile(path), run.dialect, run.sections);
  return checkSectionStructure(run, slots);
}

TEST(SectionStructure, ItemsFollowTheTitles) {
  const std::string V = "~Version", W = "~Well";
  const StructureRow rows[] = {
      {"a definition section alone is a set", {V, W, "~Curve"}, {}},
      {"neither ~Version nor ~Well reports only ~Well",
       {"~Curve", "~ASCII"},
       {{1, "~Well"}, {3, "1st and 2nd sections are ~Curve then ~ASCII"}}},
      {"no ~Version",
       {W, "~Curve", "~ASCII"},
       {{1, "~Version "}, {3, "1st and 2nd sections are ~Well then ~Curve"}}},
      {"no titles at all",
       {},
       {{1, "~WellMinumum one set of Matching _Data/_Definition sections not found"}}},
      {"a pair whose suffixes stand apart",
       {V, W, "~Tops_Definition", "~A_data | Tops_Definition"},
       {{1, "Minumum one set of Matching _Data/_Definition sections not found"},
        {6, "A_data\r\n"},
        {9, "Tops_Definition\r\n"}}},
      {"one-letter names are not enough in 3.0",
       {V, W, "~C", "~A"},
       {{1, "Minumum one set of Matching _Data/_Definition sections not found"},
        {2, "Illegal section is ~C\r\nIllegal section is ~A\r\n"}}},
      {"second ~Version with another index",
       {V, W, "~Curve", "~ASCII", "~Version[2]"},
       {{4, "Version[2]\r\nVersion\r\n"},
        {12, "Version\r\n"},
        {13, "Version\r\n"},
        {14, "Version[2]\r\n"}}},
      {"bare bar on a data title",
       {V, W, "~Log_Definition", "~Log_Data |"},
       {{5, "Log_Data\r\n"}, {6, "Log_Data\r\n"}, {7, "Log_Data| \r\n"}, {11, "Missing  \r\n"}}},
      {"~ASCII associated with something else than ~Curve",
       {V, W, "~Curve", "~Log_Definition", "~ASCII | Log_Definition"},
       {{6, "Associated Column definition section must be Curve, not Log_Definition\r\n"},
        {9, "Log_Definition\r\n"}}},
      {"unreadable indexes are illegal names, not duplicates",
       {V, W, "~Log_Definition", "~Log_Data[x] | Log_Definition", "~Log_Data[y] | Log_Definition"},
       {{2, "Illegal section is ~Log_Data[x]\r\nIllegal section is ~Log_Data[y]\r\n"}}},
  };
  for (const StructureRow& row : rows) {
    SCOPED_TRACE(row.what);
    Slots slots;
    slots[15].markNotReached();
    EXPECT_EQ(runStructure(row.titles, slots),
              row.failed.empty() ? CheckStatus::Passed : CheckStatus::Failed);
    for (int k = 1; k <= 14; ++k) {
      const auto it = row.failed.find(k);
      EXPECT_EQ(slots[k].text(), it == row.failed.end() ? "" : it->second) << "item " << k;
    }
    EXPECT_TRUE(slots[15].notReached());  // beyond the items: kept as preset
  }
}

TEST(SectionStructure, ThousandsOfSectionsAreAllJudged) {
  // Every title twice, and every data section pointing at a definition that is missing.
  std::vector<std::string> titles{"~Version", "~Well", "~Curve"};
  std::string duplicates;
  for (int i = 1; i <= 10000; ++i) {
    const std::string n = std::to_string(i);
    for (int twice = 0; twice < 2; ++twice)
      titles.push_back("~Log_Data[" + n + "] | Log_Definition[" + n + "]");
    duplicates += "Log_Data[" + n + "]\r\n";
  }
  Slots slots;
  EXPECT_EQ(runStructure(titles, slots), CheckStatus::Failed);
  EXPECT_EQ(slots[4].text(), duplicates);
  EXPECT_EQ(slots[8].textSize(), 2 * duplicates.size());
}

}  // namespace
}  // namespace zorvik
