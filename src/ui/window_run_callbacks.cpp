// What a certification run shows and asks through the window: the caption, the status line and
// progress, the result tabs and grid, the questions and error boxes, the busy pointer.
#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTabWidget>
#include <QTreeView>
#include <algorithm>

#include "ui/main_window.h"
#include "ui/qt_strings.h"
#include "ui/result_model.h"

namespace zorvik {

void CertifyWindow::setTitle(const std::string& title) {
  setWindowTitle(fromStd(title));
}

void CertifyWindow::setStatusLine(const std::string& text) {
  session_.statusLine = text;
  statusLine_->setText(fromStd(text));
}

void CertifyWindow::setProgress(int percent, const std::string& caption) {
  progLab_->setValue(std::clamp(percent, 0, 100));
  progLab_->setFormat(fromStd(caption));
}

void CertifyWindow::prepareResultTabs(float version) {
  model_->clear();
  errAt_->clear();
  tabb_->setCurrentIndex(0);
  // Only files of the 1.2/2.0 rules can be converted to 3.0.
  tabb_->setTabEnabled(2, version != 3.0f);
}

void CertifyWindow::enableResultTabs(bool enabled) {
  tabb_->setEnabled(enabled);
}

void CertifyWindow::fillResultGrid(const CheckTable& table) {
  model_->setShowDetails(session_.showDetails);
  model_->showTable(table);
  errAt_->clear();
  // Groups open, and failed checks too; the first failed check (else the first check) is
  // selected so its details show at once.
  QModelIndex firstFailed;
  for (int g = 0; g < model_->rowCount(); ++g) {
    const QModelIndex group = model_->index(g, 0);
    fg_->expand(group);
    for (int c = 0; c < model_->rowCount(group); ++c) {
      const QModelIndex check = model_->index(c, 0, group);
      if (model_->data(model_->index(c, 1, group)).toString() != QLatin1String("Failed")) continue;
      fg_->expand(check);
      if (!firstFailed.isValid()) firstFailed = check;
    }
  }
  const QModelIndex shown =
      firstFailed.isValid() ? firstFailed : model_->index(0, 0, model_->index(0, 0));
  if (shown.isValid()) {
    fg_->setCurrentIndex(shown);
    fg_->scrollTo(shown);
  }
}

bool CertifyWindow::askYesNo(const std::string& title, const std::string& text) {
  return message(QMessageBox::Question, fromStd(title), fromStd(text),
                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool CertifyWindow::askOkCancel(const std::string& title, const std::string& text) {
  return message(QMessageBox::Critical, fromStd(title), fromStd(text),
                 QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

void CertifyWindow::showCritical(const std::string& title, const std::string& text) {
  message(QMessageBox::Critical, fromStd(title), fromStd(text));
}

void CertifyWindow::processEvents() {
  QCoreApplication::processEvents();
}

void CertifyWindow::setBusyPointer(bool busy) {
  if (busy == busyPointer_) return;
  busyPointer_ = busy;
  if (busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace zorvik
