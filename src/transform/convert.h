// Conversion of a 1.2 or 2.0 file to 3.0, written under a new name; the input is never changed.
//
// The output holds ~Version (VERS 3.0, WRAP NO, DLM first), ~Well with every input line plus the
// 3.0 lines the input lacks (empty values the user fills in), ~Parameter and ~Curve under the
// chosen titles and the data with its values joined by the chosen delimiter. Wrapped data is
// unwrapped first. The file is read line by line: only the header is held in memory.
#pragma once

#include <string>
#include <vector>

#include "transform/changes.h"

namespace zorvik {

// The two sets of titles a converted file may use for its log data sections.
enum class LogSectionTitles {
  ParameterCurveAscii,  // "~Parameter ~Curve ~ASCII"
  LogPrefixed,          // "~Log_Parameter ~Log_Definition ~Log_Data"
};

enum class DataDelimiter { Comma, Space, Tab };

struct ConvertRequest {
  std::string input;
  std::string output;  // empty: the input's name with "_ver3.las" (version3FileName)
  LogSectionTitles titles = LogSectionTitles::ParameterCurveAscii;
  DataDelimiter delimiter = DataDelimiter::Space;
  // Folder of the temporary unwrapped copy of wrapped input; empty: the output's folder.
  std::string workFolder;
};

enum class ConvertOutcome { Written, Failed };

struct ConvertResult {
  ConvertOutcome outcome = ConvertOutcome::Failed;
  std::string output;  // the file written
  std::string error;   // why nothing was written
  std::vector<Change> changes;
};

ConvertResult convertFile(const ConvertRequest& request);

// The name proposed for the output: the input's name with its extension replaced by "_ver3.las"
// (appended when the file name has no extension). Never fails.
std::string version3FileName(const std::string& lasFile);

// The delimiter's word in a DLM line ("COMMA", "SPACE", "TAB") and its character.
std::string_view delimiterWord(DataDelimiter delimiter);
char delimiterChar(DataDelimiter delimiter);

}  // namespace zorvik
