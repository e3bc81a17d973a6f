#include "cert3/well_checks3.h"

#include <gtest/gtest.h>

#include <vector>

#include "cert3/scratch_file.h"
#include "las/sections.h"
#include "run/run_state.h"

namespace zorvik {
namespace {

using testing::ScratchFile;

// A ~Well table with the given mnemonic/value pairs (units and descriptions left empty).
ParamTable wellTable(const std::vector<std::pair<std::string, std::string>>& lines) {
  ParamTable table;
  for (const auto& [mnemonic, value] : lines)
    table.entries.push_back({mnemonic, "", value, "", "", ""});
  return table;
}

using Lines = std::vector<std::pair<std::string, std::string>>;

const Lines REQUIRED = {{"STRT", "1"}, {"STOP", "2"}, {"STEP", "1"}, {"NULL", "-999.25"},
                        {"COMP", "c"}, {"WELL", "w"}, {"FLD", "f"},  {"LOC", "l"},
                        {"DATE", "d"}, {"SRVC", "s"}};

Lines with(Lines base, const Lines& more) {
  base.insert(base.end(), more.begin(), more.end());
  return base;
}

struct WellRow {
  const char* what;
  Lines lines;
  std::array<std::string, 7> expected;  // slots 1-6 (index 0 unused)
  int code;
};

TEST(WellChecks3, ItemsFollowTheWellLines) {
  const Lines latLong = {{"LATI", "1"}, {"LONG", "2"}, {"GDAT", "NAD83"}};
  const WellRow rows[] = {
      {"complete Canadian well",
       with(REQUIRED, with(latLong, {{"CTRY", "CA"}, {"PROV", "AB"}, {"UWI", "1"}, {"LIC", "2"}})),
       {"", "", "", "", "", "", ""},
       CHECK_PASSED},
      {"lower case codes and mnemonics",
       with(REQUIRED, {{"ctry", "us"},
                       {"stat", "TX"},
                       {"cnty", "x"},
                       {"api", "4"},
                       {"x", "1"},
                       {"y", "2"},
                       {"gdat", "g"},
                       {"hzcs", "h"}}),
       {"", "", "", "", "", "", ""},
       CHECK_PASSED},
      {"no CTRY line leaves the country items undecided",
       with(REQUIRED, latLong),
       {"", "", " ", " ", " ", " ", ""},
       CHECK_FAILED},
      {"three-letter code: too long, still letters, no requirements",
       with(REQUIRED, with(latLong, {{"CTRY", "USA"}})),
       {"", "", "", "CTRY. USA : \r\n", "", "", ""},
       CHECK_FAILED},
      {"one character: wrong length, letters not judged",
       with(REQUIRED, with(latLong, {{"CTRY", "1"}})),
       {"", "", "", "CTRY. 1 : \r\n", "", "", ""},
       CHECK_FAILED},
      {"empty code passes",
       with(REQUIRED, with(latLong, {{"CTRY", ""}})),
       {"", "", "", "", "", "", ""},
       CHECK_PASSED},
      {"GDAT missing from both sets is named once, last",
       with(REQUIRED, {{"CTRY", "nz"}, {"X", "1"}, {"Y", "2"}}),
       {"", "", "", "", "", "", "HZCS\r\nLATI, LONG\r\nGDAT\r\n"},
       CHECK_FAILED},
      {"both sets short while GDAT is present",
       with(REQUIRED, {{"CTRY", "nz"}, {"X", "1"}, {"GDAT", "g"}, {"LONG", "2"}}),
       {"", "", "", "", "", "", "Y, HZCS\r\nLATI\r\n"},
       CHECK_FAILED},
      {"one set complete is enough",
       with(REQUIRED,
            {{"CTRY", "nz"}, {"X", "1"}, {"Y", "2"}, {"GDAT", "g"}, {"HZCS", "h"}, {"LATI", "3"}}),
       {"", "", "", "", "", "", ""},
       CHECK_PASSED},
  };
  for (const WellRow& row : rows) {
    SCOPED_TRACE(row.what);
    Slots slots;
    for (int k = 1; k <= 6; ++k) slots[k] = " ";
    // No such file: the CTRY line is quoted as rebuilt from its fields.
    EXPECT_EQ(checkWellSection3("/nonexistent/zorvik.las", wellTable(row.lines), slots), row.code);
    for (int k = 1; k <= 6; ++k) EXPECT_EQ(slots[k], row.expected[k]) << "item " << k;
  }
}

TEST(WellChecks3, CtryLineIsQuotedAsWritten) {
  ScratchFile file(
      testing::crlfLines({"~Version", "VERS. 3.0 : v", "~Well", "# CTRY. XX : a comment",
                          " CTRY .   Canada  : Country", "~Curve"}));
  resetRunState();  // the section index is the run's: build it for this file
  runState().lasVersion = 3.0f;
  buildSectionIndex(file.path());
  Slots slots;
  const ParamTable well = wellTable({{"CTRY", "Canada"}});
  EXPECT_EQ(checkWellSection3(file.path(), well, slots), CHECK_FAILED);
  EXPECT_EQ(slots[3], " CTRY .   Canada  : Country\r\n");
}

TEST(WellChecks3, LetterTest) {
  for (char c : std::string("azAZ")) EXPECT_TRUE(isAsciiLetter(c)) << c;
  for (char c : std::string("@[`{09 \xC3")) EXPECT_FALSE(isAsciiLetter(c)) << c;
}

}  // namespace
}  // namespace zorvik
