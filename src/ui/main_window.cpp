// The window's frame: construction and teardown, the right clicks and closing, message boxes.
#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeView>

#include "base/file_helpers.h"
#include "run/settings.h"
#include "transform/temp_files.h"
#include "ui/escape_filter.h"
#include "ui/qt_strings.h"
#include "ui/result_model.h"

namespace zorvik {

CertifyWindow::CertifyWindow(WindowServices services, Session session, QWidget* parent)
    : QMainWindow(parent), services_(std::move(services)), session_(std::move(session)) {
  setObjectName(QStringLiteral("certify"));
  setWindowTitle(QStringLiteral("Zorvik"));
  model_ = new ResultModel(this);
  model_->setShowDetails(session_.showDetails);
  buildControls();
  buildMenus();
  buildStatusPanels();
  showOptionStates();

  escapeFilter_ = new EscapeFilter(this, [this] { cancelRequested_ = true; });
  qApp->installEventFilter(escapeFilter_);
  resize(900, 640);
}

CertifyWindow::~CertifyWindow() {
  qApp->removeEventFilter(escapeFilter_);
  if (busyPointer_) QApplication::restoreOverrideCursor();
}

QMessageBox::StandardButton CertifyWindow::message(QMessageBox::Icon icon, const QString& title,
                                                   const QString& text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton) {
  return services_.messageBox(this, MessageRequest{icon, title, text, buttons, defaultButton});
}

// ---- Mouse and window events ----------------------------------------------------------------

bool CertifyWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease &&
      static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
    const QPoint global = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    if (watched == tBut_[3]) {
      // With the log option on, the edit button's right click opens the run's log file.
      if (session_.writeLog && !session_.lasFile.empty())
        openDocument(fromStd(changeExtension(session_.lasFile, "log")));
      return true;
    }
    if (watched == fg_->viewport() || watched == errAt_->viewport()) {
      pop_->popup(global);
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

void CertifyWindow::closeEvent(QCloseEvent* event) {
  // The run lives on this window's thread; it must finish or be cancelled (Escape) first.
  if (certifying_) {
    event->ignore();
    return;
  }
  removeTemporaryFiles();
  saveSettings(session_);
  for (QWidget* other : QApplication::topLevelWidgets())
    if (other != this && other->isWindow() && other->isVisible()) other->close();
  event->accept();
}

}  // namespace zorvik
