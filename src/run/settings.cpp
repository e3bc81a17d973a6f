#include "run/settings.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "base/file_writer.h"
#include "base/text.h"
#include "run/session.h"

namespace zorvik {

namespace {

constexpr const char* kSection = "Startup";

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

// The store is small; it is read whole. Lines keep no terminator (LF or CR LF both accepted).
bool readLines(const std::string& path, std::vector<std::string>& lines) {
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return false;
  std::string text;
  char buffer[4096];
  std::size_t got = 0;
  while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
    text.append(buffer, got);
    if (text.size() > (1u << 20)) break;  // not a settings file; what was read is enough
  }
  std::fclose(file);
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    std::string line = text.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(std::move(line));
    start = end + 1;
  }
  return true;
}

bool isSectionLine(std::string_view line, std::string_view& name) {
  std::string_view t = trimView(line);
  if (t.size() < 2 || t.front() != '[' || t.back() != ']') return false;
  name = trimView(t.substr(1, t.size() - 2));
  return true;
}

// Splits "key=value"; the key is trimmed, the value kept as written.
bool splitEntry(std::string_view line, std::string_view& key, std::string_view& value) {
  std::size_t eq = line.find('=');
  if (eq == std::string_view::npos) return false;
  key = trimView(line.substr(0, eq));
  value = line.substr(eq + 1);
  return !key.empty();
}

// An option is on only when its text starts with a number that rounds to -1; anything else
// (a stored "1" included) is off.
bool optionIsOn(const std::string& text) {
  double number = leadingNumber(text);
  if (!(std::fabs(number) < 32768.0)) return false;
  return std::nearbyint(number) == -1.0;
}

}  // namespace

std::string settingsPath() {
  std::string base = environment("XDG_CONFIG_HOME");
  if (base.empty()) {
    std::string home = environment("HOME");
    if (home.empty()) return {};
    base = home + "/.config";
  }
  return base + "/Zorvik/Zorvik.conf";
}

std::string readSetting(const std::string& key, const std::string& fallback) {
  std::vector<std::string> lines;
  std::string path = settingsPath();
  if (path.empty() || !readLines(path, lines)) return fallback;
  bool inSection = false;
  for (const std::string& line : lines) {
    std::string_view name, k, v;
    if (isSectionLine(line, name)) {
      inSection = iequals(name, kSection);
    } else if (inSection && splitEntry(line, k, v) && iequals(k, key)) {
      return std::string(v);
    }
  }
  return fallback;
}

void writeSetting(const std::string& key, const std::string& value) {
  std::string path = settingsPath();
  if (path.empty()) return;
  std::vector<std::string> lines;
  readLines(path, lines);

  // Replace the key inside [Startup], or add it at the end of that section (made when missing).
  std::size_t header = lines.size();
  for (std::size_t i = 0; i < lines.size() && header == lines.size(); ++i) {
    std::string_view name;
    if (isSectionLine(lines[i], name) && iequals(name, kSection)) header = i;
  }
  if (header == lines.size()) {
    if (!lines.empty() && !trimView(lines.back()).empty()) lines.emplace_back();
    lines.push_back(std::string("[") + kSection + "]");
    header = lines.size() - 1;
  }
  std::size_t sectionEnd = header + 1;
  std::string_view name, k, v;
  while (sectionEnd < lines.size() && !isSectionLine(lines[sectionEnd], name)) ++sectionEnd;
  bool replaced = false;
  for (std::size_t i = header + 1; i < sectionEnd && !replaced; ++i) {
    if (splitEntry(lines[i], k, v) && iequals(k, key)) {
      lines[i] = key + "=" + value;
      replaced = true;
    }
  }
  if (!replaced) {
    // Blank lines that separate the section from the next one stay after the new entry.
    while (sectionEnd > header + 1 && trimView(lines[sectionEnd - 1]).empty()) --sectionEnd;
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(sectionEnd), key + "=" + value);
  }

  std::error_code ec;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ec);
  // A store that cannot be written stays as it was; the settings are not worth a complaint.
  writeFileSafely(path, [&lines](FileSink& sink) {
    for (const std::string& line : lines) {
      sink.write(line);
      sink.write("\n");
    }
  });
}

void readSettings(Session& state) {
  state.lasFile = readSetting("lasFile", "");
  state.writeLog = optionIsOn(readSetting("writeLog", ""));
  state.doWrap = optionIsOn(readSetting("doWrap", ""));
  state.showDetails = true;
  if (state.repairChoice < 0 || state.repairChoice > 2) state.repairChoice = 0;
}

void saveSettings(const Session& state) {
  writeSetting("lasFile", state.lasFile);
  writeSetting("writeLog", state.writeLog ? "-1" : "0");
  writeSetting("doWrap", state.doWrap ? "-1" : "0");
}

void saveLasFileSetting(const std::string& lasFile) {
  writeSetting("lasFile", lasFile);
}

}  // namespace zorvik
