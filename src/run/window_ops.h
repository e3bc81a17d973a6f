// What a certification run in the window needs from the window beyond watching the checks: its
// title and status line, the result tabs and grid, and the boxes of the run itself.
//
// The core never includes a widget toolkit: the window implements this interface; runs without
// one (batch, the command-line tool) show nothing. Tests drive the interactive run with a fake
// that records calls and answers questions.
#pragma once

#include <string>

#include "checks/run_observer.h"

namespace zorvik {

class CheckTable;

class WindowOps : public RunObserver {
 public:
  virtual void setTitle(const std::string& title) = 0;
  // The status line ("Ready", "Checking in Progress..."); the command log copies it.
  virtual void setStatusLine(const std::string& text) = 0;
  // Result tabs: prepare them for a version (1.2/2.0 or 3.0 layout), enable or disable them.
  virtual void prepareResultTabs(float version) = 0;
  virtual void enableResultTabs(bool enabled) = 0;
  // Fill the result grid from a check table.
  virtual void fillResultGrid(const CheckTable& table) = 0;
  // An OK/Cancel box with the critical icon; true for OK.
  virtual bool askOkCancel(const std::string& title, const std::string& text) = 0;
};

}  // namespace zorvik
