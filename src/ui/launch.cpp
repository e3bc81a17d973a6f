// The program with its window: start-up opens the window when the command line is empty (or for
// `zorvik gui`); every other command line runs as in the program without one.
#include <QApplication>
#include <QTimer>
#include <cstdio>

#include "run/session.h"
#include "run/startup.h"
#include "ui/main_window.h"

namespace {

// Without a display the toolkit would abort; a note is kinder, and batch mode still works.
bool displayAvailable() {
  return !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
         !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

int runWindow(int argc, char** argv, const zorvik::Session& session, const std::string& lasFile) {
  if (!displayAvailable()) {
    std::fputs(
        "zorvik: no display to open the window on; give a LAS file and a log file to "
        "certify without one\n",
        stderr);
    return 0;
  }
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Zorvik"));
  zorvik::CertifyWindow window(zorvik::desktopServices(), session);
  window.show();
  if (!lasFile.empty())
    QTimer::singleShot(0, &window, [&window, &lasFile] { window.openGivenFile(lasFile); });
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  return zorvik::startUp(argc, argv, runWindow);
}
