#include "ui/window_services.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QPrinterInfo>
#include <QProcess>

namespace zorvik {

namespace {

QMessageBox::StandardButton showMessage(QWidget* parent, const MessageRequest& request) {
  QMessageBox box(request.icon, request.title, request.text, request.buttons, parent);
  if (request.defaultButton != QMessageBox::NoButton) box.setDefaultButton(request.defaultButton);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

QString chooseLasFile(QWidget* parent, const QString& startFile) {
  QFileDialog dialog(parent, QStringLiteral("Open LAS for Certification"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(
      {QStringLiteral("Log Ascii Standard (*.las)"), QStringLiteral("All Files (*)")});
  dialog.setDefaultSuffix(QStringLiteral("las"));
  if (!startFile.isEmpty()) {
    const QFileInfo start(startFile);
    dialog.setDirectory(start.absolutePath());
    dialog.selectFile(start.fileName());
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

QString chooseSaveFile(QWidget* parent, const QString& title, const QString& proposed,
                       const QString& filter) {
  return QFileDialog::getSaveFileName(parent, title, proposed, filter);
}

QString chooseProgram(QWidget* parent, const QString& file) {
  return QFileDialog::getOpenFileName(
      parent, QStringLiteral("Open %1 with").arg(QFileInfo(file).fileName()),
      QStringLiteral("/usr/bin"));
}

QString askText(QWidget* parent, const QString& title, const QString& prompt) {
  return QInputDialog::getText(parent, title, prompt);
}

}  // namespace

WindowServices desktopServices() {
  WindowServices services;
  services.messageBox = showMessage;
  services.chooseLasFile = chooseLasFile;
  services.chooseSaveFile = chooseSaveFile;
  services.chooseProgram = chooseProgram;
  services.askText = askText;
  services.openUrl = [](const QUrl& url) { return QDesktopServices::openUrl(url); };
  services.startProgram = [](const QString& program, const QStringList& arguments) {
    return QProcess::startDetached(program, arguments);
  };
  services.hasPrinter = [] { return !QPrinterInfo::defaultPrinter().isNull(); };
  return services;
}

}  // namespace zorvik
