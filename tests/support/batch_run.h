// Runs the zorvik program in batch mode on a LAS file, with a settings store and a working folder
// of its own, and gives back the report it wrote (date line normalised) and the command log
// entries of that run.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace zorvik::testing {

struct BatchResult {
  std::string
      report;  // log file contents, the "Date: ..." part of line 2 replaced by "Date: <date>"
  std::string commandLog;  // command.log entries appended during the run
  bool reportWritten = false;
};

// Certifies `lasPath` (copied to a scratch folder under its own file name) as
// `zorvik <copy> <copy-folder>/out.log [/W]`, the settings store remembering the copy's name.
BatchResult certifyInBatch(const std::string& lasPath, bool wrapChecks = false);

// The report with the folder of the LAS file on its first line replaced by "<folder>/", so that
// goldens do not depend on the scratch folder a run used.
std::string reportWithoutFolder(const std::string& report);

// The report of an in-process run (two lines at least) with `folder` shown as "<dir>" and line 2
// (the program's version and the date) pinned, so that it can be kept as a golden file.
std::string pinnedReport(std::string report, const std::string& folder);

// A scratch folder for runs of the real program: a link of the executable of its own (so a
// command.log of its own), a settings store that lets batch runs through, and a work folder
// where the runs start. Removed with everything in it when it ends.
class ProgramSandbox {
 public:
  ProgramSandbox();
  ~ProgramSandbox();
  ProgramSandbox(const ProgramSandbox&) = delete;
  ProgramSandbox& operator=(const ProgramSandbox&) = delete;

  // Full name of `name` in the work folder.
  std::string work(const std::string& name) const;
  std::string commandLog() const;
  // Starts the program with `args` and returns at once with its process number.
  pid_t start(const std::vector<std::string>& args) const;
  // Waits for a started program; its exit status, 128 + signal when killed, -1 on failure.
  static int wait(pid_t child);

 private:
  std::string folder_;
  std::string exe_;
};

// Reads a whole file as bytes ("" when missing).
std::string readBytes(const std::string& path);

// Compares `actual` with the golden file `goldenPath`; when ZORVIK_UPDATE_GOLDEN=1 is set in the
// environment the golden file is (re)written instead. Returns "" on match, else a diff summary.
std::string compareWithGolden(const std::string& actual, const std::string& goldenPath);

// The names (without extension) of the files of `folder` ending in `extension`, sorted.
std::vector<std::string> stemsIn(const std::string& folder, const std::string& extension);

// `name` as a test name: every character other than a letter or digit becomes "_".
std::string testNameOf(std::string name);

}  // namespace zorvik::testing
