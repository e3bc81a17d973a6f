#include "las/sections.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>

#include "base/text.h"
#include "las/dialect.h"
#include "las/section_types.h"
#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

const std::string kV20 = std::string(ZORVIK_TEST_DATA) + "/las/sections_v20.las";
const std::string kV30 = std::string(ZORVIK_TEST_DATA) + "/las/sections_v30.las";

// 1-based position of the line after the title line `title`.
std::int64_t startAfter(const std::string& bytes, const std::string& title) {
  return static_cast<std::int64_t>(bytes.find(title + "\r\n") + title.size() + 2 + 1);
}

// A file of title lines only: `titles` separated by ";".
std::string writeTitles(std::string_view titles) {
  return testing::writeScratchFile("titles.las", testing::crlfLines(split(titles, ";")));
}

class Sections : public ::testing::Test {
 protected:
  // What a run would have learnt of the file under test.
  Dialect dialect_;
  SectionIndex sections_;
};

// A bar with nothing after it gives a one-blank association, to tell it from no bar at all.
TEST_F(Sections, TitleLineGivesNameAndAssociation) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"~A  DEPT   GR", "A", ""},
      {"~Log_Data|Log_Definition extra", "Log_Data", "Log_Definition"},
      {"~Log_Data |   ", "Log_Data", " "},
      {"   ~ Curve  ", "Curve", ""},
      {"  ~ ", "", ""},
      {"~|x", "", "x"},
      {"x~A", "", ""}};
  for (const auto& [line, name, expected] : rows) {
    SCOPED_TRACE(line);
    std::string association = "stale";
    EXPECT_EQ(parseTitleLine(line, association), name);
    EXPECT_EQ(association, expected);
  }
}

TEST_F(Sections, ArrayIndexSplitsOffATrailingNumber) {
  const std::tuple<const char*, const char*, int> rows[] = {
      {"Log_Data[2]", "Log_Data", 2}, {"Log_Data[]", "Log_Data", 0}, {" Curve Info ", "Curve", -1},
      {"Log Data[3]", "Log", 3},      {"Log_Data[x]", "", -1},       {"Log_Data[1", "", -1},
      {"Log_Data]1[", "", -1},        {"Log_Data[1]x", "", -1},      {"Log_Data[1][2]", "", -1},
      {"Log_Data[-1]", "", -1}};
  for (const auto& [name, base, expected] : rows) {
    SCOPED_TRACE(name);
    int index = 99;
    EXPECT_EQ(splitArrayIndex(name, index), base);
    EXPECT_EQ(index, expected);
  }
}

// The index of a file of titles as "name:role|association" (roles Header, Data, definition as
// Curve, Parameter, Other). One-letter names have roles only before 3.0, and there the data
// section belongs to the last section whose name starts with C, or to "Curve" for an ~ASCII
// section without one; "Well_Data" is data, not a header.
TEST_F(Sections, IndexOfTitles) {
  const std::tuple<float, const char*, const char*> rows[] = {
      {2.0f, "~W;~P;~Well_Data;~Log_parameter;~Tops", "W:H P:P Well_Data:D Log_parameter:P Tops:O"},
      {3.0f, "~W;~P;~Well_Data;~Log_parameter;~Tops", "W:O P:O Well_Data:D Log_parameter:P Tops:O"},
      {3.0f, "~A;~C;~Core_Definition", "A:O C:O Core_Definition:C"},
      {1.2f, "~V;~Curve;~Comments;~A", "V:H Curve:C Comments:O A:D|Comments"},
      {1.2f, "~A | X;~C", "A:D|C C:C"},
      {1.2f, "~ASCII", "ASCII:D|Curve"},
      {1.2f, "~A", "A:D"},
  };
  for (const auto& [version, titles, expected] : rows) {
    SCOPED_TRACE(titles);
    dialect_.version = version;
    ASSERT_TRUE(buildSectionIndex(LasFile(writeTitles(titles)), dialect_, sections_));
    std::string index;
    for (const SectionEntry& e : sections_.entries) {
      index += (index.empty() ? "" : " ") + e.name + ":" +
               std::string_view("HDCPO").at(static_cast<std::size_t>(e.role));
      if (!e.association.empty()) index += "|" + e.association;
    }
    EXPECT_EQ(index, expected);
  }
}

TEST_F(Sections, Version3Groups) {
  dialect_.version = 3.0f;
  ASSERT_TRUE(buildSectionIndex(LasFile(kV30), dialect_, sections_));
  ASSERT_EQ(sections_.entries.size(), 10u);
  // Section numbers (1-based) of data, definition and parameter; the later Log_Data[2] wins.
  using Group = std::tuple<std::string, int, int, int>;
  std::vector<Group> groups;
  for (const SectionGroup& g : sections_.groups)
    groups.emplace_back(g.prefix, g.data, g.definition, g.parameter);
  EXPECT_EQ(groups, (std::vector<Group>{{"Tops", 5, 4, 3}, {"Log", 9, 7, 6}}));
}

