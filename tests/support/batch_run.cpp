#include "support/batch_run.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "support/scratch.h"

namespace fs = std::filesystem;

namespace zorvik::testing {

namespace {

void writeBytes(const fs::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

// The program keeps command.log beside itself, so each run gets its own link (or copy) of the
// executable: parallel tests then never read each other's entries.
fs::path placeExecutable(const fs::path& folder) {
  fs::path exe = folder / "bin" / "zorvik";
  fs::create_directories(exe.parent_path());
  std::error_code ec;
  fs::create_hard_link(ZORVIK_EXE, exe, ec);
  if (ec) fs::copy_file(ZORVIK_EXE, exe, fs::copy_options::overwrite_existing);
  return exe;
}

pid_t startProgram(const fs::path& exe, const std::vector<std::string>& args,
                   const fs::path& workDir, const fs::path& configHome) {
  pid_t child = fork();
  if (child != 0) return child;
  setenv("XDG_CONFIG_HOME", configHome.c_str(), 1);
  if (chdir(workDir.c_str()) != 0) _exit(126);
  std::vector<char*> argv;
  std::string program = exe.string();
  argv.push_back(program.data());
  std::vector<std::string> copies = args;
  for (std::string& a : copies) argv.push_back(a.data());
  argv.push_back(nullptr);
  execv(program.c_str(), argv.data());
  _exit(127);
}

int waitProgram(pid_t child) {
  if (child < 0) return -1;
  int status = 0;
  if (waitpid(child, &status, 0) < 0) return -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

int runProgram(const fs::path& exe, const std::vector<std::string>& args, const fs::path& workDir,
               const fs::path& configHome) {
  return waitProgram(startProgram(exe, args, workDir, configHome));
}

void rememberLasFile(const fs::path& configHome, const fs::path& lasFile) {
  fs::create_directories(configHome / "Zorvik");
  writeBytes(configHome / "Zorvik" / "Zorvik.conf",
             "[Startup]\nlasFile=" + lasFile.string() + "\nwriteLog=0\ndoWrap=0\n");
}

// Line 2 of a report ends in the date and time of the run; pin it for comparisons.
std::string normaliseDate(const std::string& report) {
  std::size_t lineStart = report.find("\r\n");
  if (lineStart == std::string::npos) return report;
  lineStart += 2;
  std::size_t lineEnd = report.find("\r\n", lineStart);
  if (lineEnd == std::string::npos) lineEnd = report.size();
  std::size_t date = report.find(" Date: ", lineStart);
  if (date == std::string::npos || date > lineEnd) return report;
  date += 7;
  return report.substr(0, date) + "<date>" + report.substr(lineEnd);
}

std::string visible(const std::string& line) {
  std::string out;
  for (char c : line) {
    if (c == '\r')
      out += "\\r";
    else if (c == '\t')
      out += "\\t";
    else
      out += c;
  }
  return out;
}

}  // namespace

std::string readBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return {};
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

BatchResult certifyInBatch(const std::string& lasPath, bool wrapChecks) {
  BatchResult result;
  const ScratchDir dir;
  if (dir.path().empty()) return result;
  const fs::path scratch = dir.path();

  fs::path exe = placeExecutable(scratch);
  fs::path work = scratch / "work";
  fs::create_directories(work);
  fs::path lasCopy = work / fs::path(lasPath).filename();
  std::error_code ec;
  fs::copy_file(lasPath, lasCopy, ec);  // a missing input stays missing

  // Start-up lets a batch run through only once a ".las" name has been remembered.
  fs::path configHome = scratch / "config";
  rememberLasFile(configHome, lasCopy);

  fs::path logFile = work / "out.log";
  std::vector<std::string> args{lasCopy.string(), logFile.string()};
  if (wrapChecks) args.push_back("/W");
  runProgram(exe, args, work, configHome);

  result.reportWritten = fs::exists(logFile);
  result.report = normaliseDate(readBytes(logFile.string()));
  result.commandLog = readBytes((exe.parent_path() / "command.log").string());
  return result;
}

ProgramSandbox::ProgramSandbox() {
  std::string pattern = (fs::temp_directory_path() / "zorvik-batch-XXXXXX").string();
  if (mkdtemp(pattern.data()) != nullptr) folder_ = pattern;
  exe_ = placeExecutable(folder_).string();
  fs::create_directories(work(""));
  rememberLasFile(fs::path(folder_) / "config", work("remembered.las"));
}

ProgramSandbox::~ProgramSandbox() {
  std::error_code ec;
  if (!folder_.empty()) fs::remove_all(folder_, ec);
}

std::string ProgramSandbox::work(const std::string& name) const {
  return folder_ + "/work/" + name;
}

std::string ProgramSandbox::commandLog() const {
  return readBytes((fs::path(exe_).parent_path() / "command.log").string());
}

pid_t ProgramSandbox::start(const std::vector<std::string>& args) const {
  return startProgram(exe_, args, work(""), fs::path(folder_) / "config");
}

int ProgramSandbox::wait(pid_t child) {
  return waitProgram(child);
}

std::string compareWithGolden(const std::string& actual, const std::string& goldenPath) {
  const char* update = std::getenv("ZORVIK_UPDATE_GOLDEN");
  if (update != nullptr && std::string(update) == "1") {
    fs::create_directories(fs::path(goldenPath).parent_path());
    writeBytes(goldenPath, actual);
    return {};
  }
  if (!fs::exists(goldenPath))
    return "golden file " + goldenPath + " is missing (run with ZORVIK_UPDATE_GOLDEN=1)";
  std::string expected = readBytes(goldenPath);
  if (expected == actual) return {};

  std::size_t line = 1, e = 0, a = 0;
  while (true) {
    std::size_t eEnd = expected.find('\n', e), aEnd = actual.find('\n', a);
    std::string eLine = expected.substr(e, eEnd == std::string::npos ? eEnd : eEnd - e);
    std::string aLine = actual.substr(a, aEnd == std::string::npos ? aEnd : aEnd - a);
    if (eLine != aLine || eEnd == std::string::npos || aEnd == std::string::npos) {
      return "differs from " + goldenPath + " at line " + std::to_string(line) +
             "\n  expected: " + visible(eLine) + "\n  actual:   " + visible(aLine);
    }
    e = eEnd + 1;
    a = aEnd + 1;
    ++line;
  }
}

std::string pinnedReport(std::string report, const std::string& folder) {
  const std::size_t line2 = report.find("\r\n");
  if (line2 == std::string::npos) return report;
  const std::size_t line2End = report.find("\r\n", line2 + 2);
  if (line2End == std::string::npos) return report;
  report.replace(line2 + 2, line2End - line2 - 2, "Zorvik Ver: <version> Date: <date>");
  if (folder.empty()) return report;
  for (std::size_t at = report.find(folder); at != std::string::npos;
       at = report.find(folder, at + 5))
    report.replace(at, folder.size(), "<dir>");
  return report;
}

std::vector<std::string> stemsIn(const std::string& folder, const std::string& extension) {
  std::vector<std::string> stems;
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(folder, ec))
    if (entry.path().extension() == extension) stems.push_back(entry.path().stem().string());
  std::sort(stems.begin(), stems.end());
  return stems;
}

std::string testNameOf(std::string name) {
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}

std::string reportWithoutFolder(const std::string& report) {
  const std::string head = "LAS Certification Result for: ";
  if (report.rfind(head, 0) != 0) return report;
  const std::size_t slash = report.rfind('/', report.find("\r\n"));
  if (slash == std::string::npos || slash < head.size()) return report;
  return head + "<folder>/" + report.substr(slash + 1);
}

}  // namespace zorvik::testing
