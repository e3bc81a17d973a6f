// What `zorvik check` prints: the lines of one certified file, the summary, and the JSON
// document of a whole run. Pure text building; nothing here touches a file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "run/certify_file.h"

namespace zorvik {

struct CheckedFile {
  std::string path;  // as the user named it (or as found under a named folder)
  FileCertification result;
};

struct CheckTotals {
  std::size_t files = 0, passed = 0, failed = 0, unreadable = 0;
  double seconds = 0;
};

// A line of the file shown so that every byte is visible on a terminal: printable ASCII as it is,
// backslash and double quote behind a backslash, \t \r \n, any other byte as \xHH.
std::string escapeBytes(std::string_view bytes);
// A word for a POSIX shell: as it is when it holds only safe characters, else in single quotes.
std::string shellWord(std::string_view word);
// "1.d": the group number and the row's letter.
std::string checkNumber(int group, int row);

// The verdict line of one file, then (failed files) its failed rows, its first finding and the
// note or repair hint that goes with it. Every line ends in "\n".
std::string fileLines(const CheckedFile& file);
std::string summaryLine(const CheckTotals& totals);
CheckTotals totalsOf(const std::vector<CheckedFile>& files, double seconds);

// One JSON document for the whole run (UTF-8: bytes outside ASCII are written as \u00XX, so
// every byte of a quoted line survives as one code point below 256).
std::string jsonDocument(const std::vector<CheckedFile>& files, const CheckTotals& totals);

}  // namespace zorvik
