#include "las/sections.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "las/line_reader.h"
#include "run/run_state.h"

namespace zorvik {
namespace {

const std::string kV20 = std::string(ZORVIK_TEST_DATA) + "/las/sections_v20.las";
const std::string kV30 = std::string(ZORVIK_TEST_DATA) + "/las/sections_v30.las";

std::string readBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

// 1-based position of the line after the title line `title`.
std::int64_t startAfter(const std::string& bytes, const std::string& title) {
  return static_cast<std::int64_t>(bytes.find(title + "\r\n") + title.size() + 2 + 1);
}

// A file of title lines only, joined with CR LF.
std::string writeTitles(const std::string& name, const std::vector<std::string>& titles) {
  std::string path = ::testing::TempDir() + "sections_" + name;
  std::ofstream out(path, std::ios::binary);
  for (const std::string& t : titles) out << t << "\r\n";
  return path;
}

class Sections : public ::testing::Test {
 protected:
  void SetUp() override { resetRunState(); }
  void TearDown() override { resetRunState(); }
};

TEST_F(Sections, TitleLineGivesNameAndAssociation) {
  struct Row {
    const char* line;
    const char* name;
    const char* association;
  };
  const Row rows[] = {
      {"~Version Information", "Version", ""},
      {"~A  DEPT   GR", "A", ""},
      {"~Log_Data | Log_Definition", "Log_Data", "Log_Definition"},
      {"~Log_Data|Log_Definition extra", "Log_Data", "Log_Definition"},
      {"~Log_Data |", "Log_Data", " "},
      {"~Log_Data |   ", "Log_Data", " "},
      {"   ~ Curve  ", "Curve", ""},
      {"~", "", ""},
      {"  ~ ", "", ""},
      {"~|x", "", "x"},
      {"x~A", "", ""},
      {"", "", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    std::string association = "stale";
    EXPECT_EQ(parseTitleLine(row.line, association), row.name);
    EXPECT_EQ(association, row.association);
  }
}

TEST_F(Sections, ArrayIndexSplitsOffATrailingNumber) {
  struct Row {
    const char* name;
    const char* base;
    int index;
  };
  const Row rows[] = {
      {"Log_Data[2]", "Log_Data", 2}, {"Log_Data[1]", "Log_Data", 1}, {"Log_Data[]", "Log_Data", 0},
      {"Log_Data", "Log_Data", -1},   {" Curve Info ", "Curve", -1},  {"Log Data[3]", "Log", 3},
      {"Log_Data[x]", "", -1},        {"Log_Data[1", "", -1},         {"Log_Data1]", "", -1},
      {"Log_Data]1[", "", -1},        {"Log_Data[1]x", "", -1},       {"Log_Data[1][2]", "", -1},
      {"Log_Data[-1]", "", -1},       {"Log_Data[ 1]", "", -1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    int index = 99;
    EXPECT_EQ(splitArrayIndex(row.name, index), row.base);
    EXPECT_EQ(index, row.index);
  }
}

TEST_F(Sections, IndexOfAVersion2File) {
  runState().lasVersion = 2.0f;
  ASSERT_TRUE(buildSectionIndex(kV20));
  const std::string bytes = readBytes(kV20);
  struct Row {
    const char* title;
    const char* name;
    const char* association;
    int role;
  };
  const Row rows[] = {
      {"~Version Information", "Version", "", ROLE_HEADER},
      {"~Well Information", "Well", "", ROLE_HEADER},
      {"~CURVE INFORMATION", "CURVE", "", ROLE_DEFINITION},
      {"~Parameter", "Parameter", "", ROLE_PARAMETER},
      {"~Other", "Other", "", ROLE_HEADER},
      // The data section is tied to the curve section by name.
      {"~A  DEPT   GR   NPHI", "A", "CURVE", ROLE_DATA},
  };
  const auto& index = runState().sectionIndex;
  ASSERT_EQ(index.size(), std::size(rows));
  for (std::size_t i = 0; i < index.size(); ++i) {
    SCOPED_TRACE(rows[i].title);
    EXPECT_EQ(index[i].name, rows[i].name);
    EXPECT_EQ(index[i].association, rows[i].association);
    EXPECT_EQ(index[i].start, startAfter(bytes, rows[i].title));
    EXPECT_EQ(index[i].arrayIndex, -1);
    EXPECT_EQ(index[i].role, rows[i].role);
    EXPECT_EQ(index[i].spare, "");
  }
  EXPECT_TRUE(runState().sectionGroups.empty());
}

TEST_F(Sections, RolesOfNamesDependOnVersion3) {
  struct Row {
    const char* title;
    int roleV2;
    int roleV3;
  };
  const Row rows[] = {
      {"~W", ROLE_HEADER, ROLE_OTHER},
      {"~V", ROLE_HEADER, ROLE_OTHER},
      {"~O", ROLE_HEADER, ROLE_OTHER},
      {"~A", ROLE_DATA, ROLE_OTHER},
      {"~C", ROLE_DEFINITION, ROLE_OTHER},
      {"~P", ROLE_PARAMETER, ROLE_OTHER},
      {"~Well", ROLE_HEADER, ROLE_HEADER},
      {"~version", ROLE_HEADER, ROLE_HEADER},
      {"~ASCII", ROLE_DATA, ROLE_DATA},
      {"~Well_Data", ROLE_DATA, ROLE_DATA},
      {"~Curve", ROLE_DEFINITION, ROLE_DEFINITION},
      {"~Core_Definition", ROLE_DEFINITION, ROLE_DEFINITION},
      {"~Parameter", ROLE_PARAMETER, ROLE_PARAMETER},
      {"~Log_parameter", ROLE_PARAMETER, ROLE_PARAMETER},
      {"~Tops", ROLE_OTHER, ROLE_OTHER},
      {"~Log_Data[3]", ROLE_DATA, ROLE_DATA},
  };
  for (float version : {2.0f, 3.0f}) {
    runState().lasVersion = version;
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(row.title) + (version == 3.0f ? " in 3.0" : " in 2.0"));
      ASSERT_TRUE(buildSectionIndex(writeTitles("roles", {row.title})));
      ASSERT_EQ(runState().sectionIndex.size(), 1u);
      EXPECT_EQ(runState().sectionIndex[0].role, version == 3.0f ? row.roleV3 : row.roleV2);
      EXPECT_EQ(sectionRoleOf(row.title + 1), version == 3.0f ? row.roleV3 : row.roleV2);
    }
  }
  EXPECT_EQ(sectionRoleOf("Nothing"), -1);
}

TEST_F(Sections, DataSectionAssociationInOlderVersions) {
  struct Row {
    std::vector<std::string> titles;
    const char* association;  // of the data section
  };
  const Row rows[] = {
      {{"~V", "~C", "~A"}, "C"},
      {{"~Curve", "~ASCII"}, "Curve"},
      {{"~ASCII"}, "Curve"},                        // no curve section: the default partner
      {{"~Curve", "~Comments", "~A"}, "Comments"},  // the last name starting with C wins
      {{"~A | X", "~C"}, "C"},
      {{"~A"}, ""},
  };
  runState().lasVersion = 1.2f;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.titles.back());
    ASSERT_TRUE(buildSectionIndex(writeTitles("assoc", row.titles)));
    for (const SectionEntry& e : runState().sectionIndex)
      if (e.role == ROLE_DATA) {
        EXPECT_EQ(e.association, row.association);
      }
  }
}

