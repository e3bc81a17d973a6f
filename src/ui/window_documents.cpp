// The commands that open documents and pages: the LAS file in its editor, the standards
// documents, the help pages, the web page, and the About box.
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include "base/command_log.h"
#include "ui/documents.h"
#include "ui/main_window.h"
#include "ui/qt_strings.h"

namespace zorvik {

namespace {

QString programFile(const QString& relative) {
  return QDir(fromStd(dataFolder())).filePath(relative);
}

}  // namespace

void CertifyWindow::editLas() {
  if (session_.lasFile.empty()) return;
  openDocument(fromStd(session_.lasFile));
}

void CertifyWindow::openDocument(const QString& pathOrUrl) {
  const QUrl url =
      pathOrUrl.contains(QStringLiteral("://")) ? QUrl(pathOrUrl) : QUrl::fromLocalFile(pathOrUrl);
  if (services_.openUrl(url) || !url.isLocalFile()) return;
  // No program is associated with the file: let the user pick one.
  const QString program = services_.chooseProgram(this, url.toLocalFile());
  if (!program.isEmpty()) services_.startProgram(program, {url.toLocalFile()});
}

void CertifyWindow::updateJustCertifiedCaption() {
  justCertified_->setText(fromStd(justCertifiedCaption(lastRun_.dialect.version)));
}

void CertifyWindow::viewStandardsDocument(int item) {
  const std::string document = standardsDocument(item, lastRun_.dialect.version);
  const QString path = programFile(fromStd(document));
  if (!QFileInfo::exists(path)) {
    message(QMessageBox::Information, QStringLiteral("File Not Found"),
            fromStd(documentNotFoundText(document)));
    return;
  }
  openDocument(path);
}

void CertifyWindow::helpContents() {
  openDocument(programFile(QString::fromLatin1(HELP_PAGE)));
}

void CertifyWindow::technicalSupport() {
  QUrl page = QUrl::fromLocalFile(programFile(QString::fromLatin1(HELP_PAGE)));
  page.setFragment(QString::fromLatin1(SUPPORT_ANCHOR));
  openDocument(page.toString());
}

void CertifyWindow::lasOnTheWeb() {
  openDocument(QString::fromLatin1(LAS_WEB_PAGE));
}

void CertifyWindow::about() {
  message(QMessageBox::Information, QStringLiteral("About Zorvik"),
          QStringLiteral("Zorvik\nVersion %1.%2.%3\n\nCertifies LAS well-log files of versions "
                         "1.2, 2.0 and 3.0.")
              .arg(ZORVIK_VERSION_MAJOR)
              .arg(ZORVIK_VERSION_MINOR)
              .arg(ZORVIK_VERSION_PATCH));
}

}  // namespace zorvik
