// The main window driven through its commands, on real files: a real window with a settings
// store and a program folder of its own, and a fake desktop answering its dialogs. Every test
// also runs Qt's consistency tester on the result model through each fill, refill and clear.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QThread>
#include <QTreeView>
#include <deque>
#include <memory>

#include "base/command_log.h"
#include "run/session.h"
#include "run/settings.h"
#include "ui/main_window.h"
#include "ui/result_model.h"

namespace zorvik::testing {
namespace {

class WindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(scratch.isValid());
    const QDir root(scratch.path());
    ASSERT_TRUE(root.mkpath("config") && root.mkpath("program") && root.mkpath("data"));
    qputenv("XDG_CONFIG_HOME", root.filePath("config").toLocal8Bit());
    setProgramFolder(root.filePath("program").toStdString());
    Session session;
    readSettings(session);
    window = std::make_unique<CertifyWindow>(fakeDesktop(), session);
    window->show();
    modelTester = std::make_unique<QAbstractItemModelTester>(
        window->resultModel(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  }
  void TearDown() override {
    modelTester.reset();
    window.reset();
    setProgramFolder("");
  }

  // Boxes are recorded and answered from `answers` (else with their default button), the file
  // dialogs from the fields below; services left unset throw, so nothing reaches the desktop.
  WindowServices fakeDesktop() {
    WindowServices s;
    s.messageBox = [this](QWidget*, const MessageRequest& request) {
      messages.push_back(request);
      if (answers.empty()) {
        return request.defaultButton != QMessageBox::NoButton ? request.defaultButton
                                                              : QMessageBox::Ok;
      }
      const QMessageBox::StandardButton answer = answers.front();
      answers.pop_front();
      return answer;
    };
    s.chooseLasFile = [this](QWidget*, const QString&) { return lasFileToOpen; };
    s.chooseSaveFile = [this](QWidget*, const QString&, const QString& proposed, const QString&) {
      proposedSaveFile = proposed;
      return saveFileAnswer;
    };
    s.askText = [this](QWidget*, const QString&, const QString& prompt) {
      textPrompts << prompt;
      return textAnswer;
    };
    s.hasPrinter = [] { return false; };
    return s;
  }

  // Copies a fixture of tests/data/ui (or an absolute path) into the scratch folder and opens
  // it through the open command, the dialog answering with it; gives back the copy's name.
  std::string openFixture(const QString& name) {
    const QString source =
        QFileInfo(name).isAbsolute() ? name : QStringLiteral(ZORVIK_TEST_DATA "/ui/") + name;
    lasFileToOpen = QDir(scratch.path()).filePath("data/" + QFileInfo(source).fileName());
    QFile::remove(lasFileToOpen);
    EXPECT_TRUE(QFile::copy(source, lasFileToOpen)) << source.toStdString();
    trigger("file_M_0");
    return lasFileToOpen.toStdString();
  }
  void trigger(const char* actionName) {
    if (QAction* action = child<QAction>(actionName)) action->trigger();
  }
  template <typename T>
  T* child(const char* name) {
    T* found = window->findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  int groupRows() { return window->resultModel()->rowCount(); }

  QTemporaryDir scratch;
  std::vector<MessageRequest> messages;
  std::deque<QMessageBox::StandardButton> answers;
  QString lasFileToOpen;
  QString saveFileAnswer;
  QString proposedSaveFile;
  QStringList textPrompts;
  QString textAnswer;
  std::unique_ptr<CertifyWindow> window;
  std::unique_ptr<QAbstractItemModelTester> modelTester;
};

// The grid's marks, a word per group: its mark, ':', its checks' (P OK, F failed, N not performed).
std::string gridMarks(const ResultModel& model) {
  const QStringList texts = {"Check OK", "Failed", "Check Not Performed"};
  auto letter = [&](const QModelIndex& index) { return "?PFN"[texts.indexOf(index.data()) + 1]; };
  std::string marks;
  for (int g = 0; g < model.rowCount(); ++g) {
    const QModelIndex group = model.index(g, 0);
    marks += std::string(g == 0 ? "" : " ") + letter(model.index(g, 1)) + ':';
    for (int c = 0; c < model.rowCount(group); ++c) marks += letter(model.index(c, 1, group));
  }
  return marks;
}

TEST_F(WindowTest, OpeningAFileShowsItsGridAndSelectsTheFirstFailedCheck) {
  const QStringList groups20 = {"01: File Naming, Availability, Termination and Size",
                                "02: ~Version section VERS and WRAP Checks",
                                "03: Section Title Checks",
                                "04: Line Structure and Syntax Checks",
                                "05: ~Well Section Mnemonics and Content Checks",
                                "06: ~Well Section STRT/STOP/STEP Checks",
                                "07: ~ASCII Section Checks"};
  struct Row {
    const char* fixture;
    const char* marks;
    const char* selected;  // details of the check selected after the run
  };
  const Row rows[] = {
      {"pass_20.las", "P:PPPPPP P:PPPPPP P:PPP P:PPPPPPP P:PP P:PPPPPPP P:PPP", "1a:  Check OK"},
      {"lf_only_20.las", "F:PPPFPP N:NNNNNN N:NNN N:NNNNNNN N:NN N:NNNNNNN N:NNN",
       "1d: Unix Line Feed (ASCII 10) terminated "},
      {"no_wrap_20.las", "P:PPPPPP F:PPFPNN N:NNN N:NNNNNNN N:NN N:NNNNNNN N:NNN",
       "2c: WRAP mnemonic missing. "},
  };
  const ResultModel& model = *window->resultModel();
  auto* grid = child<QTreeView>("fg");
  auto* details = child<QPlainTextEdit>("errAt");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.fixture);
    const std::string las = openFixture(row.fixture);
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(window->windowTitle().toStdString(), "Zorvik (" + las + ")");
    EXPECT_EQ(child<QLabel>("statusLine")->text(), "Ready");
    EXPECT_TRUE(child<QTabWidget>("tabb")->isEnabled());
    EXPECT_EQ(readSetting("lasFile", ""), las);
    QStringList groups;
    for (int g = 0; g < groupRows(); ++g) groups << model.index(g, 0).data().toString();
    EXPECT_EQ(groups, groups20);
    EXPECT_EQ(gridMarks(model), row.marks);
    EXPECT_EQ(details->toPlainText(), row.selected);
  }
  // The last file's failed group holds an undecided check; a result never written in a group
  // the run did not reach reads as passed in the panel.
  grid->setCurrentIndex(model.index(4, 0, model.index(1, 0)));
  EXPECT_EQ(details->toPlainText(), "2e:  Check Not Performed");
  grid->setCurrentIndex(model.index(0, 0, model.index(6, 0)));
  EXPECT_EQ(details->toPlainText(), "7a:  Check OK");
}

// The grid, the details panel and the progress caption tell what the file's report tells: a row
// the report lists as passed is passed here, an undecided one not performed, and the caption
// ends on the report's verdict.
TEST_F(WindowTest, GridDetailsAndCaptionShowTheReportsOutcome) {
  const std::string cert2 = ZORVIK_TEST_DATA "/cert2/";
  const std::string cert3 = ZORVIK_TEST_DATA "/cert3/";
  const char* const kPassed20 = "P:PPPPPP P:PPPPPP P:PPP P:PPPPPPP P:PP P:PPPPPPP P:PPP";
  const char* const kPassed30To7 =
      "P:PPPPPPP P:PPPPPPPPP P:PPPPPPPPPPPPPP P:PPPPPPPPPPP P:PPPPPP P:PPPPPPP P:PPP";
  struct Row {
    std::string fixture;
    std::string marks;
    int group, check;     // the row selected, 0-based
    std::string details;  // what the panel shows for it
    const char* caption;
  };
  const Row rows[] = {
      // Without the wrap checks a WRAP YES line over 78 characters is not judged at all.
      {cert2 + "g7_line_too_long_wrap.las", kPassed20, 6, 2, "7c:  Check OK",
       "LAS file PASSED Ver 2 Certification"},
      // The missing country sets are a note on a passed row.
      {cert2 + "v2_well_country_note.las", kPassed20, 4, 1,
       "5b:  Check OK\nNote: Country Specific mnemonics: CDN set missing,  PROV, UWI,  ; USA set "
       "missing, STAT, CNTY, CTRY, API, ",
       "LAS file PASSED Ver 2 Certification"},
      // An unnumbered array element leaves the other array rows undecided.
      {cert3 + "g9_unnumbered.las", std::string(kPassed30To7) + " P:PP F:FNNNN", 8, 1,
       "9b:  Check Not Performed", "LAS file FAILS Ver 3 Certification"},
      // A line naming itself is also a circular association, and so is the line leading to it.
      {cert3 + "g8_self_reference.las", std::string(kPassed30To7) + " F:PF N:NNNNN", 7, 1,
       "8b: Line was like : BS.MM    215.9 : BIT SIZE | BS\nCircular Association at line: \n"
       "BS.MM    215.9 : BIT SIZE | BS\nCircular Association at line: \n"
       "GR.GAPI     : GAMMA RAY | BS\n",
       "LAS file FAILS Ver 3 Certification"},
  };
  window->session().doWrap = false;
  const ResultModel& model = *window->resultModel();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.fixture);
    openFixture(QString::fromStdString(row.fixture));
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(gridMarks(model), row.marks);
    child<QTreeView>("fg")->setCurrentIndex(model.index(row.check, 0, model.index(row.group, 0)));
    EXPECT_EQ(child<QPlainTextEdit>("errAt")->toPlainText().toStdString(), row.details);
    EXPECT_EQ(child<QProgressBar>("progLab")->format().toStdString(), row.caption);
  }
}

