#include "window_fixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QTreeView>

#include "run/command_log.h"
#include "run/run_state.h"
#include "run/settings.h"
#include "ui/result_model.h"

namespace zorvik::testing {

void WindowTest::SetUp() {
  ASSERT_TRUE(scratch.isValid());
  const QDir root(scratch.path());
  ASSERT_TRUE(root.mkpath("config") && root.mkpath("program") && root.mkpath("data"));
  qputenv("XDG_CONFIG_HOME", root.filePath("config").toLocal8Bit());
  programDir = root.filePath("program").toStdString();
  setProgramFolder(programDir);
  resetRunState();
  runState().window = nullptr;
  readSettings();
  window = std::make_unique<CertifyWindow>(desktop.services());
  window->show();
}

void WindowTest::TearDown() {
  window.reset();
  runState().window = nullptr;
  setProgramFolder("");
}

std::string WindowTest::copyFixture(const std::string& name) {
  const QString source =
      QFileInfo(QString::fromStdString(name)).isAbsolute()
          ? QString::fromStdString(name)
          : QStringLiteral(ZORVIK_TEST_DATA "/ui/") + QString::fromStdString(name);
  const QString target = QDir(scratch.path()).filePath("data/" + QFileInfo(source).fileName());
  QFile::remove(target);
  EXPECT_TRUE(QFile::copy(source, target)) << source.toStdString();
  return target.toStdString();
}

void WindowTest::openFile(const std::string& path) {
  desktop.lasFileToOpen = QString::fromStdString(path);
  trigger("file_M_0");
}

void WindowTest::trigger(const char* actionName) {
  QAction* action = child<QAction>(actionName);
  if (action != nullptr) action->trigger();
}

std::vector<std::string> WindowTest::groupTexts() {
  const ResultModel* model = window->resultModel();
  std::vector<std::string> texts;
  for (int g = 0; g < model->rowCount(); ++g)
    texts.push_back(model->index(g, 0).data().toString().toStdString());
  return texts;
}

std::vector<std::string> WindowTest::checkMarks(int groupRow) {
  const ResultModel* model = window->resultModel();
  const QModelIndex group = model->index(groupRow, 0);
  std::vector<std::string> marks;
  for (int c = 0; c < model->rowCount(group); ++c)
    marks.push_back(model->index(c, 1, group).data().toString().toStdString());
  return marks;
}

std::string WindowTest::selectCheck(int groupRow, int checkRow) {
  const ResultModel* model = window->resultModel();
  child<QTreeView>("fg")->setCurrentIndex(model->index(checkRow, 0, model->index(groupRow, 0)));
  return child<QPlainTextEdit>("errAt")->toPlainText().toStdString();
}

}  // namespace zorvik::testing
