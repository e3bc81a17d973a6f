#include "checks/file_checks.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::ScratchDir;

const std::string kLines = "~VERSION\r\n VERS. 2.0 : V\r\n~A\r\n1.0\r\n";

// Fills a file up to `size` bytes with CR LF lines of digits.
std::string crlfFile(std::size_t size) {
  std::string text;
  while (text.size() < size) text += "1234567.0 1.0\r\n";
  text.resize(size);
  return text;
}

struct FileCase {
  const char* name;
  const char* fileName;  // inside the scratch folder
  std::string bytes;
  bool create;
  int status;
  Slots expected;  // rows 1..6
};

void PrintTo(const FileCase& row, std::ostream* out) {
  *out << row.name;
}

Slots slots(const char* exists, const char* size, const char* access, const char* termination,
            const char* ascii, const char* extension) {
  Slots s{};
  s[FILE_EXISTS] = exists;
  s[FILE_SIZE] = size;
  s[FILE_ACCESS] = access;
  s[FILE_TERMINATION] = termination;
  s[FILE_ASCII] = ascii;
  s[FILE_EXTENSION] = extension;
  return s;
}

std::string withByteAt(std::string text, std::size_t at, char byte) {
  text[at] = byte;
  return text;
}

const FileCase kFileCases[] = {
    {"Good", "good.las", kLines, true, RUN_COMPLETED, slots("", "", "", "", "", "")},
    {"CapitalExtension", "GOOD.LAS", kLines, true, RUN_COMPLETED, slots("", "", "", "", "", "")},
    {"Missing", "missing.las", "", false, RUN_STOPPED,
     slots("File does not exist or is not accessible", "", "", "", "", "")},
    {"Empty", "empty.las", "", true, RUN_STOPPED,
     slots("", "File exists but has zero bytes", "", "", "", "")},
    {"Hidden", ".hidden.las", kLines, true, RUN_STOPPED,
     slots("", "", "File exists, but has Hidden Attribute", "", "", "")},
    {"LfOnly", "unix.las", "~VERSION\n VERS. 2.0 : V\n~A\n1.0\n", true, RUN_STOPPED,
     slots("", "", "", "Unix Line Feed (ASCII 10) terminated ", "", "")},
    {"LfOnlyAndBadName", "unix.txt", "a\nb\n", true, RUN_STOPPED,
     slots("", "", "", "Unix Line Feed (ASCII 10) terminated ", "", "File extension is not .LAS ")},
    {"NulInHead", "nul.las", withByteAt(crlfFile(5000), 4095, '\0'), true, RUN_STOPPED,
     slots("", "", "", "", " ", "")},
    {"NulAfterHead", "nul2.las", withByteAt(crlfFile(5000), 4096, '\0'), true, RUN_COMPLETED,
     slots("", "", "", "", "", "")},
    {"DoubleExtension", "well.las.txt", kLines, true, RUN_STOPPED,
     slots("", "", "", "", "", "File extension is not .LAS ")},
    {"CrCrLf", "crcr.las", "a\r\r\nb\r\n", true, RUN_STOPPED,
     slots("", "", "Unexpected unknown error", "", "", "")},
    {"CrLfLf", "crlflf.las", "a\r\n\nb\r\n", true, RUN_STOPPED,
     slots("", "", "Unexpected unknown error", "", "", "")},
    {"NoLineEndAtAll", "oneline.las", "no line end", true, RUN_STOPPED,
     slots("", "", "Unexpected unknown error", "", "", "")},
    {"LoneCrLines", "cr.las", "a\rb\rc\r", true, RUN_STOPPED,
     slots("", "", "Unexpected unknown error", "", "", "")},
    // A last line longer than the tail sample leaves it without any line end to judge.
    {"LongLastLine", "long.las", crlfFile(5000) + std::string(5000, 'z') + "\r\n", true,
     RUN_COMPLETED, slots("", "", "", "", "", "")},
    {"BlankCrLfLines", "blank.las", "\r\n\r\na\r\n", true, RUN_COMPLETED,
     slots("", "", "", "", "", "")},
    {"ExactlyOneSample", "exact.las", crlfFile(4096), true, RUN_COMPLETED,
     slots("", "", "", "", "", "")},
    // The first line end of the tail sample is the faulty one.
    {"TailWithCrCrLf", "tail.las", crlfFile(6000) + std::string(4200, 'x') + "\r\r\nlast\r\n", true,
     RUN_STOPPED, slots("", "", "Unexpected unknown error", "", "", "")},
    // The tail leaves out the last byte: a file ending "CR LF LF" is judged on "CR LF".
    {"LastByteNotInTail", "lastlf.las", crlfFile(4500) + std::string(4200, 'y') + "\r\n\n", true,
     RUN_COMPLETED, slots("", "", "", "", "", "")},
};

class FileLevelChecks : public ::testing::TestWithParam<FileCase> {};

TEST_P(FileLevelChecks, GiveGroupOneResults) {
  const FileCase& row = GetParam();
  ScratchDir dir;
  std::string name = row.create ? dir.write(row.fileName, row.bytes) : dir.file(row.fileName);
  Slots results;
  EXPECT_EQ(fileLevelChecks(name, results), row.status);
  for (int r = 1; r <= 15; ++r) {
    SCOPED_TRACE("row " + std::to_string(r));
    EXPECT_EQ(results[r], row.expected[r]);
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, FileLevelChecks, ::testing::ValuesIn(kFileCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(FileLevelChecks, ShortNamesAreIllegal) {
  // Run from inside the folder so the names stay this short.
  ScratchDir dir;
  dir.write("a.la", kLines);
  dir.write("a.las", kLines);
  std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(dir.path());
  Slots shortName, fiveChars;
  int shortStatus = fileLevelChecks("a.la", shortName);
  int fiveStatus = fileLevelChecks("a.las", fiveChars);
  std::filesystem::current_path(before);
  EXPECT_EQ(shortStatus, RUN_STOPPED);
  EXPECT_EQ(shortName[FILE_EXTENSION], "File name is illegal and/or extension is not .LAS");
  EXPECT_EQ(fiveStatus, RUN_COMPLETED);
}

TEST(FileLevelChecks, UnreadableFileIsAnAccessFault) {
  if (::geteuid() == 0) GTEST_SKIP() << "permissions do not bind the super-user";
  ScratchDir dir;
  std::string name = dir.write("locked.las", kLines);
  ::chmod(name.c_str(), 0);
  Slots results;
  EXPECT_EQ(fileLevelChecks(name, results), RUN_STOPPED);
  EXPECT_EQ(results[FILE_ACCESS], "File Accessibility Error : Permission denied 70");
}

}  // namespace
}  // namespace zorvik
