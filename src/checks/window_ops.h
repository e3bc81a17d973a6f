// What a certification run needs from the window it runs in.
//
// The core never includes a widget toolkit: the window implements this interface and registers
// itself in the run state; in batch mode no window is registered and runs show nothing. Tests
// drive the interactive run with a fake that records calls and answers questions.
#pragma once

#include <string>

namespace zorvik {

class CheckTable;

class WindowOps {
 public:
  virtual ~WindowOps() = default;

  virtual void setTitle(const std::string& title) = 0;
  // The status line ("Ready", "Checking in Progress..."); the command log copies it.
  virtual void setStatusLine(const std::string& text) = 0;
  // Progress fill (0-100) and caption of the progress panel.
  virtual void setProgress(int percent, const std::string& caption) = 0;
  // Result tabs: prepare them for a version (1.2/2.0 or 3.0 layout), enable or disable them.
  virtual void prepareResultTabs(float version) = 0;
  virtual void enableResultTabs(bool enabled) = 0;
  // Fill the result grid from a check table.
  virtual void fillResultGrid(const CheckTable& table) = 0;
  // A Yes/No question, No being the default; true for Yes.
  virtual bool askYesNo(const std::string& title, const std::string& text) = 0;
  // An OK/Cancel box with the critical icon; true for OK.
  virtual bool askOkCancel(const std::string& title, const std::string& text) = 0;
  // An information box with the critical icon and OK.
  virtual void showCritical(const std::string& title, const std::string& text) = 0;
  // Let pending window events run (an Escape press reaches the run state's flag here).
  virtual void processEvents() = 0;
  // Busy (hourglass) or normal pointer.
  virtual void setBusyPointer(bool busy) = 0;
};

}  // namespace zorvik
