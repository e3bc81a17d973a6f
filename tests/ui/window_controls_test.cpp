// The window's controls, menus, options and the commands that need no certification run.
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>

#include "run/run_state.h"
#include "run/settings.h"
#include "window_fixture.h"

namespace zorvik::testing {
namespace {

TEST_F(WindowTest, ControlsCarryTheirNamesAndCaptions) {
  struct Row {
    const char* name;
    const char* caption;
  };
  const Row buttons[] = {{"tBut_0", "Open LAS for Certification"},
                         {"tBut_1", "Redo Certification"},
                         {"tBut_2", "Attempt Repair"},
                         {"tBut_3", "Edit LAS"},
                         {"tBut_5", "Print result"},
                         {"tBut_6", "Help Contents"},
                         {"compTestBut", "Test Now"},
                         {"cnvBut", "Convert!"},
                         {"logOpt_0", "~Parameter ~Curve ~ASCII"},
                         {"logOpt_1", "~Log_Parameter ~Log_Definition ~Log_Data"},
                         {"dlmOpt_0", "Comma"},
                         {"dlmOpt_1", "Space"}};
  for (const Row& row : buttons) {
    SCOPED_TRACE(row.name);
    if (auto* button = child<QAbstractButton>(row.name)) {
      EXPECT_EQ(button->text(), row.caption);
    }
  }
  EXPECT_EQ(window->findChild<QPushButton*>("tBut_4"), nullptr);

  const Row actions[] = {{"file_M_0", "&Open LAS for Certification"},
                         {"file_M_1", "&Repeat Certification"},
                         {"file_M_3", "&Edit LAS"},
                         {"file_M_5", "&Print Certification Result"},
                         {"file_M_7", "&View LAS Standards Document"},
                         {"file_M_9", "E&xit"},
                         {"file_m1_0", "For Just Certified LAS Version"},
                         {"file_m1_1", "Ver &3.0 (pdf)"},
                         {"file_m1_2", "Ver &2.0"},
                         {"file_m1_3", "Ver &1.2"},
                         {"edit_M_0", "&Copy"},
                         {"opt_M_0", "Do &WRAP Checks (Ver 1.2/2 only)"},
                         {"opt_M_1", "Show D&etails"},
                         {"opt_M_2", "&Write Log File"},
                         {"opt_M_3", "Attempt LAS &Error Repair (1.2/2 only)"},
                         {"help_M_0", "&Contents"},
                         {"help_M_2", "&Technical Support"},
                         {"help_M_3", "LAS on the &WWW"},
                         {"help_M_5", "&About Zorvik"},
                         {"pop_1_3", "Expand All"},
                         {"pop_1_4", "Colllapse All"}};
  for (const Row& row : actions) {
    SCOPED_TRACE(row.name);
    if (auto* action = child<QAction>(row.name)) {
      EXPECT_EQ(action->text(), row.caption);
    }
  }

  const Row menus[] = {{"file_M", "&File"},
                       {"edit_M", "&Edit"},
                       {"opt_M", "&Options"},
                       {"help_M", "&Help"},
                       {"file_m1", "&View LAS Standards Document"}};
  for (const Row& row : menus) {
    SCOPED_TRACE(row.name);
    if (auto* menu = child<QMenu>(row.name)) {
      EXPECT_EQ(menu->title(), row.caption);
    }
  }

  auto* tabs = child<QTabWidget>("tabb");
  ASSERT_EQ(tabs->count(), 3);
  EXPECT_EQ(tabs->tabText(0), "Structure");
  EXPECT_EQ(tabs->tabText(1), "Content (not available)");
  EXPECT_EQ(tabs->tabText(2), "Conversions");
  EXPECT_EQ(child<QLabel>("statusLine")->text(), "Ready");
  EXPECT_NE(child<QProgressBar>("progLab"), nullptr);
  const char* tips[] = {"Show Details of each check", "Write Log File", "Attempt Repair or not"};
  for (int i = 0; i < 3; ++i) {
    const std::string name = "stat_" + std::to_string(i);
    if (auto* panel = child<QLabel>(name.c_str())) {
      EXPECT_EQ(panel->toolTip(), tips[i]);
    }
  }
}

TEST_F(WindowTest, OptionsFlipFlagsPanelsAndSavedSettings) {
  struct Row {
    const char* action;
    bool RunState::*flag;
    const char* panel;  // "" when the option has no panel
    const char* onCaption;
    const char* offCaption;
    const char* settingKey;  // "" when the option is not remembered
  };
  const Row rows[] = {
      {"opt_M_0", &RunState::doWrap, "stat_0", "Do Wrap", "No Wrap", "doWrap"},
      {"opt_M_1", &RunState::showDetails, "", "", "", ""},
      {"opt_M_2", &RunState::writeLog, "stat_1", "Log File", "No Log", "writeLog"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.action);
    QAction* action = child<QAction>(row.action);
    ASSERT_NE(action, nullptr);
    const bool before = runState().*row.flag;
    EXPECT_EQ(action->isChecked(), before);
    for (const bool expected : {!before, before}) {
      action->trigger();
      EXPECT_EQ(action->isChecked(), expected);
      EXPECT_EQ(runState().*row.flag, expected);
      if (*row.panel != '\0') {
        EXPECT_EQ(child<QLabel>(row.panel)->text(), expected ? row.onCaption : row.offCaption);
      }
      if (*row.settingKey != '\0') {
        EXPECT_EQ(readSetting(row.settingKey, "absent"), expected ? "-1" : "0");
      }
    }
  }
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(WindowTest, BoxesOfTheCommandsNotOfferedYet) {
  runState().lasFile = copyFixture("pass_20.las");
  desktop.saveFileAnswer = QDir(scratch.path()).filePath("data/out_ver3.las");
  struct Row {
    const char* button;
    QMessageBox::Icon icon;
    const char* title;
    const char* text;
  };
  const Row rows[] = {
      {"compTestBut", QMessageBox::Warning, "Sorry...", "Test is not available at this time"},
      {"tBut_2", QMessageBox::Critical, "Error Attempting Repair",
       "An unexpected error happened during attempted repair."},
      {"cnvBut", QMessageBox::Critical, "Error Attempting Conversion",
       "An unexpected error happened during attempted conversion."},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.button);
    desktop.messages.clear();
    child<QAbstractButton>(row.button)->click();
    ASSERT_EQ(desktop.messages.size(), 1u);
    EXPECT_EQ(desktop.messages[0].icon, row.icon);
    EXPECT_EQ(desktop.messages[0].title, row.title);
    EXPECT_EQ(desktop.messages[0].text, row.text);
  }
  EXPECT_FALSE(QFile::exists(desktop.saveFileAnswer));

  // A conversion whose save dialog is cancelled does nothing.
  desktop.messages.clear();
  desktop.saveFileAnswer.clear();
  child<QAbstractButton>("cnvBut")->click();
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(WindowTest, StandardsDocumentsOpenFromTheProgramFolderOrAreReportedMissing) {
  QFile present(QDir(QString::fromStdString(programDir)).filePath("las20_standards.txt"));
  ASSERT_TRUE(present.open(QIODevice::WriteOnly));
  present.close();
  runState().lasVersion = 2.0f;
  struct Row {
    const char* action;
    const char* document;
    bool installed;
  };
  const Row rows[] = {{"file_m1_0", "las20_standards.txt", true},
                      {"file_m1_1", "LAS3_FileStructure.pdf", false},
                      {"file_m1_2", "las20_standards.txt", true},
                      {"file_m1_3", "las12_standards.txt", false}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.action);
    desktop.messages.clear();
    desktop.opened.clear();
    trigger(row.action);
    if (row.installed) {
      EXPECT_TRUE(desktop.messages.empty());
      ASSERT_EQ(desktop.opened.size(), 1u);
      EXPECT_EQ(desktop.opened[0].fileName(), row.document);
    } else {
      EXPECT_TRUE(desktop.opened.empty());
      ASSERT_EQ(desktop.messages.size(), 1u);
      EXPECT_EQ(desktop.messages[0].title, "File Not Found");
      EXPECT_EQ(desktop.messages[0].icon, QMessageBox::Information);
      EXPECT_EQ(desktop.messages[0].text,
                QStringLiteral("The LAS standards document you requested, \n\n%1\n\n, could not "
                               "be found. Re-install Zorvik to restore.")
                    .arg(row.document));
    }
  }
}

TEST_F(WindowTest, FileMenuNamesTheVersionJustCertified) {
  struct Row {
    float version;
    const char* caption;
  };
  for (const Row& row : {Row{NO_VERSION, "Just Certified Version:  (Ver 0.0)"},
                         Row{1.2f, "Just Certified Version:  (Ver 1.2)"}}) {
    SCOPED_TRACE(row.caption);
    runState().lasVersion = row.version;
    emit child<QMenu>("file_M")->aboutToShow();
    EXPECT_EQ(child<QAction>("file_m1_0")->text(), row.caption);
  }
}

TEST_F(WindowTest, DocumentsAndPagesOpenThroughTheDesktop) {
  runState().lasFile = copyFixture("pass_20.las");
  const QString program = QString::fromStdString(programDir);
  struct Row {
    const char* action;
    QUrl url;
  };
  const Row rows[] = {
      {"file_M_3", QUrl::fromLocalFile(QString::fromStdString(runState().lasFile))},
      {"help_M_0", QUrl::fromLocalFile(program + "/help/index.html")},
      {"help_M_2", QUrl(QUrl::fromLocalFile(program + "/help/index.html").toString() + "#support")},
      {"help_M_3", QUrl("https://www.cwls.org/products/#products-las")},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.action);
    desktop.opened.clear();
    trigger(row.action);
    ASSERT_EQ(desktop.opened.size(), 1u);
    EXPECT_EQ(desktop.opened[0], row.url);
  }
  EXPECT_TRUE(desktop.started.empty());
}

TEST_F(WindowTest, EditWithNoAssociatedProgramLetsTheUserChooseOne) {
  const std::string las = copyFixture("pass_20.las");
  runState().lasFile = las;
  desktop.openSucceeds = false;
  struct Row {
    const char* choice;
    size_t started;
  };
  for (const Row& row : {Row{"", 0}, Row{"/usr/bin/editor", 1}}) {
    SCOPED_TRACE(row.choice);
    desktop.started.clear();
    desktop.programChoice = row.choice;
    child<QPushButton>("tBut_3")->click();
    ASSERT_EQ(desktop.started.size(), row.started);
    if (row.started == 1) {
      EXPECT_EQ(desktop.started[0], (QStringList{row.choice, QString::fromStdString(las)}));
    }
  }
}

TEST_F(WindowTest, RightClickOnEditOpensTheLogFileOnlyWithTheLogOption) {
  runState().lasFile = copyFixture("pass_20.las");
  auto* edit = child<QPushButton>("tBut_3");
  for (const bool writeLog : {false, true}) {
    SCOPED_TRACE(writeLog);
    runState().writeLog = writeLog;
    desktop.opened.clear();
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), edit->mapToGlobal(QPointF(5, 5)),
                        Qt::RightButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(edit, &release);
    if (!writeLog) {
      EXPECT_TRUE(desktop.opened.empty());
      continue;
    }
    ASSERT_EQ(desktop.opened.size(), 1u);
    EXPECT_EQ(desktop.opened[0].fileName(), "pass_20.log");
  }
}

