// A window for tests: records what a run shows and answers its questions as set up.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/text.h"
#include "checks/check_table.h"
#include "run/window_ops.h"

namespace zorvik::testing {

class FakeWindow : public WindowOps {
 public:
  // Answers to the questions.
  bool yesNoAnswer = false;
  bool okCancelAnswer = true;
  // An Escape press waiting to be served.
  bool cancel = false;
  // Runs whenever the run lets events run, with the progress caption last shown.
  std::function<void(const std::string&)> onEvents;

  // What the run did, in order: "title T", "status S", "prepare V", "enable", "disable",
  // "grid 3.0" / "grid 1.2/2.0", "yesno TITLE|TEXT", "okcancel TITLE|TEXT", "critical TITLE|TEXT".
  std::vector<std::string> calls;
  std::vector<int> percents;
  std::vector<std::string> captions;
  std::vector<std::string> questions;  // "TITLE|TEXT" of every Yes/No question
  std::vector<bool> pointer;           // busy (true) / normal (false), in order

  void setTitle(const std::string& title) override { calls.push_back("title " + title); }
  void setStatusLine(const std::string& text) override { calls.push_back("status " + text); }
  void setProgress(int percent, const std::string& caption) override {
    percents.push_back(percent);
    captions.push_back(caption);
  }
  void prepareResultTabs(float version) override {
    calls.push_back("prepare " + formatShortest(version));
  }
  void enableResultTabs(bool enabled) override { calls.push_back(enabled ? "enable" : "disable"); }
  void fillResultGrid(const CheckTable& table) override {
    calls.push_back(table.lastGroup() == 9 ? "grid 3.0" : "grid 1.2/2.0");
  }
  bool askYesNo(const std::string& title, const std::string& text) override {
    questions.push_back(title + "|" + text);
    calls.push_back("yesno " + title + "|" + text);
    return yesNoAnswer;
  }
  bool askOkCancel(const std::string& title, const std::string& text) override {
    calls.push_back("okcancel " + title + "|" + text);
    return okCancelAnswer;
  }
  void showCritical(const std::string& title, const std::string& text) override {
    calls.push_back("critical " + title + "|" + text);
  }
  void processEvents() override {
    if (onEvents) onEvents(captions.empty() ? std::string() : captions.back());
  }
  bool cancelRequested() const override { return cancel; }
  void clearCancelRequest() override { cancel = false; }
  void setBusyPointer(bool busy) override { pointer.push_back(busy); }
};

}  // namespace zorvik::testing
