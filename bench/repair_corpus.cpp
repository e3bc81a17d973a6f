// Repairs copies of every 1.2/2.0 file of a folder tree that fails
// certification, as the window does (certify, repair the rows found, certify
// again, in rounds), and reports how many pass afterwards and which rows still
// fail for the others. The originals are only read.
//
//   repair_corpus CORPUS_FOLDER SCRATCH_FOLDER
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <set>
#include <string>

#include "base/command_log.h"
#include "base/text.h"
#include "checks/report.h"
#include "checks/run_context.h"
#include "run/interactive_run.h"
#include "run/session.h"
#include "run/version_sniff.h"
#include "transform/repair.h"

namespace fs = std::filesystem;
using namespace zorvik;

namespace {

struct Certified {
  bool passed = false;
  std::vector<CatalogueRow> rows;
  bool version3 = false;  // certified by the 3.0 checks
};

Certified certify(const std::string& path) {
  Session session;
  session.lasFile = path;
  RunContext run;
  runInteractive(session, run, nullptr);
  return {verdictLine(run).find("PASSED") != std::string::npos, failingRows(run.table2),
          run.isV3()};
}

std::string rowText(CatalogueRow row) {
  return toText(row.group) + "." + toText(row.row);
}

bool has(const std::vector<CatalogueRow>& rows, CatalogueRow row) {
  return std::find(rows.begin(), rows.end(), row) != rows.end();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: repair_corpus CORPUS_FOLDER SCRATCH_FOLDER\n";
    return 2;
  }
  const fs::path scratch = fs::path(argv[2]) / "repair-corpus";
  fs::create_directories(scratch);
  setProgramFolder(scratch.string());

  int failing = 0, passedAfter = 0, lineEnds = 0, lineEndsFixed = 0, hidden3 = 0;
  std::map<std::string, int> remaining;
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(argv[1]))
    if (entry.is_regular_file() && iequals(entry.path().extension().string(), ".las"))
      files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  for (const fs::path& original : files) {
    const fs::path copy = scratch / "file.las";
    fs::copy_file(original, copy, fs::copy_options::overwrite_existing);
    const float version = sniffVersion(copy.string());
    if (version == 3.0f) continue;
    const Certified before = certify(copy.string());
    if (before.passed || before.version3) continue;
    ++failing;
    RepairRequest request;
    request.file = copy.string();
    request.found = before.rows;
    const RepairResult result =
        repairInRounds(request, [&]() -> std::optional<std::vector<CatalogueRow>> {
          const Certified c = certify(copy.string());
          if (c.version3) return std::nullopt;
          return c.rows;
        });
    const Certified after = certify(copy.string());
    // A 3.0 file with LF line ends reads as one line, so its version shows only
    // once repaired.
    if (after.version3) {
      ++hidden3;
      continue;
    }
    const bool lf = has(before.rows, {1, 4});
    lineEnds += lf;
    lineEndsFixed += lf && !has(after.rows, {1, 4});
    std::string left;
    for (CatalogueRow row : after.rows) {
      left += " " + rowText(row);
      ++remaining[rowText(row)];
    }
    passedAfter += after.passed;
    std::cout << (after.passed ? "PASS " : "FAIL ") << fs::relative(original, argv[1]).string()
              << (result.outcome == RepairOutcome::Failed ? " (repair failed)" : "")
              << (left.empty() ? "" : " still:" + left) << "\n";
  }
  std::cout << "\nfailing 1.2/2.0 files: " << failing - hidden3
            << ", passing after repair: " << passedAfter
            << "\nfailing line ends (1.4): " << lineEnds << ", of which repaired: " << lineEndsFixed
            << "\n3.0 files that read as 1.2/2.0 until their line ends were "
               "repaired: "
            << hidden3 << "\nrows still failing (files):";
  for (const auto& [row, count] : remaining) std::cout << " " << row << " (" << count << ")";
  std::cout << "\n";
  fs::remove_all(scratch);
  return 0;
}
