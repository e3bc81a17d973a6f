#include "transform/param_writer.h"

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <vector>

#include "las/header_line.h"
#include "las/line_reader.h"
#include "las/sections.h"
#include "las/text.h"

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

// Copies `count` bytes (all that remain when negative) from `in` to `out`.
bool copyBytes(std::FILE* in, std::FILE* out, std::int64_t count, std::vector<char>& buffer) {
  while (count != 0) {
    std::size_t want = buffer.size();
    if (count > 0 && static_cast<std::int64_t>(want) > count)
      want = static_cast<std::size_t>(count);
    std::size_t got = std::fread(buffer.data(), 1, want, in);
    if (got > 0 && std::fwrite(buffer.data(), 1, got, out) != got) return false;
    if (count > 0) count -= static_cast<std::int64_t>(got);
    if (got < want) return count <= 0 && !std::ferror(in);
  }
  return true;
}

}  // namespace

bool replaceLineValue(std::string_view line, std::string_view newValue, std::string& out) {
  out.clear();
  if (classifyHeaderLine(line) != LINE_OK) return false;
  std::size_t period = line.find('.');
  std::size_t colon = static_cast<std::size_t>(delimiterColon(line)) - 1;
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
    if (!t.empty() && t[0] == '~') {
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

std::string temporaryNameBeside(const std::string& path) {
  std::error_code ec;
  for (int n = 1;; ++n) {
    std::string name = path + "~" + toText(n) + ".tmp";
    if (!std::filesystem::exists(name, ec)) return name;
  }
}

bool copyWithReplacement(const std::string& source, const std::string& target, std::int64_t start,
                         std::int64_t length, std::string_view replacement) {
  if (start < 1 || length < 0) return false;
  std::FILE* in = std::fopen(source.c_str(), "rb");
  if (in == nullptr) return false;
  std::string temp = temporaryNameBeside(target);
  std::FILE* out = std::fopen(temp.c_str(), "wb");
  if (out == nullptr) {
    std::fclose(in);
    return false;
  }
  std::vector<char> buffer(1 << 20);
  bool ok = copyBytes(in, out, start - 1, buffer) &&
            std::fwrite(replacement.data(), 1, replacement.size(), out) == replacement.size() &&
            std::fseek(in, static_cast<long>(start - 1 + length), SEEK_SET) == 0 &&
            copyBytes(in, out, -1, buffer);
  std::fclose(in);
  ok = (std::fclose(out) == 0) && ok;

  std::error_code ec;
  if (ok && std::filesystem::exists(target, ec)) {
    auto perms = std::filesystem::status(target, ec).permissions();
    if (!ec) std::filesystem::permissions(temp, perms, ec);
  }
  if (ok) {
    std::filesystem::rename(temp, target, ec);
    ok = !ec;
  }
  if (!ok) std::filesystem::remove(temp, ec);
  return ok;
}

bool writeParameterValue(const std::string& fileName, std::string_view sectionName,
                         std::string_view mnemonic, std::string_view newValue) {
  std::int64_t start = 0;
  std::int64_t length = 0;
  std::string line;
  std::string rewritten;
  if (!findParameterLine(fileName, sectionName, mnemonic, start, length, line)) return false;
  if (!replaceLineValue(line, newValue, rewritten)) return false;
  return copyWithReplacement(fileName, fileName, start, length, rewritten);
}

}  // namespace zorvik
