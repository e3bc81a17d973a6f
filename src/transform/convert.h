// Conversion of a 2.0 file to 3.0, written under a new name beside the input.
//
// Can fail: the answer is false when no output was written (a half-written output is removed).
#pragma once

#include <string>

namespace zorvik {

// The two sets of titles a converted file may use for its log data sections.
enum class LogSectionTitles {
  ParameterCurveAscii,  // "~Parameter ~Curve ~ASCII"
  LogPrefixed,          // "~Log_Parameter ~Log_Definition ~Log_Data"
};

bool convertToVersion3(const std::string& lasFile, const std::string& outFile,
                       LogSectionTitles titles, char delimiter);

// The name proposed for the output: the input's name with its extension replaced by "_ver3.las"
// (appended when the file name has no extension). Never fails.
std::string version3FileName(const std::string& lasFile);

}  // namespace zorvik
