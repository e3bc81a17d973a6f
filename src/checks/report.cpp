#include "checks/report.h"

#include <cstdio>

#include "base/clock.h"
#include "base/file_helpers.h"
#include "base/file_writer.h"
#include "base/text.h"
#include "checks/catalogue.h"
#include "checks/run_context.h"
#include "las/lines.h"

namespace zorvik {

namespace {

const std::string kEol(CRLF);  // the report is built by concatenation

bool isKnownVersion(float version) {
  return version == 1.2f || version == 2.0f || version == 3.0f;
}

std::string twoDigits(int number) {
  std::string text = toText(number);
  return text.size() < 2 ? "0" + text : text;
}

// Rows are lettered a..o.
char rowLetter(int row) {
  return static_cast<char>(row + 96);
}

// Appends the rows of one group; true when one of its listed checks failed.
bool appendGroup(const CheckTable& table, int group, std::string& out) {
  bool failed = false;
  out += twoDigits(group) + ": " + table.at(0, COL_HEADING, group) + kEol;
  for (int row = 1; row <= table.lastRow(); ++row) {
    const std::string& title = table.at(row, COL_TITLE, group);
    if (title.empty()) continue;
    const RowResult& result = table.result(row, group);
    std::string label = std::string(1, rowLetter(row)) + ". " + title;
    if (result.passed()) {
      out += "        " + label + kEol;
      const std::string& note = table.at(row, COL_NOTE, group);
      if (!note.empty()) out += "Note: " + replaceAll(note, "\r\n", "\r\nNote: ") + kEol;
    } else {
      out += "Failed: " + label + kEol;
      out += "Errors: " + replaceAll(result.text(), "\r\n", "\r\nErrors: ") + kEol;
      failed = true;
    }
  }
  return failed;
}

}  // namespace

std::string verdict(const RunContext& run) {
  const float version = run.dialect.version;
  if (!anyFailure(run.results()))
    return "LAS file PASSED Ver " + formatShortest(version) + " Certification";
  if (isKnownVersion(version))
    return "LAS file FAILS Ver " + formatShortest(version) + " Certification";
  return "LAS file FAILS Certification";
}

std::string verdictLine(const RunContext& run) {
  return "Result: " + verdict(run);
}

std::string buildReport(const RunContext& run) {
  return buildReport(run, reportDate(localNow()));
}

std::string buildReport(const RunContext& run, const std::string& dateText) {
  const CheckTable& table = run.results();
  std::string out = "LAS Certification Result for: " + run.lasFile + kEol;
  out += "Zorvik Ver: " + toText(ZORVIK_VERSION_MAJOR) + "." + toText(ZORVIK_VERSION_MINOR) + "." +
         toText(ZORVIK_VERSION_PATCH) + " Date: " + dateText + kEol;
  out += kEol;
  out += verdictLine(run) + kEol;
  out += kEol;
  out += kEol;
  // Listing stops with the first group holding a failed check: later groups were not reached.
  for (int group = 1; group <= table.lastGroup(); ++group) {
    if (table.at(0, COL_HEADING, group).empty()) continue;
    if (appendGroup(table, group, out)) break;
  }
  return out;
}

RunStatus writeLogFile(const RunContext& run, const std::string& logFile,
                       const std::string& firstNote, const std::string& secondNote) {
  std::string text;
  if (!secondNote.empty()) text += "Note: " + secondNote + kEol + kEol;
  if (!firstNote.empty()) text += firstNote + kEol;
  text += buildReport(run) + kEol;
  // The previous log file stays whole unless the new one is written completely.
  if (auto failure = writeFileSafely(logFile, text)) {
    run.log("Error: Log file " + logFile +
            " could not be written: " + describeWriteError(*failure) + ".");
    return RunStatus::Fault;
  }
  return RunStatus::Completed;
}

}  // namespace zorvik