TEST_F(WindowTest, OptionsFlipFlagsPanelsAndSavedSettings) {
  openFixture("no_wrap_20.las");
  const ResultModel& model = *window->resultModel();
  struct Row {
    const char* action;
    bool Session::*flag;
    // The panel, its captions when on and off, the setting: "" when the option has none.
    const char *panel, *onCaption, *offCaption, *settingKey;
  };
  const Row rows[] = {
      {"opt_M_0", &Session::doWrap, "stat_0", "Do Wrap", "No Wrap", "doWrap"},
      {"opt_M_1", &Session::showDetails, "", "", "", ""},
      {"opt_M_2", &Session::writeLog, "stat_1", "Log File", "No Log", "writeLog"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.action);
    QAction* action = child<QAction>(row.action);
    ASSERT_NE(action, nullptr);
    const bool before = window->session().*row.flag;
    EXPECT_EQ(action->isChecked(), before);
    for (const bool expected : {!before, before}) {
      action->trigger();
      EXPECT_EQ(action->isChecked(), expected);
      EXPECT_EQ(window->session().*row.flag, expected);
      if (*row.panel != '\0') {
        EXPECT_EQ(child<QLabel>(row.panel)->text(), expected ? row.onCaption : row.offCaption);
        EXPECT_EQ(readSetting(row.settingKey, "absent"), expected ? "-1" : "0");
      }
      // The finding line under the failed check shows only with the details option.
      EXPECT_EQ(model.rowCount(model.index(2, 0, model.index(1, 0))),
                window->session().showDetails);
    }
  }
  EXPECT_TRUE(messages.empty());
}

