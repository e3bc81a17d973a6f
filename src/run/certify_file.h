// Certification of one file as a value: path and options in, verdict, version and every check
// row with its findings out. The command-line tool certifies through this and nothing else.
//
// Safe to call from several threads: each call certifies in a context of its own. Nothing here
// writes the command log or the settings store.
#pragma once

#include <string>
#include <vector>

#include "checks/finding.h"

namespace zorvik {

enum class Verdict { Passed, Failed, Unreadable };
enum class RowOutcome { Passed, Failed, NotPerformed };

struct CheckOutcome {
  int group = 0;      // 1-based catalogue group
  int row = 0;        // 1-based row within the group (a = 1)
  std::string title;  // the catalogue title
  RowOutcome outcome = RowOutcome::Passed;
  std::vector<Finding> findings;  // failed rows only
};

struct CertifyOptions {
  bool wrapChecks = false;
  std::string reportFile;  // when not empty, the file's report is written there as well
};

struct FileCertification {
  Verdict verdict = Verdict::Unreadable;
  std::string version;              // "1.2", "2.0", "3.0"...; empty when none could be read
  std::vector<CheckOutcome> rows;   // every row of the version's catalogue, in order
  std::string note;                 // why a file has no full certification; empty otherwise
  bool onlyLineEndsFailed = false;  // the sole failure is LF-only line ends (a repair fixes it)
  bool reportWritten = false;
};

FileCertification certifyFile(const std::string& path, const CertifyOptions& options);

}  // namespace zorvik