TEST_F(Sections, LookupsUseTheFirstSectionOfAName) {
  dialect_.version = 3.0f;
  const std::string bytes = testing::readBytes(kV30);
  const std::string missing = testing::scratchFolder() + "/missing.las";
  const std::tuple<const char*, const char*, std::int64_t, const char*> rows[] = {
      {"well", "Well", startAfter(bytes, "~Well"), "STRT.M 1670.0 : START DEPTH\r"},
      {"Tops", "", 0, ""}};
  for (const auto& [name, foundName, start, text] : rows) {
    SCOPED_TRACE(name);
    std::string found = "stale";
    EXPECT_EQ(findSection(LasFile(kV30), dialect_, sections_, name, found),
              start);  // builds the index lazily
    EXPECT_EQ(found, foundName);
    EXPECT_EQ(sectionText(LasFile(kV30), dialect_, sections_, name), text);
  }
  // A built index is used as it stands, whatever file is named.
  std::string found;
  EXPECT_EQ(findSection(LasFile(missing), dialect_, sections_, "Well", found),
            startAfter(bytes, "~Well"));
  dialect_ = {};
  sections_ = {};
  EXPECT_EQ(findSection(LasFile(missing), dialect_, sections_, "Well", found), 0);
  EXPECT_EQ(sectionText(LasFile(missing), dialect_, sections_, "Well"), "");
}

// Names are looked up ignoring case; a repeated name is found at its first section. An index
// whose entries were set by hand is searched all the same.
TEST_F(Sections, NameLookupsIgnoreCase) {
  dialect_.version = 3.0f;
  const LasFile file(
      writeTitles("~Version;~Well;~Tops_Parameter;~tops_parameter;~Log_Data[2];~Remarks"));
  ASSERT_TRUE(buildSectionIndex(file, dialect_, sections_));
  const std::tuple<const char*, std::optional<SectionRole>, std::int64_t> rows[] = {
      {"TOPS_PARAMETER", SectionRole::Parameter, 3},
      {"Log_data[2]", SectionRole::Data, 5},
      {"Log_Data", std::nullopt, 0},
      {"remarks", SectionRole::Other, 6},
      {"Nowhere", std::nullopt, 0}};
  const std::vector<SectionEntry> built = sections_.entries;
  for (bool byHand : {false, true}) {
    if (byHand) {
      sections_ = {};
      sections_.entries = built;
    }
    for (const auto& [name, role, section] : rows) {
      SCOPED_TRACE(std::string(name) + (byHand ? " (entries set by hand)" : ""));
      EXPECT_EQ(sectionRoleOf(sections_, name), role);
      std::string found;
      const std::int64_t start = findSection(file, dialect_, sections_, name, found);
      EXPECT_EQ(start, section == 0 ? 0 : built[section - 1].start);
      EXPECT_EQ(found, section == 0 ? "" : built[section - 1].name);
    }
  }
}

TEST_F(Sections, SectionTextOfAVersion2File) {
  dialect_.version = 2.0f;
  EXPECT_EQ(sectionText(LasFile(kV20), dialect_, sections_, "Parameter"),
            "RUN.  1\r\nMUD .\tGEL : MUD TYPE\r\n\r\nBHT .DEGC   35.5 : BOTTOM HOLE TEMPERATURE\r");
  // The last section reads to the end of the file, but an empty one has no text.
  EXPECT_EQ(sectionText(LasFile(kV20), dialect_, sections_, "A"),
            "1670.000  45.0  0.27\r\n1669.875  46.0  0.28\r\n1669.750  47.0  0.29\r\n");
  dialect_ = {};
  sections_ = {};
  EXPECT_EQ(sectionText(LasFile(writeTitles("~V;~A")), dialect_, sections_, "A"), "");
}

// Before 3.0 only data and curve sections make the standard sections found; 3.0 falls back on
// the Log_ names (the last array element) and has no one-letter names.
TEST_F(Sections, StandardSectionNames) {
  const std::tuple<float, const char*, const char*, const char*, const char*, bool> rows[] = {
      {2.0f, "~V;~W;~P", "", "", "P", false},
      {3.0f, "~Version;~C;~A;~P", "", "", "", false},
      {3.0f, "~Version;~Parameter", "", "", "Parameter", true},
      {3.0f, "~Curve;~Log_Definition;~Log_Data[1];~ASCII", "Curve", "ASCII", "", true},
      {3.0f, "~Log_Data[1];~Log_Data[2];~Log_Parameter", "", "Log_Data[2]", "Log_Parameter", true}};
  for (const auto& [version, titles, curve, data, param, found] : rows) {
    SCOPED_TRACE(titles);
    dialect_ = {};
    sections_ = {};
    dialect_.version = version;
    EXPECT_TRUE(locateStandardSections(LasFile(writeTitles(titles)), dialect_, sections_));
    EXPECT_EQ(std::tie(sections_.curveName, sections_.dataName, sections_.paramName,
                       sections_.standardFound),
              std::make_tuple(std::string(curve), std::string(data), std::string(param), found));
  }
  // A missing file leaves no names behind, stale ones included.
  sections_ = {};
  sections_.dataName = "stale";
  EXPECT_TRUE(locateStandardSections(LasFile(testing::scratchFolder() + "/missing.las"), dialect_,
                                     sections_));
  EXPECT_EQ(sections_.dataName, "");
  EXPECT_FALSE(sections_.standardFound);
}

}  // namespace
}  // namespace zorvik