TEST_F(WindowTest, RepeatCertificationRunsAgainOnlyWhileTheFileExists) {
  const std::string las = openFixture("pass_20.las");
  for (const bool deleted : {false, true}) {
    SCOPED_TRACE(deleted);
    if (deleted) {
      ASSERT_TRUE(QFile::remove(QString::fromStdString(las)));
    }
    window->resultModel()->clear();
    window->session().statusLine = "untouched";
    trigger("file_M_1");
    EXPECT_EQ(groupRows(), deleted ? 0 : 7);
    EXPECT_EQ(window->session().statusLine, deleted ? "untouched" : "Ready");
  }
  EXPECT_TRUE(messages.empty());
}

TEST_F(WindowTest, EscapeDuringARunAsksAndCancelsOnYes) {
  struct Row {
    const char* file;
    QMessageBox::StandardButton answer;
    int groups;  // 0 when cancelled
  };
  const Row rows[] = {{"pass_20.las", QMessageBox::Yes, 0},
                      {"pass_20.las", QMessageBox::No, 7},
                      {ZORVIK_EXAMPLES "/example_30.las", QMessageBox::Yes, 0},
                      {ZORVIK_EXAMPLES "/example_30.las", QMessageBox::No, 9}};
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.file) + (row.answer == QMessageBox::Yes ? " Yes" : " No"));
    messages.clear();
    answers = {row.answer};
    window->resultModel()->clear();
    // The key waits in the event queue until the driver lets events run between two checks.
    QApplication::postEvent(child<QTreeView>("fg"),
                            new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
    openFixture(row.file);
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].title, "Please Confirm!");
    EXPECT_EQ(messages[0].text, "Do you want to cancel the certification in progress?");
    EXPECT_EQ(messages[0].defaultButton, QMessageBox::No);
    EXPECT_EQ(child<QTabWidget>("tabb")->isEnabled(), row.groups != 0);
    EXPECT_EQ(groupRows(), row.groups);
    // The caption tells how the run ended, not which check it was at.
    const std::string version = row.groups == 9 ? "3" : "2";
    EXPECT_EQ(child<QProgressBar>("progLab")->format().toStdString(),
              row.groups == 0 ? "Certification cancelled"
                              : "LAS file PASSED Ver " + version + " Certification");
    EXPECT_EQ(child<QLabel>("statusLine")->text(), "Ready");
    EXPECT_FALSE(window->certifying());
    EXPECT_FALSE(window->cancelRequested());
  }
}

