#include "checks/file_checks.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "checks/run_context.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::ScratchDir;

const std::string kLines = "~VERSION\r\n VERS. 2.0 : V\r\n~A\r\n1.0\r\n";

// Fills a file up to `size` bytes with CR LF lines of digits.
std::string crlfFile(std::size_t size, std::size_t nulAt = std::string::npos) {
  std::string text;
  while (text.size() < size) text += "1234567.0 1.0\r\n";
  text.resize(size);
  if (nulAt < size) text[nulAt] = '\0';
  return text;
}

// Missing, empty, LF-only, NUL-in-head and ".las.txt" files are pinned by the run/ goldens; these
// rows cover the sampling boundaries, the line-end rules and the name rules.
TEST(FileLevelChecks, GiveGroupOneResults) {
  const char* const kUnknown = "c=Unexpected unknown error\n";
  struct Row {
    const char* fileName;  // relative to the scratch folder, which the test runs in
    std::string bytes;     // "<folder>", "<unreadable>": one of those instead
    std::string findings;  // "letter=text" lines of the failed rows; the run stops on any
  };
  const Row rows[] = {
      {"A.LAS", kLines, ""},
      {"a.la", kLines, "f=File name is illegal and/or extension is not .LAS\n"},
      {".hidden.las", kLines, "c=File exists, but has Hidden Attribute\n"},
      // A folder is there but is no regular file: it reads as hidden.
      {"folder.las", "<folder>", "c=File exists, but has Hidden Attribute\n"},
      {"locked.las", "<unreadable>", "c=File Accessibility Error : Permission denied 70\n"},
      {"unix.txt", "a\nb\n",
       "d=Unix Line Feed (ASCII 10) terminated \nf=File extension is not .LAS \n"},
      {"nul.las", crlfFile(5000, 4095), "e= \n"},
      {"nul2.las", crlfFile(5000, 4096), ""},
      {"crcr.las", "a\r\r\nb\r\n", kUnknown},
      {"crlflf.las", "a\r\n\nb\r\n", kUnknown},
      {"cr.las", "a\rb\rc\r", kUnknown},
      {"blank.las", "\r\n\r\na\r\n", ""},
      {"exact.las", crlfFile(4096), ""},
      // A last line longer than the tail sample leaves it without any line end to judge.
      {"long.las", crlfFile(5000) + std::string(5000, 'z') + "\r\n", ""},
      // The first line end of the tail sample is the faulty one.
      {"tail.las", crlfFile(6000) + std::string(4200, 'x') + "\r\r\nlast\r\n", kUnknown},
      // The tail leaves out the last byte: a file ending "CR LF LF" is judged on "CR LF".
      {"lastlf.las", crlfFile(4500) + std::string(4200, 'y') + "\r\n\n", ""},
  };
  ScratchDir dir;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(dir.path());  // so that names as short as "a.la" stay so
  for (const Row& row : rows) {
    SCOPED_TRACE(row.fileName);
    if (row.bytes == "<folder>") {
      std::filesystem::create_directory(row.fileName);
    } else if (row.bytes == "<unreadable>") {
      if (::geteuid() == 0) continue;  // permissions do not bind the super-user
      ::chmod(dir.write(row.fileName, kLines).c_str(), 0);
    } else {
      dir.write(row.fileName, row.bytes);
    }
    Slots results;
    RunContext run;
    run.lasFile = row.fileName;
    EXPECT_EQ(fileLevelChecks(run, results),
              row.findings.empty() ? RunStatus::Completed : RunStatus::Stopped);
    std::string findings;
    for (int r = 1; r <= 15; ++r) {
      if (!results[r].passed())
        findings += std::string(1, char('a' + r - 1)) + "=" + results[r].text() + "\n";
    }
    EXPECT_EQ(findings, row.findings);
  }
  std::filesystem::current_path(before);
}

}  // namespace
}  // namespace zorvik
