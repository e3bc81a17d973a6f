// The main window: opens LAS files for certification, shows progress and the result grid, and
// carries the commands around them (print, copy, edit, documents, options, repair, conversion).
//
// The window is wiring only: certification runs in the core, which reaches the window through
// the WindowOps interface; dialogs and desktop calls go through WindowServices so tests can
// answer them. Controls carry the object names tests and scripts look them up by (tBut_0,
// tabb, fg, errAt, progLab, stat_0, file_M, file_M_0, opt_M_1, pop_1_4, ...).
//
// One class, its member functions kept by concern: main_window.cpp (construction, mouse and close
// events, message boxes), window_layout.cpp (tabs and status bar), window_command_table.cpp (the
// buttons and menus, from one table), window_run_callbacks.cpp (WindowOps), window_commands.cpp
// and window_documents.cpp (the commands).
#pragma once

#include <QMainWindow>
#include <array>

#include "checks/run_context.h"
#include "run/session.h"
#include "run/window_ops.h"
#include "ui/window_services.h"

class QAction;
class QButtonGroup;
class QHBoxLayout;
class QLabel;
class QListWidget;
class QMenu;
class QModelIndex;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;
class QTreeView;

namespace zorvik {

class EscapeFilter;
class ResultModel;

class CertifyWindow : public QMainWindow, public WindowOps {
  Q_OBJECT

 public:
  explicit CertifyWindow(WindowServices services = desktopServices(), Session session = {},
                         QWidget* parent = nullptr);
  ~CertifyWindow() override;

  ResultModel* resultModel() const { return model_; }
  bool certifying() const { return certifying_; }
  // The files and options in hand, and the context of the last certification (its tables feed
  // the grid, print and copy).
  Session& session() { return session_; }
  const RunContext& lastRun() const { return lastRun_; }

  // WindowOps: what a certification run shows and asks.
  void setTitle(const std::string& title) override;
  void setStatusLine(const std::string& text) override;
  void setProgress(int percent, const std::string& caption) override;
  void prepareResultTabs(float version) override;
  void enableResultTabs(bool enabled) override;
  void fillResultGrid(const CheckTable& table) override;
  bool askYesNo(const std::string& title, const std::string& text) override;
  bool askOkCancel(const std::string& title, const std::string& text) override;
  void showCritical(const std::string& title, const std::string& text) override;
  void processEvents() override;
  bool cancelRequested() const override { return cancelRequested_; }
  void clearCancelRequest() override { cancelRequested_ = false; }
  void setBusyPointer(bool busy) override;

 public slots:
  void openLasForCertification();
  // Certifies `lasFile` as if it had been picked in the open dialog (`zorvik gui FILE`).
  void openGivenFile(const std::string& lasFile);
  void repeatCertification();
  void editLas();
  void printResult();
  void viewStandardsDocument(int item);
  void optionsChanged();
  void attemptRepair();
  void copyResult();
  void helpContents();
  void technicalSupport();
  void lasOnTheWeb();
  void about();
  void convert();
  void testNow();
  void refreshContentTab();
  void expandAll();
  void collapseAll();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildControls();
  QHBoxLayout* buildButtonBar(QWidget* parent);
  void buildMenus();
  void buildStatusPanels();
  void showOptionStates();
  void showCheckDetails(const QModelIndex& index);
  void updateJustCertifiedCaption();
  // Opens a file or web page with its associated program, letting the user choose one when none
  // is associated.
  void openDocument(const QString& pathOrUrl);
  void certify(bool newFile);
  QMessageBox::StandardButton message(
      QMessageBox::Icon icon, const QString& title, const QString& text,
      QMessageBox::StandardButtons buttons = QMessageBox::Ok,
      QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

  WindowServices services_;
  Session session_;
  RunContext lastRun_;
  bool cancelRequested_ = false;  // Escape pressed while the window had the focus
  EscapeFilter* escapeFilter_ = nullptr;
  ResultModel* model_ = nullptr;
  bool certifying_ = false;
  bool busyPointer_ = false;

  std::array<QPushButton*, 7> tBut_{};
  QTabWidget* tabb_ = nullptr;
  QTreeView* fg_ = nullptr;
  QPlainTextEdit* errAt_ = nullptr;
  QListWidget* defFile_ = nullptr;
  QListWidget* orgLst_ = nullptr;
  QButtonGroup* logOpt_ = nullptr;
  QButtonGroup* dlmOpt_ = nullptr;
  QLabel* statusLine_ = nullptr;
  QProgressBar* progLab_ = nullptr;
  std::array<QLabel*, 3> stat_{};
  QAction* justCertified_ = nullptr;
  std::array<QAction*, 4> opt_{};
  QMenu* pop_ = nullptr;
};

}  // namespace zorvik