TEST_F(WindowTest, EscapeOutsideARunIsACancelRequestOnlyInTheMainWindow) {
  QWidget otherWindow;  // a box or dialog of its own, where Escape only closes it
  QWidget* tabs = child<QTabWidget>("tabb");
  for (const auto& [target, key, flag] :
       {std::tuple{tabs, Qt::Key_A, false}, std::tuple{&otherWindow, Qt::Key_Escape, false},
        std::tuple{tabs, Qt::Key_Escape, true}}) {
    SCOPED_TRACE(::testing::Message()
                 << (target == tabs ? "main window " : "other window ") << key);
    window->clearCancelRequest();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(target, &press);
    EXPECT_EQ(window->cancelRequested(), flag);
  }
  EXPECT_TRUE(messages.empty());
}

TEST_F(WindowTest, PrintingWithoutAPrinterWritesTheReportAsPdf) {
  const QString pdftotext = QStandardPaths::findExecutable("pdftotext");
  if (pdftotext.isEmpty()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
  openFixture("pass_20.las");
  saveFileAnswer = QDir(scratch.path()).filePath("result.pdf");
  trigger("file_M_5");
  QProcess extract;
  extract.start(pdftotext, {"-layout", saveFileAnswer, "-"});
  ASSERT_TRUE(extract.waitForFinished(30000));
  const QString text = QString::fromUtf8(extract.readAllStandardOutput());
  EXPECT_TRUE(text.contains("Result: LAS file PASSED Ver 2 Certification")) << text.toStdString();
  EXPECT_TRUE(text.contains("LAS Certification Result for:")) << text.toStdString();
}

TEST_F(WindowTest, ClosingSavesTheSettingsThatTheNextBatchRunReads) {
  const QString las = QDir(scratch.path()).filePath("data/pass_20.las");
  ASSERT_TRUE(QFile::copy(ZORVIK_TEST_DATA "/ui/pass_20.las", las));
  const QString log = QDir(scratch.path()).filePath("data/batch.log");
  auto batchRun = [&] {
    QProcess zorvik;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_CONFIG_HOME", QDir(scratch.path()).filePath("config"));
    zorvik.setProcessEnvironment(env);
    zorvik.start(ZORVIK_EXE, {las, log});
    EXPECT_TRUE(zorvik.waitForFinished(60000));
    return QFile::exists(log);
  };
  // A fresh store remembers no LAS file, and batch runs are refused until one is.
  EXPECT_FALSE(batchRun());
  window->session().lasFile = las.toStdString();
  window->session().writeLog = true;
  EXPECT_TRUE(window->close());
  EXPECT_EQ(readSetting("lasFile", ""), las.toStdString());
  EXPECT_EQ(readSetting("writeLog", ""), "-1");
  EXPECT_TRUE(batchRun());
}

// Not run with the tests: tools/screenshot.sh runs it under Xvfb to picture the window for the
// README after certifying an example file.
// Repair from the button or the menu: a Yes/No box naming the file, then repair-and-certify
// rounds, the grid of the last certification and the change list in a box.
TEST_F(WindowTest, RepairAsksNamingTheFileThenCertifiesAndListsTheChanges) {
  const char* passed = "P:PPPPPP P:PPPPPP P:PPP P:PPPPPPP P:PP P:PPPPPPP P:PPP";
  struct Row {
    const char* fixture;
    const char* command;
    QMessageBox::StandardButton answer;
    bool changed;
    const char* marks;
    const char* listed;  // in the text of the last box
  };
  const Row rows[] = {
      {"lf_only_20.las", "tBut_2", QMessageBox::Yes, true, passed, "(check 1.4): line ends"},
      {"no_wrap_20.las", "opt_M_3", QMessageBox::Yes, true, passed,
       "(check 2.3): ~Version line added"},
      {"lf_only_20.las", "tBut_2", QMessageBox::No, false,
       "F:PPPFPP N:NNNNNN N:NNN N:NNNNNNN N:NN N:NNNNNNN N:NNN", nullptr},
      {"pass_20.las", "opt_M_3", QMessageBox::Yes, false, passed, "Nothing was repaired."},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.fixture) + " " + row.command);
    const std::string las = openFixture(row.fixture);
    const QByteArray before = [&] {
      QFile f(QString::fromStdString(las));
      return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }();
    messages.clear();
    answers = {row.answer};
    if (std::string(row.command) == "tBut_2") {
      child<QPushButton>(row.command)->click();
    } else {
      trigger(row.command);
    }
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages[0].title, "Attempt Repair");
    EXPECT_EQ(messages[0].buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_TRUE(messages[0].text.contains(QString::fromStdString(las)));
    QFile f(QString::fromStdString(las));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll() != before, row.changed);
    EXPECT_EQ(gridMarks(*window->resultModel()), row.marks);
    if (row.listed == nullptr) {
      EXPECT_EQ(messages.size(), 1u);
    } else {
      ASSERT_EQ(messages.size(), 2u);
      EXPECT_EQ(messages[1].title, "Attempt Repair");
      EXPECT_TRUE(messages[1].text.contains(QString::fromLatin1(row.listed)))
          << messages[1].text.toStdString();
    }
  }
  EXPECT_TRUE(textPrompts.isEmpty());
}

