// A desktop for window tests: answers the window's dialogs from fields set by the test and
// records every box shown and every file, page or program opened.
#pragma once

#include <QMessageBox>
#include <QString>
#include <QUrl>
#include <deque>
#include <functional>
#include <vector>

#include "ui/window_services.h"

namespace zorvik::testing {

struct FakeDesktop {
  std::vector<MessageRequest> messages;
  // Answers to boxes, in order; when none is queued a box answers its default button (or OK).
  std::deque<QMessageBox::StandardButton> answers;
  QString lasFileToOpen;
  QString saveFileAnswer;
  std::vector<QString> saveDialogTitles;
  std::vector<QUrl> opened;
  bool openSucceeds = true;
  QString programChoice;
  std::vector<QStringList> started;  // program followed by its arguments
  bool hasPrinter = false;

  WindowServices services();
};

}  // namespace zorvik::testing