TEST_F(Sections, Version3GroupsAndArrays) {
  runState().lasVersion = 3.0f;
  ASSERT_TRUE(buildSectionIndex(kV30));
  const auto& index = runState().sectionIndex;
  ASSERT_EQ(index.size(), 10u);
  EXPECT_EQ(index[6].name, "Log_Definition");
  EXPECT_EQ(index[7].name, "Log_Data[1]");
  EXPECT_EQ(index[7].arrayIndex, 1);
  EXPECT_EQ(index[7].association, "Log_Definition");
  EXPECT_EQ(index[9].name, "Well");
  EXPECT_EQ(index[4].association, "Tops_Definition");

  struct Row {
    const char* prefix;
    int data, definition, parameter;
  };
  const Row rows[] = {{"Tops", 5, 4, 3}, {"Log", 9, 7, 6}};  // the later Log_Data[2] wins
  const auto& groups = runState().sectionGroups;
  ASSERT_EQ(groups.size(), std::size(rows));
  for (std::size_t i = 0; i < groups.size(); ++i) {
    SCOPED_TRACE(rows[i].prefix);
    EXPECT_EQ(groups[i].prefix, rows[i].prefix);
    EXPECT_EQ(groups[i].data, rows[i].data);
    EXPECT_EQ(groups[i].definition, rows[i].definition);
    EXPECT_EQ(groups[i].parameter, rows[i].parameter);
  }
}

