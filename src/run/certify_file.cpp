#include "run/certify_file.h"

#include <filesystem>
#include <map>
#include <string_view>
#include <system_error>

#include "base/fault.h"
#include "base/text.h"
#include "cert2/certify2.h"
#include "cert3/certify3.h"
#include "checks/catalogue.h"
#include "checks/file_checks.h"
#include "checks/report.h"
#include "checks/run_context.h"
#include "las/line_reader.h"
#include "run/run_start.h"
#include "run/version_sniff.h"

namespace zorvik {

namespace {

std::string versionText(float version) {
  std::string text = formatShortest(version);
  if (text.find('.') == std::string::npos) text += ".0";
  return text;
}

// --- Findings out of result texts -------------------------------------------------------------
// Until the checks hand over typed findings, a result text is taken apart here: entries of
// CR LF, the finding's words, CR LF, the offending line; or one plain text without a line
// (group 1). Line numbers are then found by looking for the quoted lines in the file.

std::vector<Finding> findingsOf(const std::string& result) {
  std::vector<Finding> findings;
  if (result.empty() || result == " ") return findings;
  if (!result.starts_with("\r\n")) {
    findings.push_back(Finding{trim(result), 0, ""});
    return findings;
  }
  std::vector<std::string> parts = split(std::string_view(result).substr(2), "\r\n");
  for (std::size_t i = 0; i < parts.size(); i += 2) {
    Finding finding;
    finding.message = parts[i];
    if (i + 1 < parts.size()) finding.quoted = parts[i + 1];
    findings.push_back(std::move(finding));
  }
  return findings;
}

// The forms in which a check may quote a line: as read, with tabs shown as "<Tab>", trimmed.
std::string quoteKey(std::string_view line) {
  return trim(replaceAll(line, "\t", "<Tab>"));
}

// One pass over the file: every quoted line gets the number of the first line of the file that
// reads like it and has not been taken by an earlier finding of the same text; the quote then
// becomes that line's own bytes (checks show a tab as "<Tab>", for one).
void numberFindings(const LasFile& file, std::vector<CheckOutcome>& rows) {
  struct Seen {
    std::vector<std::uint64_t> numbers;
    std::string line;  // the first such line exactly as the file holds it
  };
  std::map<std::string, Seen> wanted;
  for (const CheckOutcome& row : rows)
    for (const Finding& finding : row.findings)
      if (!trim(finding.quoted).empty()) wanted.emplace(quoteKey(finding.quoted), Seen{});
  if (wanted.empty()) return;

  LineReader reader(file);
  std::string_view line;
  for (std::uint64_t number = 1; reader.readLine(line); ++number) {
    auto found = wanted.find(quoteKey(line));
    if (found == wanted.end()) continue;
    if (found->second.numbers.empty()) found->second.line = line;
    found->second.numbers.push_back(number);
  }

  for (CheckOutcome& row : rows) {
    std::map<std::string, std::size_t> used;
    for (Finding& finding : row.findings) {
      if (trim(finding.quoted).empty()) continue;
      std::string key = quoteKey(finding.quoted);
      const Seen& seen = wanted[key];
      if (seen.numbers.empty()) continue;
      std::size_t& next = used[key];
      finding.line = seen.numbers[std::min(next, seen.numbers.size() - 1)];
      finding.quoted = seen.line;
      ++next;
    }
  }
}

// --- Rows of the catalogue --------------------------------------------------------------------

std::vector<CheckOutcome> rowsOf(const CheckTable& table) {
  std::vector<CheckOutcome> rows;
  bool reached = true;  // groups after the first failing one were never run
  for (int group = 1; group <= table.lastGroup(); ++group) {
    if (table.at(0, COL_RESULT, group).empty()) continue;
    bool groupFailed = false;
    for (int row = 1; row <= table.lastRow(); ++row) {
      const std::string& title = table.at(row, COL_TITLE, group);
      if (title.empty()) continue;
      const std::string& result = table.at(row, COL_RESULT, group);
      CheckOutcome outcome{group, row, title, RowOutcome::Passed, {}};
      if (group == 1 && row == FILE_ASCII && result == " ") {
        // The content check marks a NUL byte with a lone blank: a failure without words.
        outcome.outcome = RowOutcome::Failed;
        outcome.findings.push_back(Finding{"a NUL byte in the first 4096 bytes", 0, ""});
        groupFailed = true;
      } else if (!reached || result == " ") {
        outcome.outcome = RowOutcome::NotPerformed;
      } else if (!result.empty()) {
        outcome.outcome = RowOutcome::Failed;
        outcome.findings = findingsOf(result);
        groupFailed = true;
      }
      rows.push_back(std::move(outcome));
    }
    if (groupFailed) reached = false;
  }
  return rows;
}

bool onlyLineEnds(const std::vector<CheckOutcome>& rows) {
  bool lineEnds = false;
  for (const CheckOutcome& row : rows) {
    if (row.outcome != RowOutcome::Failed) continue;
    if (row.group != 1 || row.row != FILE_TERMINATION) return false;
    lineEnds = !row.findings.empty() && row.findings.front().message.starts_with("Unix Line Feed");
  }
  return lineEnds;
}

// --- One run ----------------------------------------------------------------------------------

FileCertification unreadable(const std::string& why) {
  FileCertification result;
  result.verdict = Verdict::Unreadable;
  result.note = why;
  return result;
}

// The steps of the batch run, with the outcome kept instead of logged.
FileCertification certifyIn(RunContext& context, const CertifyOptions& options,
                            const std::vector<std::string>& messages) {
  const std::string& path = context.lasFile;
  FileCertification result;
  result.verdict = Verdict::Failed;
  auto writeReport = [&] {
    if (!options.reportFile.empty())
      result.reportWritten =
          writeLogFile(context, options.reportFile, "", "") == RunStatus::Completed;
  };

  Slots group1;
  if (beginRun(context, group1) == RunStatus::Stopped) {
    storeFileResults(context, group1);
    writeReport();
    float version = sniffVersion(path);
    if (version != 0.0f) result.version = versionText(version);
    result.rows = rowsOf(context.table2);
    result.onlyLineEndsFailed = onlyLineEnds(result.rows);
    return result;
  }

  float version = sniffVersion(path);
  if (version == 0.0f) {
    result.note = "no LAS version: no well-formed VERS line before the data";
    result.rows = rowsOf(context.table2);
    return result;
  }
  context.dialect.version = version;
  result.version = versionText(version);
  RunStatus status = RunStatus::Fault;
  if (version == 1.2f || version == 2.0f) {
    status = aaCertify2(context);
  } else if (version == 3.0f) {
    status = aaCertify3(context);
  } else {
    result.note = "LAS version " + formatShortest(version) + " is not 1.2, 2.0 or 3.0";
    result.rows = rowsOf(context.table2);
    return result;
  }

  result.rows = rowsOf(context.results());
  if (status != RunStatus::Completed) {
    result.note = "a processing error ended the certification";
    if (!messages.empty()) result.note += ": " + messages.back();
    return result;
  }
  writeReport();
  if (!anyFailure(context.results())) result.verdict = Verdict::Passed;
  return result;
}

}  // namespace

FileCertification certifyFile(const std::string& path, const CertifyOptions& options) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(path, ec)) {
    if (std::filesystem::exists(path, ec)) return unreadable("not a regular file");
    return unreadable("no such file");
  }

  // Each certification has a context of its own, so files certify side by side on threads.
  RunContext context;
  context.lasFile = path;
  if (!context.source().isOpen())
    return unreadable(faultFromErrno(context.source().openError()).description);
  context.logFile = options.reportFile;
  context.doWrap = options.wrapChecks;
  std::vector<std::string> messages;
  context.logSink = [&messages](std::string_view message) { messages.emplace_back(message); };
  FileCertification result;
  try {
    result = certifyIn(context, options, messages);
  } catch (...) {
    result = FileCertification{};
    result.verdict = Verdict::Failed;
    result.note = "a processing error ended the certification: " + currentFault().description;
  }
  numberFindings(context.source(), result.rows);
  return result;
}

}  // namespace zorvik
