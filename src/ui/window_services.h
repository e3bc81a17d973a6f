// Everything the window asks of the desktop: message boxes, file dialogs, opening documents and
// programs, and whether a printer exists. Each is a replaceable function, so tests can answer
// dialogs and record what would have been opened; `desktopServices()` gives the real ones.
#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <functional>

class QWidget;

namespace zorvik {

struct MessageRequest {
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  QString title;
  QString text;
  QMessageBox::StandardButtons buttons = QMessageBox::Ok;
  QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
};

struct WindowServices {
  // A modal message box; gives back the button pressed.
  std::function<QMessageBox::StandardButton(QWidget* parent, const MessageRequest& request)>
      messageBox;
  // The open dialog for LAS files, starting at `startFile`; empty when cancelled.
  std::function<QString(QWidget* parent, const QString& startFile)> chooseLasFile;
  // A save dialog proposing `proposed`; empty when cancelled.
  std::function<QString(QWidget* parent, const QString& title, const QString& proposed,
                        const QString& filter)>
      chooseSaveFile;
  // Lets the user pick a program to open a file with; empty when cancelled.
  std::function<QString(QWidget* parent, const QString& file)> chooseProgram;
  // A line of text typed by the user; empty when cancelled.
  std::function<QString(QWidget* parent, const QString& title, const QString& prompt)> askText;
  // Opens a document or web page with the desktop's associated program; false when none is.
  std::function<bool(const QUrl& url)> openUrl;
  // Starts `program` with `arguments` without waiting for it; false when it could not start.
  std::function<bool(const QString& program, const QStringList& arguments)> startProgram;
  // True when the system has a printer to print on.
  std::function<bool()> hasPrinter;
};

WindowServices desktopServices();

}  // namespace zorvik
