// The buttons and menu items that start the window's commands, built from one table, so a
// control's object name, caption and command sit on one line.
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <string_view>
#include <utility>

#include "ui/main_window.h"

namespace zorvik {

namespace {

using Command = void (*)(CertifyWindow&);

template <auto slot>
void call(CertifyWindow& window) {
  (window.*slot)();
}

template <int item>
void viewDocument(CertifyWindow& window) {
  window.viewStandardsDocument(item);
}

constexpr std::string_view BUTTON_BAR = "tBut";

// A control that starts a command. `place` is the button bar or the object name of a menu; the
// control is named `place`_`index`. A menu's separators count as its items, so a gap in a menu's
// indexes is a separator. A row without a command opens the submenu named `submenu`.
struct CommandRow {
  std::string_view place;
  int index;
  const char* caption;
  Command command;
  std::string_view submenu = {};
};

constexpr CommandRow COMMANDS[] = {
    {BUTTON_BAR, 0, "Open LAS for Certification", call<&CertifyWindow::openLasForCertification>},
    {BUTTON_BAR, 1, "Redo Certification", call<&CertifyWindow::repeatCertification>},
    {BUTTON_BAR, 2, "Attempt Repair", call<&CertifyWindow::attemptRepair>},
    {BUTTON_BAR, 3, "Edit LAS", call<&CertifyWindow::editLas>},
    {BUTTON_BAR, 5, "Print result", call<&CertifyWindow::printResult>},
    {BUTTON_BAR, 6, "Help Contents", call<&CertifyWindow::helpContents>},

    {"file_M", 0, "&Open LAS for Certification", call<&CertifyWindow::openLasForCertification>},
    {"file_M", 1, "&Repeat Certification", call<&CertifyWindow::repeatCertification>},
    {"file_M", 3, "&Edit LAS", call<&CertifyWindow::editLas>},
    {"file_M", 5, "&Print Certification Result", call<&CertifyWindow::printResult>},
    {"file_M", 7, "&View LAS Standards Document", nullptr, "file_m1"},
    {"file_M", 9, "E&xit", call<&CertifyWindow::close>},
    {"file_m1", 0, "For Just Certified LAS Version", viewDocument<0>},
    {"file_m1", 1, "Ver &3.0 (pdf)", viewDocument<1>},
    {"file_m1", 2, "Ver &2.0", viewDocument<2>},
    {"file_m1", 3, "Ver &1.2", viewDocument<3>},

    {"edit_M", 0, "&Copy", call<&CertifyWindow::copyResult>},

    {"opt_M", 0, "Do &WRAP Checks (Ver 1.2/2 only)", call<&CertifyWindow::optionsChanged>},
    {"opt_M", 1, "Show D&etails", call<&CertifyWindow::optionsChanged>},
    {"opt_M", 2, "&Write Log File", call<&CertifyWindow::optionsChanged>},
    {"opt_M", 3, "Attempt LAS &Error Repair (1.2/2 only)", call<&CertifyWindow::attemptRepair>},

    {"help_M", 0, "&Contents", call<&CertifyWindow::helpContents>},
    {"help_M", 2, "&Technical Support", call<&CertifyWindow::technicalSupport>},
    {"help_M", 3, "LAS on the &WWW", call<&CertifyWindow::lasOnTheWeb>},
    {"help_M", 5, "&About Zorvik", call<&CertifyWindow::about>},

    // The pop-up of the grid and the details panel.
    {"pop_1", 0, "&Repeat Certification", call<&CertifyWindow::repeatCertification>},
    {"pop_1", 1, "&Edit LAS", call<&CertifyWindow::editLas>},
    {"pop_1", 3, "Expand All", call<&CertifyWindow::expandAll>},
    {"pop_1", 4, "Colllapse All", call<&CertifyWindow::collapseAll>},
};

// The menu bar's menus, in their order.
constexpr std::pair<std::string_view, const char*> MENU_BAR[] = {
    {"file_M", "&File"}, {"edit_M", "&Edit"}, {"opt_M", "&Options"}, {"help_M", "&Help"}};
constexpr std::string_view POP_UP = "pop_1";

QString controlName(std::string_view place, int index) {
  return QStringLiteral("%1_%2").arg(QLatin1String(place)).arg(index);
}

// Adds the rows placed in `menu` (named `name`), and the submenus they open.
void fillMenu(CertifyWindow& window, QMenu* menu, std::string_view name) {
  menu->setObjectName(QLatin1String(name));
  int next = 0;
  for (const CommandRow& row : COMMANDS) {
    if (row.place != name) continue;
    for (; next < row.index; ++next) menu->addSeparator();
    next = row.index + 1;
    const QString caption = QString::fromLatin1(row.caption);
    QAction* item = nullptr;
    if (row.command == nullptr) {
      QMenu* submenu = menu->addMenu(caption);
      fillMenu(window, submenu, row.submenu);
      item = submenu->menuAction();
    } else {
      item = menu->addAction(caption);
      QObject::connect(item, &QAction::triggered, &window,
                       [&window, command = row.command] { command(window); });
    }
    item->setObjectName(controlName(name, row.index));
  }
}

}  // namespace

QHBoxLayout* CertifyWindow::buildButtonBar(QWidget* parent) {
  auto* bar = new QHBoxLayout;
  for (const CommandRow& row : COMMANDS) {
    if (row.place != BUTTON_BAR) continue;
    auto* button = new QPushButton(QString::fromLatin1(row.caption), parent);
    button->setObjectName(controlName(BUTTON_BAR, row.index));
    connect(button, &QPushButton::clicked, this, [this, command = row.command] { command(*this); });
    tBut_[row.index] = button;
    bar->addWidget(button);
  }
  bar->addStretch();
  // The edit button's right click opens the run's log file (see eventFilter).
  tBut_[3]->installEventFilter(this);
  return bar;
}

void CertifyWindow::buildMenus() {
  for (const auto& [name, title] : MENU_BAR)
    fillMenu(*this, menuBar()->addMenu(QString::fromLatin1(title)), name);
  pop_ = new QMenu(this);
  fillMenu(*this, pop_, POP_UP);

  justCertified_ = findChild<QAction*>(controlName("file_m1", 0));
  connect(findChild<QMenu*>(QStringLiteral("file_M")), &QMenu::aboutToShow, this,
          &CertifyWindow::updateJustCertifiedCaption);
  for (int i = 0; i < 4; ++i) opt_[i] = findChild<QAction*>(controlName("opt_M", i));
  // The first three options are switches kept in the session; the fourth is a command.
  for (int i = 0; i < 3; ++i) opt_[i]->setCheckable(true);
  opt_[0]->setChecked(session_.doWrap);
  opt_[1]->setChecked(session_.showDetails);
  opt_[2]->setChecked(session_.writeLog);
}

}  // namespace zorvik