// A repair that may not replace the file (here a second hard link would keep the old content)
// leaves it as it was, shows the error box and says in the command log which file and why.
TEST_F(WindowTest, ARefusedRepairLeavesTheFileAndSaysWhyInTheCommandLog) {
  const std::string las = openFixture("lf_only_20.las");
  const QString link = QDir(scratch.path()).filePath(QStringLiteral("second_name.las"));
  ASSERT_EQ(::link(las.c_str(), link.toLocal8Bit().constData()), 0);
  QFile original(QString::fromStdString(las));
  ASSERT_TRUE(original.open(QIODevice::ReadOnly));
  const QByteArray before = original.readAll();
  original.close();
  messages.clear();
  answers = {QMessageBox::Yes};
  trigger("opt_M_3");
  ASSERT_EQ(messages.size(), 2u);
  EXPECT_EQ(messages[1].title, "Error Attempting Repair");
  ASSERT_TRUE(original.open(QIODevice::ReadOnly));
  EXPECT_EQ(original.readAll(), before);
  QFile log(QDir(scratch.path()).filePath(QStringLiteral("program/command.log")));
  ASSERT_TRUE(log.open(QIODevice::ReadOnly));
  const QString entries = QString::fromLatin1(log.readAll());
  EXPECT_TRUE(entries.contains(
      QString::fromStdString("Error: LAS file " + las + " could not be repaired. ")))
      << entries.toStdString();
}

