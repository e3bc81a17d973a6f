// Every file a test writes goes into a ScratchDir, which removes itself with everything in it:
// one per test, or the one shared by a whole test program (removed when the program exits).
// RunSandbox adds run control: the program folder (command.log) and the settings store point into
// its scratch folder while it lives.
#pragma once

#include <string>
#include <vector>

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

// The scratch folder shared by the tests of this program, made on first use.
const ScratchDir& sharedScratch();
std::string scratchFolder();
// Writes `bytes` as `name` in the shared scratch folder and gives back the full path.
std::string writeScratchFile(const std::string& name, const std::string& bytes);

// The names of the entries of `folder`, sorted.
std::vector<std::string> namesIn(const std::string& folder);

// The lines, each ended by CR LF.
std::string crlfLines(const std::vector<std::string>& lines);

// Run control sandbox: sends command.log to `<scratch>/bin` and the
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
