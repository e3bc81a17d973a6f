// `zorvik repair` and `zorvik convert`: the operations of src/transform driven from the shell,
// each followed by the certification of the file it wrote.
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "base/file_writer.h"
#include "run/certify_file.h"
#include "run/check_output.h"
#include "run/tool.h"
#include "transform/convert.h"
#include "transform/repair.h"

namespace zorvik {

namespace {

int statusOf(const FileCertification& result) {
  switch (result.verdict) {
    case Verdict::Passed:
      return EXIT_ALL_PASSED;
    case Verdict::Failed:
      return EXIT_SOME_FAILED;
    case Verdict::Unreadable:
      return EXIT_TROUBLE;
  }
  return EXIT_TROUBLE;
}

// The failing rows the repairs start from; nothing for a 3.0 file, which they do not treat.
std::optional<std::vector<CatalogueRow>> failingRowsOf(const FileCertification& result) {
  if (result.version == "3.0") return std::nullopt;
  std::vector<CatalogueRow> rows;
  for (const CheckOutcome& row : result.rows)
    if (row.outcome == RowOutcome::Failed) rows.push_back(CatalogueRow{row.group, row.row});
  return rows;
}

// Copies `from` to `to` through the safe writer; the reason when it could not.
std::optional<std::string> copyFile(const std::string& from, const std::string& to) {
  const auto error = writeFileSafely(to, [&from](FileSink& sink) {
    std::FILE* in = std::fopen(from.c_str(), "rb");
    if (in == nullptr) return sink.abandon("the file could not be read", errno);
    std::string buffer(1 << 16, '\0');
    std::size_t got = 0;
    while (!sink.failure() && (got = std::fread(buffer.data(), 1, buffer.size(), in)) > 0)
      sink.write(std::string_view(buffer).substr(0, got));
    if (std::ferror(in)) sink.abandon("the file could not be read", errno);
    std::fclose(in);
  });
  if (!error) return std::nullopt;
  return describeWriteError(*error);
}

// The changes, then the new verdict lines of `file`.
int reportAfter(const std::string& file, const std::vector<Change>& changes, const char* nothing) {
  std::fputs(changes.empty() ? nothing : describeChanges(changes).c_str(), stdout);
  if (!changes.empty() && describeChanges(changes).back() != '\n') std::fputs("\n", stdout);
  const FileCertification result = certifyFile(file, CertifyOptions{});
  std::fputs(fileLines(CheckedFile{file, result}).c_str(), stdout);
  return statusOf(result);
}

}  // namespace

int repairCommand(const std::string& file, const std::string& output, const std::string& units) {
  const FileCertification before = certifyFile(file, CertifyOptions{});
  if (before.verdict == Verdict::Unreadable) return usageError("repair", file + ": " + before.note);

  // A repair to another file works on a copy there, so every round builds on the last and the
  // input is never written.
  std::string target = file;
  if (!output.empty()) {
    if (auto failure = copyFile(file, output))
      return usageError("repair", "cannot write " + output + ": " + *failure);
    target = output;
  }

  RepairRequest request;
  request.file = target;
  request.found = failingRowsOf(before);
  request.askIndexUnits = [units](const std::string&) { return units; };
  RepairResult result;
  try {
    result = repairInRounds(request, [&target] { return failingRowsOf(certifyFile(target, {})); });
  } catch (const std::exception& e) {
    result.outcome = RepairOutcome::Failed;
    result.error = e.what();
  }
  if (result.outcome == RepairOutcome::Failed) {
    if (!output.empty()) std::filesystem::remove(output);
    std::fprintf(
        stderr, "zorvik repair: %s: %s\n", file.c_str(),
        result.error.empty() ? "the repair failed; nothing was changed" : result.error.c_str());
    return EXIT_TROUBLE;
  }
  return reportAfter(target, result.changes, "Nothing was repaired.\n");
}

int convertCommand(const std::string& file, const std::string& output, bool logTitles,
                   char delimiter) {
  ConvertRequest request;
  request.input = file;
  request.output = output;
  request.titles =
      logTitles ? LogSectionTitles::LogPrefixed : LogSectionTitles::ParameterCurveAscii;
  request.delimiter = delimiter == ','    ? DataDelimiter::Comma
                      : delimiter == '\t' ? DataDelimiter::Tab
                                          : DataDelimiter::Space;
  ConvertResult result;
  try {
    result = convertFile(request);
  } catch (const std::exception& e) {
    result.outcome = ConvertOutcome::Failed;
    result.error = e.what();
  }
  if (result.outcome != ConvertOutcome::Written) {
    std::fprintf(stderr, "zorvik convert: %s: %s\n", file.c_str(),
                 result.error.empty() ? "nothing was written" : result.error.c_str());
    return EXIT_TROUBLE;
  }
  std::printf("Wrote %s\n", result.output.c_str());
  return reportAfter(result.output, result.changes, "");
}

}  // namespace zorvik