TEST_F(WindowTest, RepairAsksForTheIndexUnitsOnlyWhenTheIndexChannelHasNone) {
  QFile source(QStringLiteral(ZORVIK_TEST_DATA "/ui/pass_20.las"));
  ASSERT_TRUE(source.open(QIODevice::ReadOnly));
  QString text = QString::fromLatin1(source.readAll());
  text.remove(QRegularExpression(QStringLiteral(" ?STRT\\.[^\\r]*\\r\\n")));
  text.replace(QRegularExpression(QStringLiteral("DEPT\\.\\S+")), QStringLiteral("DEPT. "));
  const QString path = QDir(scratch.path()).filePath(QStringLiteral("no_units.las"));
  QFile out(path);
  ASSERT_TRUE(out.open(QIODevice::WriteOnly));
  out.write(text.toLatin1());
  out.close();
  openFixture(path);
  answers = {QMessageBox::Yes};
  textAnswer = QStringLiteral("FT");
  trigger("opt_M_3");
  EXPECT_EQ(textPrompts,
            QStringList{QStringLiteral("Please enter the index units (FT, M, S etc)")});
  ASSERT_FALSE(messages.empty());
  EXPECT_TRUE(messages.back().text.contains(QStringLiteral("STRT.FT")))
      << messages.back().text.toStdString();
}

// Convert! proposes the "_ver3.las" name, converts with the Conversions tab's options and
// certifies the new file, which becomes the current one.
TEST_F(WindowTest, ConvertWritesTheChosenNameWithTheTabsOptionsAndCertifiesIt) {
  const std::string las = openFixture("pass_20.las");
  const QString output = QDir(scratch.path()).filePath(QStringLiteral("data/converted.las"));
  struct Row {
    QString answer;  // empty: the save dialog is cancelled
    const char* delimiter;
    const char* title;
  };
  const Row rows[] = {{QString(), "dlmOpt_0", "logOpt_1"},
                      {output, "dlmOpt_2", "logOpt_1"},
                      {output, "dlmOpt_0", "logOpt_0"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.answer.toStdString() + " " + row.delimiter + " " + row.title);
    openFixture("pass_20.las");  // the converted file, 3.0, offers no conversion
    messages.clear();
    saveFileAnswer = row.answer;
    child<QRadioButton>(row.delimiter)->setChecked(true);
    child<QRadioButton>(row.title)->setChecked(true);
    child<QPushButton>("cnvBut")->click();
    EXPECT_EQ(proposedSaveFile.toStdString(), las.substr(0, las.size() - 4) + "_ver3.las");
    if (row.answer.isEmpty()) {
      EXPECT_TRUE(messages.empty());
      EXPECT_FALSE(QFile::exists(output));
      continue;
    }
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].title, "Convert!");
    EXPECT_EQ(window->session().lasFile, output.toStdString());
    EXPECT_EQ(window->windowTitle(), "Zorvik (" + output + ")");
    EXPECT_EQ(gridMarks(*window->resultModel()),
              "P:PPPPPPP P:PPPPPPPPP P:PPPPPPPPPPPPPP P:PPPPPPPPPPP P:PPPPPP P:PPPPPPP P:PPP P:PP "
              "P:PPPPP");
    QFile f(output);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    EXPECT_EQ(bytes.contains("~Log_Data | Log_Definition"), std::string(row.title) == "logOpt_1");
    EXPECT_EQ(bytes.contains("TAB : Data item delimiter"),
              std::string(row.delimiter) == "dlmOpt_2");
  }
}

TEST_F(WindowTest, DISABLED_Screenshot) {
  window->resize(960, 680);
  openFixture(qEnvironmentVariable("ZORVIK_SCREENSHOT_LAS", ZORVIK_EXAMPLES "/example_30.las"));
  for (int i = 0; i < 20; ++i) {
    QApplication::processEvents();
    QThread::msleep(25);
  }
  ASSERT_TRUE(window->grab().save(qEnvironmentVariable("ZORVIK_SCREENSHOT", "window.png")));
}

}  // namespace
}  // namespace zorvik::testing
