// Certification runs driven through the window's commands, on real files.
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTreeView>

#include "run/run_state.h"
#include "run/settings.h"
#include "ui/result_model.h"
#include "window_fixture.h"

namespace zorvik::testing {
namespace {

const std::vector<std::string> kGroups20 = {"01: File Naming, Availability, Termination and Size",
                                            "02: ~Version section VERS and WRAP Checks",
                                            "03: Section Title Checks",
                                            "04: Line Structure and Syntax Checks",
                                            "05: ~Well Section Mnemonics and Content Checks",
                                            "06: ~Well Section STRT/STOP/STEP Checks",
                                            "07: ~ASCII Section Checks"};

std::vector<std::string> repeated(const char* mark, size_t count) {
  return std::vector<std::string>(count, mark);
}

TEST_F(WindowTest, OpeningAPassingFileShowsEveryCheckPassed) {
  const std::string las = copyFixture("pass_20.las");
  openFile(las);
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_EQ(window->windowTitle().toStdString(), "Zorvik (" + las + ")");
  EXPECT_EQ(child<QLabel>("statusLine")->text(), "Ready");
  EXPECT_TRUE(child<QTabWidget>("tabb")->isEnabled());
  EXPECT_EQ(readSetting("lasFile", ""), las);
  ASSERT_EQ(groupTexts(), kGroups20);
  const size_t checksPerGroup[] = {6, 6, 3, 7, 2, 7, 3};
  for (int g = 0; g < 7; ++g) {
    SCOPED_TRACE(g);
    EXPECT_EQ(checkMarks(g), repeated("Check OK", checksPerGroup[g]));
  }
  // With nothing failed, the first check is selected and its details show.
  EXPECT_EQ(child<QPlainTextEdit>("errAt")->toPlainText(), "1a:  Check OK");
  EXPECT_EQ(selectCheck(1, 0), "2a:  Check OK");
}

TEST_F(WindowTest, OpeningFailingFilesShowsTheFindingsAndWhatWasNotPerformed) {
  struct Row {
    const char* fixture;
    int failedGroupRow;
    int failedCheckRow;
    const char* details;      // of the failed check, as the panel shows it
    const char* findingLine;  // the failed check's first finding line in the grid
    int undecidedCheckRow;    // a check of the failed group the run left undecided, or -1
    const char* undecidedDetails;
  };
  const Row rows[] = {
      {"lf_only_20.las", 0, 3, "1d: Unix Line Feed (ASCII 10) terminated ",
       "Unix Line Feed (ASCII 10) terminated ", -1, ""},
      {"no_wrap_20.las", 1, 2, "2c: WRAP mnemonic missing. ", "WRAP mnemonic missing. ", 4,
       "2e:  Check Not Performed"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.fixture);
    desktop.messages.clear();
    openFile(copyFixture(row.fixture));
    EXPECT_TRUE(desktop.messages.empty());
    ASSERT_EQ(groupTexts(), kGroups20);
    const ResultModel* model = window->resultModel();
    EXPECT_EQ(model->index(row.failedGroupRow, 1).data().toString(), "Failed");
    const QModelIndex check =
        model->index(row.failedCheckRow, 0, model->index(row.failedGroupRow, 0));
    EXPECT_EQ(model->index(row.failedCheckRow, 1, check.parent()).data().toString(), "Failed");
    ASSERT_GE(model->rowCount(check), 1);
    EXPECT_EQ(model->index(0, 0, check).data().toString(), row.findingLine);
    // The first failed check is selected, so its findings show at once.
    EXPECT_EQ(child<QTreeView>("fg")->currentIndex(), check);
    EXPECT_EQ(selectCheck(row.failedGroupRow, row.failedCheckRow), row.details);
    EXPECT_EQ(selectCheck(row.failedGroupRow, 0),
              row.failedGroupRow == 0 ? "1a:  Check OK" : "2a:  Check OK");
    if (row.undecidedCheckRow >= 0) {
      EXPECT_EQ(selectCheck(row.failedGroupRow, row.undecidedCheckRow), row.undecidedDetails);
    }
    // Groups after the failing one were never run.
    for (int g = row.failedGroupRow + 1; g < 7; ++g) {
      SCOPED_TRACE(g);
      EXPECT_EQ(model->index(g, 1).data().toString(), "Check Not Performed");
    }
    EXPECT_EQ(selectCheck(6, 0), "7a:  Check OK");  // no result text reads as passed there
  }
}

TEST_F(WindowTest, ShowDetailsOptionHidesAndShowsTheFindingLines) {
  openFile(copyFixture("no_wrap_20.las"));
  const ResultModel* model = window->resultModel();
  auto findingRows = [&] { return model->rowCount(model->index(2, 0, model->index(1, 0))); };
  EXPECT_EQ(findingRows(), 1);
  trigger("opt_M_1");
  EXPECT_EQ(findingRows(), 0);
  trigger("opt_M_1");
  EXPECT_EQ(findingRows(), 1);
}

TEST_F(WindowTest, RepeatCertificationRunsAgainOnlyWhileTheFileExists) {
  const std::string las = copyFixture("pass_20.las");
  openFile(las);
  ASSERT_EQ(groupTexts().size(), 7u);
  struct Row {
    bool deleted;
    size_t groupsAfter;
  };
  for (const Row& row : {Row{false, 7}, Row{true, 0}}) {
    SCOPED_TRACE(row.deleted);
    if (row.deleted) {
      ASSERT_TRUE(QFile::remove(QString::fromStdString(las)));
    }
    window->resultModel()->clear();
    runState().statusLine = "untouched";
    trigger("file_M_1");
    EXPECT_EQ(groupTexts().size(), row.groupsAfter);
    EXPECT_EQ(runState().statusLine, row.deleted ? "untouched" : "Ready");
  }
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(WindowTest, EscapeDuringARunAsksAndCancelsOnYes) {
  struct Row {
    const char* file;
    QMessageBox::StandardButton answer;
    bool tabsEnabled;
    size_t groups;
  };
  const Row rows[] = {{"pass_20.las", QMessageBox::Yes, false, 0},
                      {"pass_20.las", QMessageBox::No, true, 7},
                      {ZORVIK_EXAMPLES "/example_30.las", QMessageBox::Yes, false, 0},
                      {ZORVIK_EXAMPLES "/example_30.las", QMessageBox::No, true, 9}};
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.file) + (row.answer == QMessageBox::Yes ? " Yes" : " No"));
    desktop.messages.clear();
    desktop.answers = {row.answer};
    window->resultModel()->clear();
    runState().escapePressed = false;
    // The key waits in the event queue until the driver lets events run between two checks.
    QApplication::postEvent(child<QTreeView>("fg"),
                            new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
    openFile(copyFixture(row.file));
    ASSERT_EQ(desktop.messages.size(), 1u);
    EXPECT_EQ(desktop.messages[0].title, "Please Confirm!");
    EXPECT_EQ(desktop.messages[0].text, "Do you want to cancel the certification in progress?");
    EXPECT_EQ(desktop.messages[0].defaultButton, QMessageBox::No);
    EXPECT_EQ(child<QTabWidget>("tabb")->isEnabled(), row.tabsEnabled);
    EXPECT_EQ(groupTexts().size(), row.groups);
    EXPECT_EQ(child<QLabel>("statusLine")->text(), "Ready");
    EXPECT_FALSE(window->certifying());
  }
}

TEST_F(WindowTest, PrintingWithoutAPrinterWritesTheReportAsPdf) {
  const QString pdftotext = QStandardPaths::findExecutable("pdftotext");
  if (pdftotext.isEmpty()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
  openFile(copyFixture("pass_20.las"));
  const QString pdf = QDir(scratch.path()).filePath("result.pdf");
  desktop.saveFileAnswer = pdf;
  trigger("file_M_5");
  ASSERT_EQ(desktop.saveDialogTitles.size(), 1u);
  ASSERT_TRUE(QFile::exists(pdf));
  QProcess extract;
  extract.start(pdftotext, {"-layout", pdf, "-"});
  ASSERT_TRUE(extract.waitForFinished(30000));
  const QString text = QString::fromUtf8(extract.readAllStandardOutput());
  EXPECT_TRUE(text.contains("Result: LAS file PASSED Ver 2 Certification")) << text.toStdString();
  EXPECT_TRUE(text.contains("LAS Certification Result for:")) << text.toStdString();
}

TEST_F(WindowTest, CopyPutsTheGridTextOnTheClipboard) {
  openFile(copyFixture("no_wrap_20.las"));
  QApplication::clipboard()->clear();
  trigger("edit_M_0");
  EXPECT_EQ(QApplication::clipboard()->text(), window->resultModel()->plainText());
  EXPECT_TRUE(QApplication::clipboard()->text().contains("WRAP mnemonic missing. "));
}

TEST_F(WindowTest, PopupExpandsAndCollapsesEveryGroup) {
  openFile(copyFixture("pass_20.las"));
  auto* grid = child<QTreeView>("fg");
  const ResultModel* model = window->resultModel();
  auto expandedGroups = [&] {
    int count = 0;
    for (int g = 0; g < model->rowCount(); ++g) count += grid->isExpanded(model->index(g, 0));
    return count;
  };
  EXPECT_EQ(expandedGroups(), 7);
  struct Row {
    const char* action;
    int expanded;
  };
  for (const Row& row : {Row{"pop_1_4", 0}, Row{"pop_1_3", 7}, Row{"pop_1_4", 0}}) {
    SCOPED_TRACE(row.action);
    trigger(row.action);
    EXPECT_EQ(expandedGroups(), row.expanded);
  }
  QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5),
                      grid->viewport()->mapToGlobal(QPointF(5, 5)), Qt::RightButton, Qt::NoButton,
                      Qt::NoModifier);
  QApplication::sendEvent(grid->viewport(), &release);
  auto* popup = child<QMenu>("pop_1");
  EXPECT_TRUE(popup->isVisible());
  popup->hide();
}

TEST_F(WindowTest, ClosingSavesTheSettingsThatTheNextBatchRunReads) {
  const std::string las = copyFixture("pass_20.las");
  const std::string log = QDir(scratch.path()).filePath("data/batch.log").toStdString();
  auto batchRun = [&] {
    QProcess zorvik;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_CONFIG_HOME", QDir(scratch.path()).filePath("config"));
    zorvik.setProcessEnvironment(env);
    zorvik.start(ZORVIK_EXE, {QString::fromStdString(las), QString::fromStdString(log)});
    EXPECT_TRUE(zorvik.waitForFinished(60000));
    return QFile::exists(QString::fromStdString(log));
  };
  // A fresh store remembers no LAS file, and batch runs are refused until one is.
  EXPECT_FALSE(batchRun());
  runState().lasFile = las;
  runState().writeLog = true;
  EXPECT_TRUE(window->close());
  EXPECT_EQ(readSetting("lasFile", ""), las);
  EXPECT_EQ(readSetting("writeLog", ""), "-1");
  EXPECT_TRUE(batchRun());
}

}  // namespace
}  // namespace zorvik::testing
