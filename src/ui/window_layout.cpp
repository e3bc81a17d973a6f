// The window's layout: the button bar over the three tabs (the result grid and check details,
// the content test, the conversion options) and the status bar with the option panels.
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include "ui/main_window.h"
#include "ui/printing.h"
#include "ui/result_model.h"

namespace zorvik {

namespace {

QString repairCaption(int repairChoice) {
  return repairChoice == 0 ? QStringLiteral("No Repair") : QStringLiteral("Repair");
}

}  // namespace

void CertifyWindow::buildControls() {
  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);
  layout->addLayout(buildButtonBar(central));

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

}  // namespace zorvik
