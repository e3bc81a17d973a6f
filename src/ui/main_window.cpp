#include "ui/main_window.h"

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeView>
#include <QVBoxLayout>
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
#include "ui/documents.h"
#include "ui/escape_filter.h"
#include "ui/printing.h"
#include "ui/result_model.h"

namespace zorvik {

namespace {

QString fromStd(const std::string& text) {
  return QString::fromStdString(text);
}
std::string toStd(const QString& text) {
  return text.toStdString();
}

QString programFile(const QString& relative) {
  return QDir(fromStd(dataFolder())).filePath(relative);
}

QString repairCaption(int repairChoice) {
  return repairChoice == 0 ? QStringLiteral("No Repair") : QStringLiteral("Repair");
}

QPushButton* makeButton(QWidget* parent, int index, const char* caption) {
  auto* button = new QPushButton(QString::fromLatin1(caption), parent);
  button->setObjectName(QStringLiteral("tBut_%1").arg(index));
  return button;
}

QAction* addItem(QMenu* menu, const QString& name, int index, const char* caption) {
  QAction* action = menu->addAction(QString::fromLatin1(caption));
  action->setObjectName(QStringLiteral("%1_%2").arg(name).arg(index));
  return action;
}

}  // namespace

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

// ---- Layout -------------------------------------------------------------------------------

void CertifyWindow::buildControls() {
  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);

  auto* buttons = new QHBoxLayout;
  const std::pair<int, const char*> captions[] = {{0, "Open LAS for Certification"},
                                                  {1, "Redo Certification"},
                                                  {2, "Attempt Repair"},
                                                  {3, "Edit LAS"},
                                                  {5, "Print result"},
                                                  {6, "Help Contents"}};
  for (const auto& [index, caption] : captions) {
    tBut_[index] = makeButton(central, index, caption);
    buttons->addWidget(tBut_[index]);
  }
  buttons->addStretch();
  layout->addLayout(buttons);
  connect(tBut_[0], &QPushButton::clicked, this, &CertifyWindow::openLasForCertification);
  connect(tBut_[1], &QPushButton::clicked, this, &CertifyWindow::repeatCertification);
  connect(tBut_[2], &QPushButton::clicked, this, &CertifyWindow::attemptRepair);
  connect(tBut_[3], &QPushButton::clicked, this, &CertifyWindow::editLas);
  connect(tBut_[5], &QPushButton::clicked, this, &CertifyWindow::printResult);
  connect(tBut_[6], &QPushButton::clicked, this, &CertifyWindow::helpContents);
  tBut_[3]->installEventFilter(this);

  tabb_ = new QTabWidget(central);
  tabb_->setObjectName(QStringLiteral("tabb"));
  layout->addWidget(tabb_, 1);

