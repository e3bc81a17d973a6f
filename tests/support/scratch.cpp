#include "support/scratch.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "base/command_log.h"
#include "support/batch_run.h"

namespace fs = std::filesystem;

namespace zorvik::testing {

ScratchDir::ScratchDir() {
  std::string pattern = (fs::temp_directory_path() / "zorvik-test-XXXXXX").string();
  std::vector<char> buffer(pattern.begin(), pattern.end());
  buffer.push_back('\0');
  if (mkdtemp(buffer.data()) != nullptr) path_ = buffer.data();
}

ScratchDir::~ScratchDir() {
  std::error_code ec;
  if (!path_.empty()) fs::remove_all(path_, ec);
}

std::string ScratchDir::write(const std::string& name, const std::string& bytes) const {
  std::string full = file(name);
  fs::create_directories(fs::path(full).parent_path());
  std::ofstream out(full, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return full;
}

const ScratchDir& sharedScratch() {
  static const ScratchDir dir;
  return dir;
}

std::string scratchFolder() {
  return sharedScratch().path();
}

std::string writeScratchFile(const std::string& name, const std::string& bytes) {
  return sharedScratch().write(name, bytes);
}

std::vector<std::string> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::string crlfLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

RunSandbox::RunSandbox() {
  const char* home = std::getenv("XDG_CONFIG_HOME");
  hadConfigHome_ = home != nullptr;
  if (home != nullptr) savedConfigHome_ = home;
  fs::create_directories(dir_.file("bin"));
  setenv("XDG_CONFIG_HOME", dir_.file("config").c_str(), 1);
  setProgramFolder(dir_.file("bin"));
}

RunSandbox::~RunSandbox() {
  setProgramFolder("");
  if (hadConfigHome_)
    setenv("XDG_CONFIG_HOME", savedConfigHome_.c_str(), 1);
  else
    unsetenv("XDG_CONFIG_HOME");
}

std::string RunSandbox::commandLog() const {
  return readBytes(dir_.file("bin/command.log"));
}

std::string RunSandbox::settingsText() const {
  return readBytes(dir_.file("config/Zorvik/Zorvik.conf"));
}

void RunSandbox::writeSettings(const std::string& text) const {
  dir_.write("config/Zorvik/Zorvik.conf", text);
}

std::string commandLogMessages(const std::string& log) {
  std::string messages;
  std::size_t start = 0;
  bool header = true;
  while (start < log.size()) {
    std::size_t end = log.find("\r\n", start);
    if (end == std::string::npos) end = log.size();
    if (!header) messages += log.substr(start, end - start) + "\n";
    header = !header;
    start = end + 2;
  }
  return messages;
}

}  // namespace zorvik::testing
