// The texts the window shows, worked out from a check table without a window: grid marks, the
// copied grid, the details panel and the standards menu. The window tests pin them for real
// runs; the rows here are the rules no fixture reaches.
#include <gtest/gtest.h>

#include "checks/check_table.h"
#include "las/dialect.h"
#include "ui/check_details.h"
#include "ui/documents.h"
#include "ui/result_model.h"
#include "ui/result_rows.h"

namespace zorvik {
namespace {

// A row result as the grid receives it: a single blank is a row not reached, other text findings.
RowResult shown(const std::string& text) {
  return text == " " ? RowResult::notReachedRow() : RowResult::saying(text);
}

// "Files" with three checks, "Version" with two (its untitled row 3 is not listed), "Data" one.
CheckTable smallCatalogue() {
  CheckTable table(4);
  table.at(0, 0, 1) = "Files";
  table.at(0, 0, 2) = "Version";
  table.at(0, 0, 3) = "Data";
  table.at(1, COL_TITLE, 1) = "File exists";
  table.at(2, COL_TITLE, 1) = "File has bytes";
  table.at(3, COL_TITLE, 1) = "File can be read";
  table.at(1, COL_TITLE, 2) = "VERS present";
  table.at(2, COL_TITLE, 2) = "WRAP present";
  table.at(1, COL_TITLE, 3) = "Data lines";
  return table;
}

TEST(ResultRows, MarksFollowResultsAndHowFarTheRunGot) {
  struct Result {
    int row, group;
    const char* text;
  };
  struct Row {
    const char* name;
    std::vector<Result> results;
    std::vector<std::pair<int, int>> displayMarks;  // (row, group) marked as run
    const char* marks;  // per group: group mark, then each check's; P passed F failed N not run
  };
  const Row rows[] = {
      {"single blank is not performed", {{1, 2, " "}}, {}, "P:PPP N:NP N:N "},
      {"a note in 2 and a failure in 3: both groups ran",
       {{2, 2, "note"}, {1, 3, "bad"}},
       {},
       "P:PPP F:PF F:F "},
      {"display marks show a group ran", {{1, 2, "bad"}}, {{1, 3}}, "P:PPP F:FP P:P "},
  };
  const char letters[] = {'P', 'F', 'N'};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    CheckTable table = smallCatalogue();
    for (const Result& r : row.results) table.result(r.row, r.group) = shown(r.text);
    for (const auto& [r, g] : row.displayMarks) table.at(r, COL_MARK, g) = " ";
    std::string marks;
    for (const GroupRow& group : resultRows(table)) {
      marks += letters[static_cast<int>(group.mark)] + std::string(":");
      for (const CheckRow& check : group.checks) marks += letters[static_cast<int>(check.mark)];
      marks += ' ';
    }
    EXPECT_EQ(marks, row.marks);
  }
}

// What Copy puts on the clipboard: a line per row, the mark after a tab, and the findings
// indented, split at every line end (CR LF, lone CR, lone LF) with empty lines dropped.
TEST(ResultRows, ModelPlainTextListsEveryRowAndFindingsOnlyWithDetails) {
  CheckTable table = smallCatalogue();
  table.result(2, 2) = shown("\r\nWRAP missing\r~VERSION\n \r\n\r\n");
  ResultModel model;
  model.showTable(table);
  EXPECT_EQ(model.plainText(),
            "01: Files\tCheck OK\n"
            "    a. File exists\tCheck OK\n"
            "    b. File has bytes\tCheck OK\n"
            "    c. File can be read\tCheck OK\n"
            "02: Version\tFailed\n"
            "    a. VERS present\tCheck OK\n"
            "    b. WRAP present\tFailed\n"
            "        WRAP missing\n"
            "        ~VERSION\n"
            "         \n"
            "03: Data\tCheck Not Performed\n"
            "    a. Data lines\tCheck Not Performed\n");
  model.setShowDetails(false);
  EXPECT_FALSE(model.plainText().contains("WRAP missing"));
}

TEST(CheckDetails, ShowsLabelAndResultOfTheKeyedCheck) {
  CheckTable table(7);
  table.result(2, 2) = shown("\r\nVERS line missing\r\n~V");
  table.result(3, 2) = shown(" ");
  table.result(4, 2) = shown("  ");  // blanks that are not the single blank are findings
  table.result(15, 7) = shown("x");
  struct Row {
    const char* key;
    const char* details;
  };
  const Row rows[] = {
      {"2^2", "2b: \r\nVERS line missing\r\n~V"},
      {"2^3", "2c:  Check Not Performed"},
      {"2^4", "2d:   "},
      {"7^15", "7o: x"},
      {"0^1", "0a:  Check OK"},
      {"8^1", ""},  // group past the table
      {"2^0", ""},  // the heading row is no check
      {"2^3x", ""},
      {"", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.key);
    EXPECT_EQ(checkDetails(table, row.key), row.details);
  }
}

// Item 0 follows the version just certified; any version but 1.2 and 3.0 is read as 2.0 there.
TEST(Documents, StandardsDocumentAndCaptionOfTheVersionJustCertified) {
  struct Row {
    float version;
    const char* document;
    const char* caption;
  };
  const Row rows[] = {
      {1.2f, "las12_standards.txt", "Just Certified Version:  (Ver 1.2)"},
      {2.0f, "las20_standards.txt", "Just Certified Version:  (Ver 2)"},
      {3.0f, "LAS3_FileStructure.pdf", "Just Certified Version:  (Ver 3)"},
      {2.1f, "las20_standards.txt", "Just Certified Version:  (Ver 2.1)"},
      {NO_VERSION, "las20_standards.txt", "Just Certified Version:  (Ver 0.0)"},
      {0.0f, "las20_standards.txt", "Just Certified Version:  (Ver 0.0)"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.caption);
    EXPECT_EQ(standardsDocument(0, row.version), row.document);
    EXPECT_EQ(justCertifiedCaption(row.version), row.caption);
  }
  EXPECT_EQ(documentNotFoundText("las12_standards.txt"),
            "The LAS standards document you requested, \n\nlas12_standards.txt\n\n, could not "
            "be found. Re-install Zorvik to restore.");
}

}  // namespace
}  // namespace zorvik