  // Structure: the result grid over the check details.
  auto* splitter = new QSplitter(Qt::Vertical, tabb_);
  splitter->setObjectName(QStringLiteral("errline"));
  fg_ = new QTreeView(splitter);
  fg_->setObjectName(QStringLiteral("fg"));
  fg_->setModel(model_);
  fg_->setFont(resultFont());
  fg_->setUniformRowHeights(true);
  fg_->setContextMenuPolicy(Qt::NoContextMenu);
  fg_->header()->setStretchLastSection(false);
  fg_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  fg_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  fg_->viewport()->installEventFilter(this);
  errAt_ = new QPlainTextEdit(splitter);
  errAt_->setObjectName(QStringLiteral("errAt"));
  errAt_->setReadOnly(true);
  errAt_->setFont(resultFont());
  errAt_->setContextMenuPolicy(Qt::NoContextMenu);
  errAt_->viewport()->installEventFilter(this);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 1);
  tabb_->addTab(splitter, QStringLiteral("Structure"));
  connect(fg_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& current) { showCheckDetails(current); });

  // Content: definition files, organizations and the compliance test.
  auto* content = new QWidget(tabb_);
  auto* contentLayout = new QGridLayout(content);
  defFile_ = new QListWidget(content);
  defFile_->setObjectName(QStringLiteral("defFile"));
  orgLst_ = new QListWidget(content);
  orgLst_->setObjectName(QStringLiteral("orgLst"));
  auto* orgCaption =
      new QLabel(QStringLiteral("*Select the Organization to test compliance"), content);
  auto* compliance = new QGroupBox(QStringLiteral("Compliance Result"), content);
  auto* complianceLayout = new QVBoxLayout(compliance);
  auto* compGrd = new QTableWidget(0, 2, compliance);
  compGrd->setObjectName(QStringLiteral("compGrd"));
  complianceLayout->addWidget(compGrd);
  auto* compTestBut = new QPushButton(QStringLiteral("Test Now"), content);
  compTestBut->setObjectName(QStringLiteral("compTestBut"));
  connect(compTestBut, &QPushButton::clicked, this, &CertifyWindow::testNow);
  contentLayout->addWidget(defFile_, 0, 0, 3, 1);
  contentLayout->addWidget(orgCaption, 0, 1);
  contentLayout->addWidget(orgLst_, 1, 1);
  contentLayout->addWidget(compTestBut, 2, 1);
  contentLayout->addWidget(compliance, 0, 2, 3, 1);
  tabb_->addTab(content, QStringLiteral("Content (not available)"));

  // Conversions: the options of a 2.0 to 3.0 conversion.
  auto* conversions = new QWidget(tabb_);
  auto* conversionLayout = new QVBoxLayout(conversions);
  auto* logBox = new QGroupBox(QStringLiteral("Log Data Section Titles"), conversions);
  logBox->setObjectName(QStringLiteral("logOpt"));
  auto* logLayout = new QVBoxLayout(logBox);
  logOpt_ = new QButtonGroup(this);
  const char* logTitles[] = {"~Parameter ~Curve ~ASCII",
                             "~Log_Parameter ~Log_Definition ~Log_Data"};
  for (int i = 0; i < 2; ++i) {
    auto* option = new QRadioButton(QString::fromLatin1(logTitles[i]), logBox);
    option->setObjectName(QStringLiteral("logOpt_%1").arg(i));
    option->setChecked(i == 0);
    logOpt_->addButton(option, i);
    logLayout->addWidget(option);
  }
  auto* dlmBox = new QGroupBox(QStringLiteral("Delimiter for Version 3.0"), conversions);
  dlmBox->setObjectName(QStringLiteral("dlmOpt"));
  auto* dlmLayout = new QHBoxLayout(dlmBox);
  dlmOpt_ = new QButtonGroup(this);
  const char* delimiters[] = {"Comma", "Space", "Tab"};
  for (int i = 0; i < 3; ++i) {
    auto* option = new QRadioButton(QString::fromLatin1(delimiters[i]), dlmBox);
    option->setObjectName(QStringLiteral("dlmOpt_%1").arg(i));
    option->setChecked(i == 1);
    dlmOpt_->addButton(option, i);
    dlmLayout->addWidget(option);
  }
  auto* note = new QLabel(
      QStringLiteral(
          "Set the options for Version 2 to Version 3.0 conversion, then click Convert!"),
      conversions);
  auto* cnvBut = new QPushButton(QStringLiteral("Convert!"), conversions);
  cnvBut->setObjectName(QStringLiteral("cnvBut"));
  connect(cnvBut, &QPushButton::clicked, this, &CertifyWindow::convert);
  conversionLayout->addWidget(logBox);
  conversionLayout->addWidget(dlmBox);
  conversionLayout->addWidget(note);
  conversionLayout->addWidget(cnvBut, 0, Qt::AlignLeft);
  conversionLayout->addStretch();
  tabb_->addTab(conversions, QStringLiteral("Conversions"));

  connect(tabb_, &QTabWidget::currentChanged, this, [this](int tab) {
    if (tab == 1) refreshContentTab();
  });
  setCentralWidget(central);
}