TEST_F(WindowTest, ContentTabListsTheDefinitionFiles) {
  const QDir program(QString::fromStdString(programDir));
  for (const char* name : {"Zeta.def", "alpha.def", "notes.txt"}) {
    QFile file(program.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  child<QTabWidget>("tabb")->setCurrentIndex(1);
  auto texts = [](QListWidget* list) {
    QStringList items;
    for (int i = 0; i < list->count(); ++i) items << list->item(i)->text();
    return items;
  };
  EXPECT_EQ(texts(child<QListWidget>("defFile")), (QStringList{"alpha.def", "Zeta.def"}));
  EXPECT_EQ(texts(child<QListWidget>("orgLst")), (QStringList{"alpha", "Zeta"}));
}

TEST_F(WindowTest, EscapeOutsideARunOnlySetsTheFlag) {
  QWidget otherWindow;  // a box or dialog of its own, where Escape only closes it
  struct Row {
    const char* name;
    QWidget* target;
    Qt::Key key;
    bool flag;
  };
  const Row rows[] = {{"other key", child<QTabWidget>("tabb"), Qt::Key_A, false},
                      {"other window", &otherWindow, Qt::Key_Escape, false},
                      {"main window", child<QTabWidget>("tabb"), Qt::Key_Escape, true}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    runState().escapePressed = false;
    QKeyEvent press(QEvent::KeyPress, row.key, Qt::NoModifier);
    QApplication::sendEvent(row.target, &press);
    EXPECT_EQ(runState().escapePressed, row.flag);
  }
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(WindowTest, AboutNamesTheProgramAndItsVersion) {
  trigger("help_M_5");
  ASSERT_EQ(desktop.messages.size(), 1u);
  EXPECT_EQ(desktop.messages[0].title, "About Zorvik");
  EXPECT_TRUE(desktop.messages[0].text.startsWith(QStringLiteral("Zorvik\nVersion %1.%2.%3")
                                                      .arg(ZORVIK_VERSION_MAJOR)
                                                      .arg(ZORVIK_VERSION_MINOR)
                                                      .arg(ZORVIK_VERSION_PATCH)));
}

}  // namespace
}  // namespace zorvik::testing
