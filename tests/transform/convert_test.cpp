// Conversion to 3.0 over every kind of passing 1.2/2.0 input: the output must certify as 3.0 and
// carry the input's data value texts unchanged, record by record.
#include "transform/convert.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>

#include "base/file_writer.h"
#include "base/text.h"
#include "las/header_line.h"
#include "support/batch_run.h"
#include "support/failing_writes.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::readBytes;
using testing::ScratchDir;

std::vector<std::string> physicalLines(const std::string& bytes) {
  std::vector<std::string> lines = split(replaceAll(bytes, "\r\n", "\n"), "\n");
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

bool startsData(const std::string& line) {
  const std::string_view t = trimView(line);
  return istartsWith(t, "~A") || istartsWith(t, "~Log_Data");
}

// The value texts of the data section, one list per record. Input records are `perRecord`
// physical lines split on blanks; output records are one line split on the delimiter, a quoted
// value being one value without its quotes.
std::vector<std::vector<std::string>> records(const std::string& bytes, char delimiter,
                                              int perRecord) {
  std::vector<std::vector<std::string>> out;
  bool inData = false;
  int taken = 0;
  for (const std::string& line : physicalLines(bytes)) {
    if (!inData) {
      inData = startsData(line);
      continue;
    }
    const std::string_view t = trimView(line);
    if (t.empty() || t.front() == '#') continue;
    if (taken == 0) out.emplace_back();
    if (delimiter == ' ') {
      for (const std::string& v : splitOnBlanks(line)) out.back().push_back(v);
    } else {
      std::string value;
      bool quoted = false;
      for (char c : line) {
        if (c == '"') {
          quoted = !quoted;
        } else if (c == delimiter && !quoted) {
          out.back().push_back(value);
          value.clear();
        } else {
          value += c;
        }
      }
      out.back().push_back(value);
    }
    taken = (taken + 1) % perRecord;
  }
  return out;
}

std::string generatedLas(bool wrap) {
  std::string text =
      "~Version Information\r\n"
      " VERS.                 2.0 : CWLS log ASCII Standard -VERSION 2.0\r\n"
      " WRAP.                " +
      std::string(wrap ? "YES" : " NO") +
      " : wrap mode\r\n"
      "~Well Information\r\n"
      " STRT.FT              100.00 : START DEPTH\r\n"
      " STOP.FT              101.50 : STOP DEPTH\r\n"
      " STEP.FT                0.50 : STEP\r\n"
      " NULL.               -999.25 : NULL VALUE\r\n"
      " COMP.          TEST COMPANY : COMPANY\r\n"
      " WELL.             TEST WELL : WELL\r\n"
      " FLD .            TEST FIELD : FIELD\r\n"
      " LOC .              LOCATION : LOCATION\r\n"
      " PROV.               ALBERTA : PROVINCE\r\n"
      " UWI .      100010100101W400 : UWI\r\n"
      " DATE.           01-JAN-2020 : LOG DATE\r\n"
      " SRVC.          TEST SERVICE : SERVICE COMPANY\r\n"
      "~Curve Information\r\n"
      " DEPT.FT                   : DEPTH\r\n";
  // Ten channels, so that a wrapped record (1 + 5 + 5 values) shows its pattern in the sample
  // the wrap analysis takes.
  for (int c = 1; c <= 10; ++c) text += " CH" + std::to_string(c) + ".V  : channel\r\n";
  text += "~A\r\n";
  const char* values[] = {"1", "-2.5", "300.0", "-999.25", "5", "0.0001", "7", "-0.5", "12", "3"};
  for (int r = 0; r < 4; ++r) {
    const std::string index = r == 0 ? "100.00" : r == 1 ? "100.50" : r == 2 ? "101.00" : "101.50";
    text += index + (wrap ? "\r\n" : "");
    for (int c = 0; c < 10; ++c) {
      if (wrap && c == 5) text += "\r\n";
      text += std::string(" ") + (r == 2 && c == 3 ? "4" : values[c]);
    }
    text += "\r\n";
  }
  return text;
}

struct Input {
  std::string name;
  std::string bytes;
  int linesPerRecord;
};

std::vector<Input> passingInputs() {
  std::vector<Input> inputs;
  for (const char* name : {"example_12.las", "example_20.las"})
    inputs.push_back({name, readBytes(std::string(ZORVIK_EXAMPLES) + "/" + name), 1});
  inputs.push_back({"example_20_wrapped.las",
                    readBytes(std::string(ZORVIK_EXAMPLES) + "/example_20_wrapped.las"), 0});
  for (const char* name :
       {"v2_passing.las", "v12_one_letter_titles.las", "g6_null_stop_repaired.las"})
    inputs.push_back({name, readBytes(std::string(ZORVIK_TEST_DATA) + "/cert2/" + name), 1});
  inputs.push_back({"generated.las", generatedLas(false), 1});
  inputs.push_back({"generated_wrapped.las", generatedLas(true), 3});
  return inputs;
}

// Wrapped inputs are compared value by value in order; their records are counted by lines.
std::vector<std::string> flat(const std::vector<std::vector<std::string>>& recs) {
  std::vector<std::string> all;
  for (const auto& r : recs) all.insert(all.end(), r.begin(), r.end());
  return all;
}

TEST(ConvertFile, PassingInputsCertifyAsVersion3WithTheirValueTexts) {
  const DataDelimiter delimiters[] = {DataDelimiter::Comma, DataDelimiter::Space,
                                      DataDelimiter::Tab};
  const LogSectionTitles titles[] = {LogSectionTitles::ParameterCurveAscii,
                                     LogSectionTitles::LogPrefixed};
  for (const Input& input : passingInputs()) {
    ScratchDir dir;
    const std::string source = dir.write(input.name, input.bytes);
    ASSERT_NE(testing::certifyInBatch(source).report.find("PASSED"), std::string::npos)
        << input.name << " should pass before conversion";
    for (LogSectionTitles title : titles) {
      for (DataDelimiter delimiter : delimiters) {
        SCOPED_TRACE(input.name + " " + std::string(delimiterWord(delimiter)) +
                     (title == LogSectionTitles::LogPrefixed ? " log titles" : " plain titles"));
        ConvertRequest request;
        request.input = source;
        request.titles = title;
        request.delimiter = delimiter;
        const ConvertResult result = convertFile(request);
        ASSERT_EQ(result.outcome, ConvertOutcome::Written) << result.error;
        EXPECT_EQ(result.output,
                  dir.file(std::filesystem::path(input.name).stem().string() + "_ver3.las"));
        EXPECT_EQ(readBytes(source), input.bytes) << "the input must stay as it was";

        const std::string report = testing::certifyInBatch(result.output).report;
        EXPECT_NE(report.find("Result: LAS file PASSED Ver 3 Certification"), std::string::npos)
            << report;

        const std::string converted = readBytes(result.output);
        const auto out = records(converted, delimiterChar(delimiter), 1);
        if (input.linesPerRecord == 1) {
          EXPECT_EQ(out, records(input.bytes, ' ', 1));
        } else {
          EXPECT_EQ(flat(out), flat(records(input.bytes, ' ', 1)));
          for (const auto& record : out) EXPECT_EQ(record.size(), out.front().size());
        }
        EXPECT_EQ(converted.find("_temp~"), std::string::npos);
        EXPECT_FALSE(std::filesystem::exists(dir.file("un_wrapped_temp~.las")));
      }
    }
  }
}

TEST(ConvertFile, VersionLinesComeFirstAndMissingWellLinesAreListedToFillIn) {
  ScratchDir dir;
  const std::string source = dir.write("gen.las", generatedLas(false));
  ConvertRequest request;
  request.input = source;
  request.delimiter = DataDelimiter::Comma;
  request.titles = LogSectionTitles::LogPrefixed;
  const ConvertResult result = convertFile(request);
  ASSERT_EQ(result.outcome, ConvertOutcome::Written);
  const std::vector<std::string> lines = physicalLines(readBytes(result.output));
  ASSERT_GE(lines.size(), 4u);
  EXPECT_EQ(trim(lines[1]).rfind("VERS.", 0), 0u);
  EXPECT_NE(lines[1].find("3.0"), std::string::npos);
  EXPECT_NE(lines[2].find("NO"), std::string::npos);
  EXPECT_NE(lines[3].find("COMMA"), std::string::npos);
  EXPECT_NE(std::find(lines.begin(), lines.end(), "~Log_Data | Log_Definition"), lines.end());

  std::vector<std::string> fillIn;
  for (const Change& c : result.changes)
    if (c.kind == ChangeKind::FillIn) fillIn.push_back(fieldMnemonic(c.after));
  EXPECT_EQ(fillIn, (std::vector<std::string>{"CTRY", "X", "Y", "GDAT", "HZCS"}));
}

TEST(ConvertFile, OneTwoValuesMoveOtherSectionsAndDataCommentsAreKept) {
  ScratchDir dir;
  std::string text = readBytes(std::string(ZORVIK_EXAMPLES) + "/example_12.las");
  text = replaceAll(text, "~A  DEPTH", "~Other\r\nFree text\r\n~A  DEPTH");
  const std::size_t data = text.find("~A");
  const std::size_t secondRecord = text.find("\r\n", text.find("\r\n", data) + 2) + 2;
  text.insert(secondRecord, "# a note in the data\r\n");
  const std::string source = dir.write("old.las", text);

  ConvertRequest request;
  request.input = source;
  const ConvertResult result = convertFile(request);
  ASSERT_EQ(result.outcome, ConvertOutcome::Written) << result.error;
  const std::string out = readBytes(result.output);
  EXPECT_NE(out.find(" COMP. NORTHERN LIGHTS RESOURCES LTD. : COMPANY"), std::string::npos);
  EXPECT_NE(out.find("#~Other\r\n#Free text\r\n~Parameter"), std::string::npos);
  EXPECT_NE(out.find("# a note in the data\r\n~ASCII\r\n"), std::string::npos);
  EXPECT_NE(testing::certifyInBatch(result.output).report.find("PASSED Ver 3"), std::string::npos);
}

TEST(ConvertFile, ThreeLetterCountryCodesBecomeTwoLetterOnes) {
  ScratchDir dir;
  const std::pair<std::string, std::string> rows[] = {
      {" CTRY.          USA : COUNTRY", "US"},
      {" CTRY.   can  : COUNTRY", "CA"},
      {" CTRY.   DE  : COUNTRY", "DE"},
  };
  for (const auto& [line, code] : rows) {
    const std::string source =
        dir.write("gen.las", replaceAll(generatedLas(false), " UWI .", line + "\r\n UWI ."));
    ConvertRequest request;
    request.input = source;
    const ConvertResult result = convertFile(request);
    ASSERT_EQ(result.outcome, ConvertOutcome::Written);
    std::string value;
    for (const std::string& l : physicalLines(readBytes(result.output)))
      if (trim(l).rfind("CTRY.", 0) == 0) value = trim(fieldValue(l));
    EXPECT_EQ(value, code) << line;
  }
}

TEST(ConvertFile, FailuresWriteNothingAndLeaveTheInputAlone) {
  ScratchDir dir;
  const std::string bytes = generatedLas(true);
  const std::string source = dir.write("gen.las", bytes);
  struct Row {
    const char* label;
    std::string input;
    std::string output;
    bool fullDisk;
  };
  const Row rows[] = {
      {"full disk", source, dir.file("out.las"), true},
      {"missing input", dir.file("missing.las"), dir.file("out.las"), false},
      {"output over the input", source, source, false},
      {"folder that does not exist", source, dir.file("no/such/folder/out.las"), false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    ConvertRequest request;
    request.input = row.input;
    request.output = row.output;
    testing::FailingWrites full("out.las");
    std::optional<ScopedFileSystemCalls> installed;
    if (row.fullDisk) installed.emplace(full);
    const ConvertResult result = convertFile(request);
    EXPECT_EQ(result.outcome, ConvertOutcome::Failed);
    EXPECT_FALSE(result.error.empty());
    EXPECT_EQ(readBytes(source), bytes);
    EXPECT_FALSE(std::filesystem::exists(dir.file("out.las")));
    std::size_t files = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(dir.path()))
      ++files;
    EXPECT_EQ(files, 1u) << "temporary files must be removed";
  }
}

}  // namespace
}  // namespace zorvik