void CertifyWindow::buildMenus() {
  QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
  file->setObjectName(QStringLiteral("file_M"));
  const QString fileName = QStringLiteral("file_M");
  connect(addItem(file, fileName, 0, "&Open LAS for Certification"), &QAction::triggered, this,
          &CertifyWindow::openLasForCertification);
  connect(addItem(file, fileName, 1, "&Repeat Certification"), &QAction::triggered, this,
          &CertifyWindow::repeatCertification);
  file->addSeparator();
  connect(addItem(file, fileName, 3, "&Edit LAS"), &QAction::triggered, this,
          &CertifyWindow::editLas);
  file->addSeparator();
  connect(addItem(file, fileName, 5, "&Print Certification Result"), &QAction::triggered, this,
          &CertifyWindow::printResult);
  file->addSeparator();
  QMenu* documents = file->addMenu(QStringLiteral("&View LAS Standards Document"));
  documents->setObjectName(QStringLiteral("file_m1"));
  documents->menuAction()->setObjectName(QStringLiteral("file_M_7"));
  const char* documentCaptions[] = {"For Just Certified LAS Version", "Ver &3.0 (pdf)", "Ver &2.0",
                                    "Ver &1.2"};
  for (int i = 0; i < 4; ++i) {
    QAction* item = addItem(documents, QStringLiteral("file_m1"), i, documentCaptions[i]);
    connect(item, &QAction::triggered, this, [this, i] { viewStandardsDocument(i); });
    if (i == 0) justCertified_ = item;
  }
  file->addSeparator();
  connect(addItem(file, fileName, 9, "E&xit"), &QAction::triggered, this, &QWidget::close);
  connect(file, &QMenu::aboutToShow, this, &CertifyWindow::updateJustCertifiedCaption);

  QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edit"));
  edit->setObjectName(QStringLiteral("edit_M"));
  connect(addItem(edit, QStringLiteral("edit_M"), 0, "&Copy"), &QAction::triggered, this,
          &CertifyWindow::copyResult);

  QMenu* options = menuBar()->addMenu(QStringLiteral("&Options"));
  options->setObjectName(QStringLiteral("opt_M"));
  const char* optionCaptions[] = {"Do &WRAP Checks (Ver 1.2/2 only)", "Show D&etails",
                                  "&Write Log File", "Attempt LAS &Error Repair (1.2/2 only)"};
  for (int i = 0; i < 4; ++i)
    opt_[i] = addItem(options, QStringLiteral("opt_M"), i, optionCaptions[i]);
  for (int i = 0; i < 3; ++i) {
    opt_[i]->setCheckable(true);
    connect(opt_[i], &QAction::triggered, this, &CertifyWindow::optionsChanged);
  }
  opt_[0]->setChecked(session_.doWrap);
  opt_[1]->setChecked(session_.showDetails);
  opt_[2]->setChecked(session_.writeLog);
  connect(opt_[3], &QAction::triggered, this, &CertifyWindow::attemptRepair);

  QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
  help->setObjectName(QStringLiteral("help_M"));
  const QString helpName = QStringLiteral("help_M");
  connect(addItem(help, helpName, 0, "&Contents"), &QAction::triggered, this,
          &CertifyWindow::helpContents);
  help->addSeparator();
  connect(addItem(help, helpName, 2, "&Technical Support"), &QAction::triggered, this,
          &CertifyWindow::technicalSupport);
  connect(addItem(help, helpName, 3, "LAS on the &WWW"), &QAction::triggered, this,
          &CertifyWindow::lasOnTheWeb);
  help->addSeparator();
  connect(addItem(help, helpName, 5, "&About Zorvik"), &QAction::triggered, this,
          &CertifyWindow::about);

  pop_ = new QMenu(this);
  pop_->setObjectName(QStringLiteral("pop_1"));
  const QString popName = QStringLiteral("pop_1");
  connect(addItem(pop_, popName, 0, "&Repeat Certification"), &QAction::triggered, this,
          &CertifyWindow::repeatCertification);
  connect(addItem(pop_, popName, 1, "&Edit LAS"), &QAction::triggered, this,
          &CertifyWindow::editLas);
  pop_->addSeparator();
  connect(addItem(pop_, popName, 3, "Expand All"), &QAction::triggered, this,
          &CertifyWindow::expandAll);
  connect(addItem(pop_, popName, 4, "Colllapse All"), &QAction::triggered, this,
          &CertifyWindow::collapseAll);
}

void CertifyWindow::buildStatusPanels() {
  statusLine_ = new QLabel(QStringLiteral("Ready"), this);
  statusLine_->setObjectName(QStringLiteral("statusLine"));
  statusLine_->setMinimumWidth(160);
  progLab_ = new QProgressBar(this);
  progLab_->setObjectName(QStringLiteral("progLab"));
  progLab_->setRange(0, 100);
  progLab_->setValue(0);
  progLab_->setFormat(QString());
  progLab_->setTextVisible(true);
  statusBar()->addWidget(statusLine_);
  statusBar()->addWidget(progLab_, 1);
  const char* tips[] = {"Show Details of each check", "Write Log File", "Attempt Repair or not"};
  for (int i = 0; i < 3; ++i) {
    stat_[i] = new QLabel(this);
    stat_[i]->setObjectName(QStringLiteral("stat_%1").arg(i));
    stat_[i]->setToolTip(QString::fromLatin1(tips[i]));
    stat_[i]->setFrameShape(QFrame::Panel);
    stat_[i]->setFrameShadow(QFrame::Sunken);
    statusBar()->addPermanentWidget(stat_[i]);
  }
}

void CertifyWindow::showOptionStates() {
  const Session& state = session_;
  stat_[0]->setText(state.doWrap ? QStringLiteral("Do Wrap") : QStringLiteral("No Wrap"));
  stat_[1]->setText(state.writeLog ? QStringLiteral("Log File") : QStringLiteral("No Log"));
  stat_[2]->setText(repairCaption(state.repairChoice));
}

// ---- What a run shows -------------------------------------------------------------------------

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

QMessageBox::StandardButton CertifyWindow::message(QMessageBox::Icon icon, const QString& title,
                                                   const QString& text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton) {
  return services_.messageBox(this, MessageRequest{icon, title, text, buttons, defaultButton});
}

// ---- Commands -----------------------------------------------------------------------------

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
  } catch (const std::exception&) {
    result.outcome = RepairOutcome::Failed;
  }
  if (result.outcome == RepairOutcome::Failed) {
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
