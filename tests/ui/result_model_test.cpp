#include "ui/result_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include "checks/check_table.h"

namespace zorvik {
namespace {

CheckTable failingTable() {
  CheckTable table(7);
  table.at(0, 0, 1) = "File Naming, Availability, Termination and Size";
  table.at(1, COL_TITLE, 1) = "File exists";
  table.at(2, COL_TITLE, 1) = "File has more than 0 bytes";
  table.at(0, 0, 2) = "~Version section VERS and WRAP Checks";
  table.at(1, COL_TITLE, 2) = "~Version section present";
  table.at(2, COL_TITLE, 2) = "VERS parameter present in ~Version section";
  table.at(2, COL_RESULT, 2) = "\r\nVERS missing\r\n~VERSION\r\nsecond finding";
  table.at(0, 0, 3) = "Section Title Checks";
  table.at(1, COL_TITLE, 3) = "Minimum required ~ (tilde) sections present";
  return table;
}

// The model is checked by Qt's own consistency tester while it is filled, refilled, switched
// between showing and hiding findings, and cleared.
TEST(ResultModel, PassesTheItemModelTesterThroughItsWholeLife) {
  ResultModel model;
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.showTable(failingTable());
  model.setShowDetails(false);
  model.setShowDetails(true);
  model.showTable(CheckTable(9));
  model.showTable(failingTable());
  model.clear();
  EXPECT_EQ(model.rowCount(), 0);
}

TEST(ResultModel, GroupsChecksAndFindingsFormATree) {
  ResultModel model;
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.showTable(failingTable());
  ASSERT_EQ(model.rowCount(), 3);
  const QModelIndex version = model.index(1, 0);
  EXPECT_EQ(version.data().toString(), "02: ~Version section VERS and WRAP Checks");
  EXPECT_EQ(model.index(1, 1).data().toString(), "Failed");
  ASSERT_EQ(model.rowCount(version), 2);
  const QModelIndex vers = model.index(1, 0, version);
  EXPECT_EQ(vers.data().toString(), "b. VERS parameter present in ~Version section");
  EXPECT_EQ(vers.data(ResultModel::KeyRole).toString(), "2^2");
  EXPECT_EQ(model.index(0, 1, version).data().toString(), "Check OK");
  EXPECT_EQ(model.index(0, 1, model.index(2, 0)).data().toString(), "Check Not Performed");
  EXPECT_FALSE(model.index(0, 0, model.index(2, 0)).data(Qt::DecorationRole).isNull());

  struct Row {
    bool details;
    int lines;
  };
  for (const Row row : {Row{true, 3}, Row{false, 0}}) {
    SCOPED_TRACE(row.details);
    model.setShowDetails(row.details);
    const QModelIndex check = model.index(1, 0, model.index(1, 0));
    ASSERT_EQ(model.rowCount(check), row.lines);
    if (row.lines == 0) continue;
    const QModelIndex finding = model.index(1, 0, check);
    EXPECT_EQ(finding.data().toString(), "~VERSION");
    EXPECT_EQ(finding.data(ResultModel::KeyRole).toString(), "2^2");
    EXPECT_EQ(model.parent(finding), check);
    EXPECT_EQ(model.parent(check), model.index(1, 0));
  }
}

TEST(ResultModel, PlainTextListsEveryRow) {
  ResultModel model;
  model.showTable(failingTable());
  const QString text = model.plainText();
  EXPECT_TRUE(
      text.startsWith("01: File Naming, Availability, Termination and Size\tCheck OK\n"
                      "    a. File exists\tCheck OK\n"));
  EXPECT_TRUE(
      text.contains("    b. VERS parameter present in ~Version section\tFailed\n"
                    "        VERS missing\n        ~VERSION\n        second finding\n"));
  EXPECT_TRUE(
      text.endsWith("    a. Minimum required ~ (tilde) sections present\t"
                    "Check Not Performed\n"));
  model.setShowDetails(false);
  EXPECT_FALSE(model.plainText().contains("VERS missing"));
}

}  // namespace
}  // namespace zorvik
