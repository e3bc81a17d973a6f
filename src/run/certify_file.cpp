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
#include "las/line_numbers.h"
#include "run/run_start.h"
#include "run/version_sniff.h"

namespace zorvik {

namespace {

std::string versionText(float version) {
  std::string text = formatShortest(version);
  if (text.find('.') == std::string::npos) text += ".0";
  return text;
}

// --- Line numbers -----------------------------------------------------------------------------
// The checks note where each finding's line starts; one reading of the file turns those places
// into line numbers, and a quote becomes the line exactly as the file holds it (a check may show
// it trimmed, or with its tabs as "<Tab>").

void numberFindings(const LasFile& file, std::vector<CheckOutcome>& rows) {
  std::vector<Finding*> placed;
  std::vector<std::int64_t> positions;
  for (CheckOutcome& row : rows)
    for (Finding& finding : row.findings)
      if (finding.position > 0) {
        placed.push_back(&finding);
        positions.push_back(finding.position);
      }
  if (placed.empty()) return;
  std::vector<NumberedLine> lines = linesAt(file, positions);
  for (std::size_t i = 0; i < placed.size(); ++i) {
    if (lines[i].number == 0) continue;
    placed[i]->line = lines[i].number;
    // A quoted record of several lines (wrapped data) stays as the check showed it.
    std::optional<std::string>& quoted = placed[i]->quoted;
    if (quoted && quoted->find('\r') == std::string::npos) quoted = std::move(lines[i].text);
  }
}

// --- Rows of the catalogue --------------------------------------------------------------------

std::vector<CheckOutcome> rowsOf(const CheckTable& table) {
  std::vector<CheckOutcome> rows;
  bool reached = true;  // groups after the first failing one were never run
  for (int group = 1; group <= table.lastGroup(); ++group) {
    if (table.at(0, COL_HEADING, group).empty()) continue;
    bool groupFailed = false;
    for (int row = 1; row <= table.lastRow(); ++row) {
      const std::string& title = table.at(row, COL_TITLE, group);
      if (title.empty()) continue;
      const RowResult& result = table.result(row, group);
      CheckOutcome outcome{group, row, title, RowOutcome::Passed, {}};
      if (!reached || result.notReached()) {
        outcome.outcome = RowOutcome::NotPerformed;
      } else if (result.failed()) {
        outcome.outcome = RowOutcome::Failed;
        outcome.findings = result.findings();
        // The report shows a NUL byte as a failure without words.
        if (group == 1 && row == FILE_ASCII)
          outcome.findings = {Finding{"a NUL byte in the first 4096 bytes"}};
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
