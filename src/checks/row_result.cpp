#include "checks/row_result.h"

namespace zorvik {

namespace {

constexpr std::string_view kLineBreak = "\r\n";

std::size_t textSizeOf(const Finding& finding) {
  std::size_t size = finding.message.size();
  if (finding.lineBreak != FindingBreak::None) size += kLineBreak.size();
  if (finding.quoted) size += kLineBreak.size() + finding.quoted->size();
  return size;
}

}  // namespace

void Finding::appendText(std::string& out) const {
  if (lineBreak == FindingBreak::Before) out += kLineBreak;
  out += message;
  if (quoted) {
    out += kLineBreak;
    out += *quoted;
  }
  if (lineBreak == FindingBreak::After) out += kLineBreak;
}

RowResult RowResult::saying(std::string text) {
  RowResult row;
  row.add(Finding{std::move(text), std::nullopt, 0, FindingBreak::None});
  return row;
}

void RowResult::add(Finding finding) {
  const std::size_t size = textSizeOf(finding);
  if (size == 0) return;
  textBytes_ += size;
  findings_.push_back(std::move(finding));
}

void RowResult::append(const RowResult& other) {
  for (const Finding& finding : other.findings_) add(finding);
}

std::string RowResult::text() const {
  std::string out;
  out.reserve(textSize());
  if (blank_) out += ' ';
  for (const Finding& finding : findings_) finding.appendText(out);
  return out;
}

}  // namespace zorvik
