#include "run/check_output.h"

#include <algorithm>
#include <charconv>

#include "base/text.h"

namespace zorvik {

namespace {

constexpr char kHex[] = "0123456789abcdef";

const char* verdictWord(Verdict verdict) {
  switch (verdict) {
    case Verdict::Passed:
      return "PASSED";
    case Verdict::Failed:
      return "FAILED";
    case Verdict::Unreadable:
      return "UNREADABLE";
  }
  return "";
}

const char* outcomeWord(RowOutcome outcome) {
  switch (outcome) {
    case RowOutcome::Passed:
      return "passed";
    case RowOutcome::Failed:
      return "failed";
    case RowOutcome::NotPerformed:
      return "not performed";
  }
  return "";
}

std::string countText(std::size_t count, std::string_view one, std::string_view many) {
  return toText(static_cast<long long>(count)) + " " + std::string(count == 1 ? one : many);
}

std::string secondsText(double seconds) {
  char buffer[32];
  auto [end, ec] =
      std::to_chars(buffer, buffer + sizeof buffer, seconds, std::chars_format::fixed, 2);
  return ec == std::errc() ? std::string(buffer, end) : "0.00";
}

std::string jsonString(std::string_view text) {
  std::string out = "\"";
  for (unsigned char c : text) {
    if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else if (c == '\t') {
      out += "\\t";
    } else if (c < 0x20 || c >= 0x7f) {
      out += "\\u00";
      out += kHex[c >> 4];
      out += kHex[c & 15];
    } else {
      out += static_cast<char>(c);
    }
  }
  return out + "\"";
}

}  // namespace

std::string escapeBytes(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size());
  for (unsigned char c : bytes) {
    if (c == '\\' || c == '"') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c == '\t') {
      out += "\\t";
    } else if (c == '\r') {
      out += "\\r";
    } else if (c == '\n') {
      out += "\\n";
    } else if (c < 0x20 || c >= 0x7f) {
      out += "\\x";
      out += kHex[c >> 4];
      out += kHex[c & 15];
    } else {
      out += static_cast<char>(c);
    }
  }
  return out;
}

std::string shellWord(std::string_view word) {
  auto safe = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("/._-+,:@%=").find(c) != std::string_view::npos;
  };
  if (!word.empty() && std::all_of(word.begin(), word.end(), safe)) return std::string(word);
  return "'" + replaceAll(word, "'", "'\\''") + "'";
}

std::string checkNumber(int group, int row) {
  return toText(group) + "." + static_cast<char>('a' + row - 1);
}

std::string fileLines(const CheckedFile& file) {
  const FileCertification& result = file.result;
  std::string version = result.version.empty() ? "-" : result.version;
  if (result.verdict == Verdict::Unreadable)
    return std::string(verdictWord(result.verdict)) + "  -  " + file.path + ": " + result.note +
           "\n";
  std::string out =
      std::string(verdictWord(result.verdict)) + "  " + version + "  " + file.path + "\n";
  if (result.verdict == Verdict::Passed) return out;

  const Finding* first = nullptr;
  for (const CheckOutcome& row : result.rows) {
    if (row.outcome != RowOutcome::Failed) continue;
    out += "    " + checkNumber(row.group, row.row) + "  " + row.title + ": " +
           countText(row.findings.size(), "finding", "findings") + "\n";
    if (first == nullptr && !row.findings.empty()) first = &row.findings.front();
  }
  if (first != nullptr) {
    std::string where =
        first->line != 0 ? "line " + toText(static_cast<long long>(first->line)) + ": " : "";
    out += "    " + where + escapeBytes(trim(first->message)) + "\n";
    if (first->quoted && !first->quoted->empty())
      out += "      \"" + escapeBytes(*first->quoted) + "\"\n";
  }
  if (!result.note.empty()) out += "    " + result.note + "\n";
  if (result.onlyLineEndsFailed)
    out += "    hint: the lines end in LF alone; `zorvik repair --in-place " +
           shellWord(file.path) + "` rewrites them with CR LF\n";
  return out;
}

CheckTotals totalsOf(const std::vector<CheckedFile>& files, double seconds) {
  CheckTotals totals;
  totals.files = files.size();
  totals.seconds = seconds;
  for (const CheckedFile& file : files) {
    switch (file.result.verdict) {
      case Verdict::Passed:
        ++totals.passed;
        break;
      case Verdict::Failed:
        ++totals.failed;
        break;
      case Verdict::Unreadable:
        ++totals.unreadable;
        break;
    }
  }
  return totals;
}

std::string summaryLine(const CheckTotals& totals) {
  return countText(totals.files, "file", "files") + ": " +
         toText(static_cast<long long>(totals.passed)) + " passed, " +
         toText(static_cast<long long>(totals.failed)) + " failed, " +
         toText(static_cast<long long>(totals.unreadable)) + " unreadable (" +
         secondsText(totals.seconds) + " s)\n";
}

std::string jsonDocument(const std::vector<CheckedFile>& files, const CheckTotals& totals) {
  auto number = [](std::size_t n) { return toText(static_cast<long long>(n)); };
  std::string out = "{\n  \"files\": [";
  for (std::size_t f = 0; f < files.size(); ++f) {
    const FileCertification& result = files[f].result;
    out += f == 0 ? "\n" : ",\n";
    out += "    {\"path\": " + jsonString(files[f].path);
    std::string verdict = verdictWord(result.verdict);
    for (char& c : verdict) c = static_cast<char>(c - 'A' + 'a');
    out += ", \"verdict\": " + jsonString(verdict);
    out += ", \"version\": " +
           (result.version.empty() ? std::string("null") : jsonString(result.version));
    if (!result.note.empty()) out += ", \"note\": " + jsonString(result.note);
    out += ",\n     \"checks\": [";
    for (std::size_t r = 0; r < result.rows.size(); ++r) {
      const CheckOutcome& row = result.rows[r];
      out += r == 0 ? "\n" : ",\n";
      out += "       {\"check\": " + jsonString(checkNumber(row.group, row.row)) +
             ", \"title\": " + jsonString(row.title) +
             ", \"outcome\": " + jsonString(outcomeWord(row.outcome)) + ", \"findings\": [";
      for (std::size_t i = 0; i < row.findings.size(); ++i) {
        const Finding& finding = row.findings[i];
        out += i == 0 ? "\n" : ",\n";
        out += "         {\"line\": " + number(finding.line) +
               ", \"message\": " + jsonString(finding.message) +
               ", \"quoted\": " + jsonString(finding.quoted.value_or("")) + "}";
      }
      out += row.findings.empty() ? "]}" : "]}";
    }
    out += result.rows.empty() ? "]}" : "\n     ]}";
  }
  out += files.empty() ? "],\n" : "\n  ],\n";
  out += "  \"summary\": {\"files\": " + number(totals.files) +
         ", \"passed\": " + number(totals.passed) + ", \"failed\": " + number(totals.failed) +
         ", \"unreadable\": " + number(totals.unreadable) +
         ", \"seconds\": " + secondsText(totals.seconds) + "}\n}\n";
  return out;
}

}  // namespace zorvik
