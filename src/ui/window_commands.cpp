// The window's commands: certifying (open, redo), print, copy, the options, repair, conversion,
// the content test, and what the grid and its details panel do.
#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QTreeView>
#include <algorithm>
#include <optional>

#include "base/command_log.h"
#include "base/file_helpers.h"
#include "checks/report.h"
#include "run/interactive_run.h"
#include "run/settings.h"
#include "transform/convert.h"
#include "transform/repair.h"
#include "transform/temp_files.h"
#include "ui/check_details.h"
#include "ui/main_window.h"
#include "ui/printing.h"
#include "ui/qt_strings.h"
#include "ui/result_model.h"

namespace zorvik {

void CertifyWindow::certify(bool newFile) {
  // Events run between checks, so a command could try to start a run inside a run.
  if (certifying_) return;
  certifying_ = true;
  if (newFile) {
    doCertifyWork(session_, lastRun_, this);
  } else {
    runInteractive(session_, lastRun_, this);
  }
  certifying_ = false;
  setBusyPointer(false);
}

void CertifyWindow::openLasForCertification() {
  if (certifying_) return;
  removeTemporaryFiles();
  const QString chosen = services_.chooseLasFile(this, fromStd(session_.lasFile));
  if (chosen.isEmpty()) return;
  session_.lasFile = toStd(QDir::toNativeSeparators(chosen));
  certify(true);
}

void CertifyWindow::openGivenFile(const std::string& lasFile) {
  if (certifying_) return;
  removeTemporaryFiles();
  session_.lasFile = lasFile;
  certify(true);
}

void CertifyWindow::repeatCertification() {
  if (!fileExists(session_.lasFile)) return;
  certify(false);
}

void CertifyWindow::printResult() {
  const QString report = fromStd(buildReport(lastRun_));
  if (services_.hasPrinter()) {
    QPrinter printer(QPrinter::HighResolution);
    printText(report, printer);
    return;
  }
  // No printer on this system: offer the result as a PDF file instead.
  const QString proposed = fromStd(changeExtension(session_.lasFile, "pdf"));
  const QString pdf = services_.chooseSaveFile(
      this, QStringLiteral("No printer found: save the certification result as PDF"), proposed,
      QStringLiteral("PDF files (*.pdf)"));
  if (pdf.isEmpty()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(pdf);
  printText(report, printer);
}

void CertifyWindow::optionsChanged() {
  Session& state = session_;
  state.doWrap = opt_[0]->isChecked();
  state.showDetails = opt_[1]->isChecked();
  state.writeLog = opt_[2]->isChecked();
  model_->setShowDetails(state.showDetails);
  showOptionStates();
  saveSettings(session_);
}

void CertifyWindow::attemptRepair() {
  if (certifying_) return;
  Session& state = session_;
  if (state.lasFile.empty() || !fileExists(state.lasFile)) return;
  if (!askYesNo("Attempt Repair", "Repair " + state.lasFile +
                                      "?\r\n\r\nThe file will be replaced by its repaired copy."))
    return;

  RepairRequest request;
  request.file = state.lasFile;
  std::optional<std::string> units;  // asked once, whatever the number of rounds
  request.askIndexUnits = [this, &units](const std::string& prompt) {
    if (!units)
      units = toStd(services_.askText(this, QStringLiteral("Attempt Repair"), fromStd(prompt)));
    return *units;
  };

  // The grid shows the certification of the file as it is: its failing rows start the rounds.
  if (!lastRun_.isV3()) request.found = failingRows(lastRun_.table2);
  RepairResult result;
  try {
    result = repairInRounds(request, [this, &state]() -> std::optional<std::vector<CatalogueRow>> {
      state.repairChoice = 2;
      showOptionStates();
      runInteractive(state, lastRun_, this);
      if (lastRun_.isV3()) return std::nullopt;
      return failingRows(lastRun_.table2);
    });
  } catch (const std::exception& fault) {
    result.outcome = RepairOutcome::Failed;
    result.error = fault.what();
  }
  if (result.outcome == RepairOutcome::Failed) {
    // The box says only that something went wrong; the command log keeps which file and why
    // (a read-only or hard-linked file, a full disk...).
    std::string why = result.error.empty() ? std::string("an unexpected error") : result.error;
    if (!why.ends_with('.')) why += '.';
    writeCommandLog(CommandLogHeader{state.lasFile, state.logFile, state.statusLine},
                    "Error: LAS file " + state.lasFile + " could not be repaired. " + why);
    message(QMessageBox::Critical, QStringLiteral("Error Attempting Repair"),
            QStringLiteral("An unexpected error happened during attempted repair."));
    return;
  }
  const std::vector<Change>& done = result.changes;
  const std::string text =
      done.empty() ? std::string("Nothing was repaired.") : describeChanges(done);
  message(QMessageBox::Information, QStringLiteral("Attempt Repair"), fromStd(text));
}

void CertifyWindow::copyResult() {
  QApplication::clipboard()->setText(model_->plainText());
}

void CertifyWindow::convert() {
  if (certifying_) return;
  const QString output = services_.chooseSaveFile(this, QStringLiteral("Convert!"),
                                                  fromStd(version3FileName(session_.lasFile)),
                                                  QStringLiteral("Log Ascii Standard (*.las)"));
  if (output.isEmpty()) return;
  ConvertRequest request;
  request.input = session_.lasFile;
  request.output = toStd(output);
  request.titles = logOpt_->checkedId() == 1 ? LogSectionTitles::LogPrefixed
                                             : LogSectionTitles::ParameterCurveAscii;
  const DataDelimiter delimiters[] = {DataDelimiter::Comma, DataDelimiter::Space,
                                      DataDelimiter::Tab};
  request.delimiter = delimiters[std::clamp(dlmOpt_->checkedId(), 0, 2)];
  request.workFolder = programFolder();
  const ConvertResult result = convertFile(request);
  if (result.outcome != ConvertOutcome::Written) {
    message(QMessageBox::Critical, QStringLiteral("Error Attempting Conversion"),
            QStringLiteral("An unexpected error happened during attempted conversion."));
    return;
  }
  message(QMessageBox::Information, QStringLiteral("Convert!"),
          QStringLiteral("The version 3.0 file was written to %1\n\n%2")
              .arg(output, fromStd(describeChanges(result.changes))));
  // The converted file becomes the current one, so its certification is what the window shows.
  session_.lasFile = result.output;
  doCertifyWork(session_, lastRun_, this);
}

void CertifyWindow::testNow() {
  // The content compliance test is deliberately not offered in this release.
  message(QMessageBox::Warning, QStringLiteral("Sorry..."),
          QStringLiteral("Test is not available at this time"));
}

void CertifyWindow::refreshContentTab() {
  const QDir folder(fromStd(dataFolder()));
  const QStringList files =
      folder.entryList({QStringLiteral("*.def")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
  defFile_->clear();
  defFile_->addItems(files);
  orgLst_->clear();
  for (const QString& file : files) orgLst_->addItem(QFileInfo(file).completeBaseName());
}

void CertifyWindow::expandAll() {
  fg_->expandAll();
}

void CertifyWindow::collapseAll() {
  fg_->collapseAll();
}

void CertifyWindow::showCheckDetails(const QModelIndex& index) {
  const std::string key = toStd(index.data(ResultModel::KeyRole).toString());
  QString text = fromStd(checkDetails(model_->table(), key));
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  errAt_->setPlainText(text);
}

}  // namespace zorvik
