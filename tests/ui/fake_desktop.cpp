#include "fake_desktop.h"

namespace zorvik::testing {

WindowServices FakeDesktop::services() {
  WindowServices s;
  s.messageBox = [this](QWidget*, const MessageRequest& request) {
    messages.push_back(request);
    if (!answers.empty()) {
      const QMessageBox::StandardButton answer = answers.front();
      answers.pop_front();
      return answer;
    }
    return request.defaultButton != QMessageBox::NoButton ? request.defaultButton : QMessageBox::Ok;
  };
  s.chooseLasFile = [this](QWidget*, const QString&) { return lasFileToOpen; };
  s.chooseSaveFile = [this](QWidget*, const QString& title, const QString&, const QString&) {
    saveDialogTitles.push_back(title);
    return saveFileAnswer;
  };
  s.chooseProgram = [this](QWidget*, const QString&) { return programChoice; };
  s.askText = [](QWidget*, const QString&, const QString&) { return QString(); };
  s.openUrl = [this](const QUrl& url) {
    opened.push_back(url);
    return openSucceeds;
  };
  s.startProgram = [this](const QString& program, const QStringList& arguments) {
    started.push_back(QStringList{program} + arguments);
    return true;
  };
  s.hasPrinter = [this] { return hasPrinter; };
  return s;
}

}  // namespace zorvik::testing
