// What a certification run tells whoever watches it, and what it asks them.
//
// The core never includes a widget toolkit: the window implements this interface; in batch mode
// and in the command-line tool nobody watches and runs show nothing. Tests drive runs with a fake
// that records calls and answers questions.
#pragma once

#include <string>

namespace zorvik {

class RunObserver {
 public:
  virtual ~RunObserver() = default;

  // Progress fill (0-100) and caption of the progress panel.
  virtual void setProgress(int percent, const std::string& caption) = 0;
  // Busy (hourglass) or normal pointer.
  virtual void setBusyPointer(bool busy) = 0;
  // Lets pending window events run; an Escape press arrives here.
  virtual void processEvents() = 0;
  // True while an Escape press waits to be served; `clearCancelRequest` serves it.
  virtual bool cancelRequested() const = 0;
  virtual void clearCancelRequest() = 0;
  // A Yes/No question, No being the default; true for Yes.
  virtual bool askYesNo(const std::string& title, const std::string& text) = 0;
  // An information box with the critical icon and OK.
  virtual void showCritical(const std::string& title, const std::string& text) = 0;
};

}  // namespace zorvik
