// A temporary folder for one test, removed with everything in it when the test ends, and an
// in-process sandbox for run control: the program folder (command.log) and the settings store
// point into the scratch folder while it lives.
#pragma once

#include <string>

namespace zorvik::testing {

class ScratchDir {
 public:
  ScratchDir();
  ~ScratchDir();
  ScratchDir(const ScratchDir&) = delete;
  ScratchDir& operator=(const ScratchDir&) = delete;

  const std::string& path() const { return path_; }
  // Absolute name of `name` inside the folder.
  std::string file(const std::string& name) const { return path_ + "/" + name; }
  // Writes `bytes` as the file `name` (exactly, no line-end translation); returns its full name.
  std::string write(const std::string& name, const std::string& bytes) const;

 private:
  std::string path_;
};

// Run control sandbox: resets the run state, sends command.log to `<scratch>/bin` and the
// settings store to `<scratch>/config`; restores both afterwards.
class RunSandbox {
 public:
  RunSandbox();
  ~RunSandbox();
  RunSandbox(const RunSandbox&) = delete;
  RunSandbox& operator=(const RunSandbox&) = delete;

  const ScratchDir& dir() const { return dir_; }
  std::string commandLog() const;
  std::string settingsText() const;
  // Writes the settings store as given.
  void writeSettings(const std::string& text) const;

 private:
  ScratchDir dir_;
  std::string savedConfigHome_;
  bool hadConfigHome_ = false;
};

// The message lines of command log entries (every second line, header lines dropped).
std::string commandLogMessages(const std::string& log);

}  // namespace zorvik::testing
