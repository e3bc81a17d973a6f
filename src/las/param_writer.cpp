#include "las/param_writer.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <vector>

#include "base/text.h"
#include "las/header_line.h"
#include "las/line_reader.h"
#include "las/lines.h"
#include "las/sections.h"

namespace zorvik {

namespace {

std::size_t leadingBlanks(std::string_view s) {
  std::size_t n = 0;
  while (n < s.size() && s[n] == ' ') ++n;
  return n;
}

std::size_t trailingBlanks(std::string_view s) {
  std::size_t n = 0;
  while (n < s.size() && s[s.size() - 1 - n] == ' ') ++n;
  return n;
}

}  // namespace

bool replaceLineValue(std::string_view line, std::string_view newValue, std::string& out) {
  out.clear();
  if (classifyHeaderLine(line) != LineKind::Ok) return false;
  std::size_t period = line.find('.');
  std::size_t colon = delimiterColon(line);
  if (period == std::string_view::npos || colon <= period || colon >= line.size()) return false;

  // The value lies after the unit (which is glued to the period) and before the colon.
  std::size_t regionStart = period + 1;
  if (line[regionStart] != ' ') {
    std::size_t blank = line.find(' ', regionStart);
    regionStart = (blank == std::string_view::npos || blank > colon) ? colon : blank;
  }
  std::string_view region = line.substr(regionStart, colon - regionStart);
  std::size_t width = region.size();
  std::size_t lead = leadingBlanks(region);
  std::size_t trail = lead == width ? 0 : trailingBlanks(region);
  std::size_t n = newValue.size();

  std::string newRegion;
  if (width == 0) {
    newRegion = " " + std::string(newValue) + " ";
  } else if (lead == width) {
    // No value yet: write it after one blank and keep the colon where it was if it fits.
    newRegion = " " + std::string(newValue);
    newRegion.append(width > n + 1 ? width - n - 1 : 1, ' ');
  } else if (trail <= 1 && lead > 1) {
    newRegion.assign(width > n + trail + 1 ? width - n - trail : 1, ' ');
    newRegion.append(newValue);
    newRegion.append(trail, ' ');
  } else {
    newRegion.assign(lead, ' ');
    newRegion.append(newValue);
    std::size_t used = lead + n;
    newRegion.append(width > used + 1 ? width - used : (trail > 0 ? 1 : 0), ' ');
  }
  out.reserve(line.size() + n);
  out.append(line.substr(0, regionStart));
  out.append(newRegion);
  out.append(line.substr(colon));
  return true;
}

bool findParameterLine(const std::string& fileName, std::string_view sectionName,
                       std::string_view mnemonic, std::int64_t& start, std::int64_t& length,
                       std::string& line) {
  start = length = 0;
  line.clear();
  LineReader file;
  if (!file.open(fileName) || trimView(mnemonic).empty()) return false;
  bool inSection = false;
  bool seenSection = false;
  std::string_view text;
  std::string association;
  while (file.readLine(text)) {
    std::string_view t = trimView(text);
    if (isTitleLine(t)) {
      if (seenSection) return false;  // the section ended without the mnemonic
      inSection = iequals(parseTitleLine(t, association), sectionName);
      seenSection = inSection;
      continue;
    }
    if (!inSection) continue;
    std::size_t d = t.find('.');
    if (d == std::string_view::npos || !iequals(trimView(t.substr(0, d)), trimView(mnemonic)))
      continue;
    if (file.lineTruncated()) return false;
    start = file.lineStart();
    length = file.lineLength();
    line.assign(text);
    return true;
  }
  return false;
}

namespace {

// Streams `source` into `sink` with the `length` bytes at 1-based `start` replaced.
void copyReplacing(const std::string& source, std::int64_t start, std::int64_t length,
                   std::string_view replacement, FileSink& sink) {
  std::FILE* in = std::fopen(source.c_str(), "rb");
  if (in == nullptr) return sink.abandon("it could not be read", errno);
  std::vector<char> buffer(1 << 20);
  std::int64_t position = 0;  // 0-based offset of the next byte read
  bool replaced = false;
  while (true) {
    if (!replaced && position == start - 1) {
      sink.write(replacement);
      if (std::fseek(in, static_cast<long>(start - 1 + length), SEEK_SET) != 0) break;
      position = start - 1 + length;
      replaced = true;
    }
    std::size_t want = buffer.size();
    if (!replaced)
      want = static_cast<std::size_t>(
          std::min<std::int64_t>(static_cast<std::int64_t>(want), start - 1 - position));
    std::size_t got = std::fread(buffer.data(), 1, want, in);
    sink.write(std::string_view(buffer.data(), got));
    position += static_cast<std::int64_t>(got);
    if (got < want) break;
  }
  bool ok = replaced && !std::ferror(in);
  int error = errno;
  std::fclose(in);
  if (!ok) sink.abandon("it could not be read", error);
}

}  // namespace

bool copyWithReplacement(const std::string& source, const std::string& target, std::int64_t start,
                         std::int64_t length, std::string_view replacement) {
  if (start < 1 || length < 0) return false;
  return !writeFileSafely(target, [&](FileSink& sink) {
            copyReplacing(source, start, length, replacement, sink);
          }).has_value();
}

ParameterRewrite rewriteParameterInPlace(const std::string& fileName,
                                         std::initializer_list<std::string_view> sectionNames,
                                         std::string_view mnemonic,
                                         std::optional<std::string_view> expectedOld,
                                         std::string_view newValue) {
  ParameterRewrite rewrite;
  rewrite.result = rewriteInPlace(fileName, [&](const std::string& path) {
    // Looked at afresh under the lock: another run may have rewritten the file meanwhile.
    std::int64_t start = 0;
    std::int64_t length = 0;
    std::string line;
    bool found = false;
    for (std::string_view section : sectionNames)
      if ((found = findParameterLine(path, section, mnemonic, start, length, line))) break;
    std::string mnemonicText(trimView(mnemonic));
    if (!found) return EditPlan{EditPlan::Kind::Refuse, {}, "it has no " + mnemonicText + " line"};
    rewrite.oldValue = trim(fieldValue(line));
    if (rewrite.oldValue == trimView(newValue))
      return EditPlan{EditPlan::Kind::NothingToDo, {}, {}};
    if (expectedOld && !iequals(rewrite.oldValue, trimView(*expectedOld)))
      return EditPlan{
          EditPlan::Kind::Refuse, {}, "its " + mnemonicText + " value changed since it was read"};
    auto edited = std::make_shared<std::string>();
    if (!replaceLineValue(line, newValue, *edited))
      return EditPlan{
          EditPlan::Kind::Refuse, {}, "its " + mnemonicText + " line is not well formed"};
    return EditPlan{EditPlan::Kind::Write,
                    [path, start, length, edited](FileSink& sink) {
                      copyReplacing(path, start, length, *edited, sink);
                    },
                    {}};
  });
  return rewrite;
}

bool writeParameterValue(const std::string& fileName, std::string_view sectionName,
                         std::string_view mnemonic, std::string_view newValue) {
  return rewriteParameterInPlace(fileName, {sectionName}, mnemonic, std::nullopt, newValue)
             .result.outcome != RewriteOutcome::Refused;
}

}  // namespace zorvik