TEST_F(Sections, LookupsUseTheFirstSectionOfAName) {
  runState().lasVersion = 3.0f;
  const std::string bytes = readBytes(kV30);
  struct Row {
    const char* name;
    const char* found;
    std::int64_t start;
    const char* text;
  };
  const Row rows[] = {
      {"well", "Well", startAfter(bytes, "~Well"), "STRT.M 1670.0 : START DEPTH\r"},
      {"Log_Data[2]", "Log_Data[2]", startAfter(bytes, "~Log_Data[2] | Log_Definition"),
       "1669.0\r"},
      {"Tops_Definition", "Tops_Definition", startAfter(bytes, "~Tops_Definition"),
       "TOP.M : top depth\r"},
      {"Tops", "", 0, ""},
      {"", "", 0, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string found = "stale";
    EXPECT_EQ(findSection(kV30, row.name, found), row.start);  // builds the index lazily
    EXPECT_EQ(found, row.found);
    EXPECT_EQ(sectionText(kV30, row.name), row.text);
  }
  std::string found;
  EXPECT_EQ(findSection(::testing::TempDir() + "missing.las", "Well", found),
            startAfter(bytes, "~Well"));
  resetRunState();
  EXPECT_EQ(findSection(::testing::TempDir() + "missing.las", "Well", found), 0);
  EXPECT_EQ(sectionText(::testing::TempDir() + "missing.las", "Well"), "");
}

TEST_F(Sections, SectionTextOfAVersion2File) {
  runState().lasVersion = 2.0f;
  struct Row {
    const char* name;
    std::string text;
  };
  const Row rows[] = {
      {"Parameter",
       "RUN.  1\r\nMUD .\tGEL : MUD TYPE\r\n\r\nBHT .DEGC   35.5 : BOTTOM HOLE TEMPERATURE\r"},
      {"Other", "Free text here.\r"},
      // The last section reads to the end of the file.
      {"A", "1670.000  45.0  0.27\r\n1669.875  46.0  0.28\r\n1669.750  47.0  0.29\r\n"},
      {"curve",
       "DEPT.M        : DEPTH\r\nGR  .GAPI     : GAMMA RAY\r\nNPHI.V/V      : NEUTRON "
       "POROSITY\r\nDE PT.M       : BAD MNEMONIC\r"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(sectionText(kV20, row.name), row.text);
  }
  // An empty last section has no text.
  std::string path = writeTitles("empty_last", {"~V", "~A"});
  resetRunState();
  EXPECT_EQ(sectionText(path, "A"), "");
}

TEST_F(Sections, SeekSectionWithAndWithoutIndex) {
  runState().lasVersion = 2.0f;
  runState().lasFile = kV20;
  const std::string bytes = readBytes(kV20);
  LineReader file(kV20);
  std::string line;

  // Without an index the file itself is searched; the title's position comes back.
  std::int64_t title = static_cast<std::int64_t>(bytes.find("~CURVE")) + 1;
  EXPECT_EQ(seekSection(file, "Curve"), title);
  ASSERT_TRUE(file.readLine(line));
  EXPECT_EQ(line, "DEPT.M        : DEPTH");
  EXPECT_EQ(seekSection(file, "Tops"), 0);

  ASSERT_TRUE(buildSectionIndex(kV20));
  struct Row {
    const char* name;
    std::int64_t pos;
    const char* firstLine;
  };
  const Row rows[] = {
      {" Parameter ", startAfter(bytes, "~Parameter"), "RUN.  1"},
      {"A", startAfter(bytes, "~A  DEPT   GR   NPHI"), "1670.000  45.0  0.27"},
      {"", 0, "~Version Information"},  // an empty name rewinds
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(seekSection(file, row.name), row.pos);
    ASSERT_TRUE(file.readLine(line));
    EXPECT_EQ(line, row.firstLine);
  }
  EXPECT_EQ(seekSection(file, "Tops"), 0);
}

TEST_F(Sections, StandardSectionNames) {
  struct Row {
    float version;
    std::vector<std::string> titles;
    const char* curve;
    const char* data;
    const char* param;
    bool found;
  };
  const Row rows[] = {
      {2.0f, {"~V", "~W", "~C", "~P", "~A"}, "C", "A", "P", true},
      {2.0f,
       {"~Version", "~Well", "~Curve", "~Parameter", "~ASCII"},
       "Curve",
       "ASCII",
       "Parameter",
       true},
      {2.0f, {"~V", "~W", "~P"}, "", "", "P", false},  // only data and curve count here
      {2.0f, {"~Log_Definition", "~Log_Data"}, "", "", "", false},
      {3.0f,
       {"~Version", "~Well", "~Log_Parameter", "~Log_Definition", "~Log_Data"},
       "Log_Definition",
       "Log_Data",
       "Log_Parameter",
       true},
      {3.0f, {"~Version", "~C", "~A", "~P"}, "", "", "", false},
      {3.0f, {"~Version", "~Parameter"}, "", "", "Parameter", true},
      {3.0f, {"~Curve", "~Log_Definition", "~Log_Data[1]", "~ASCII"}, "Curve", "ASCII", "", true},
      {3.0f, {"~Log_Data[1]", "~Log_Data[2]"}, "", "Log_Data[2]", "", true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.titles.back());
    resetRunState();
    runState().lasVersion = row.version;
    EXPECT_TRUE(locateStandardSections(writeTitles("standard", row.titles)));
    EXPECT_EQ(runState().curveSectionName, row.curve);
    EXPECT_EQ(runState().dataSectionName, row.data);
    EXPECT_EQ(runState().paramSectionName, row.param);
    EXPECT_EQ(runState().standardSectionsFound, row.found);
  }
  runState().dataSectionName = "stale";
  EXPECT_TRUE(locateStandardSections(::testing::TempDir() + "missing.las"));
  EXPECT_EQ(runState().dataSectionName, "");
  EXPECT_FALSE(runState().standardSectionsFound);
}

}  // namespace
}  // namespace zorvik
