// `zorvik check`: the files to certify, the workers, and the output in input order.
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <filesystem>
#include <mutex>
#include <optional>
#include <set>
#include <thread>

#include "base/text.h"
#include "run/certify_file.h"
#include "run/check_output.h"
#include "run/cli_options.h"
#include "run/tool.h"

namespace zorvik {

namespace {

namespace fs = std::filesystem;

// Files over this size get their own progress line.
constexpr std::uintmax_t kBigFile = 50ull * 1024 * 1024;
// Runs over this many files show a progress line.
constexpr std::size_t kManyFiles = 20;

struct Job {
  std::string path;
  std::string reportFile;
};

bool isLasName(const fs::path& path) {
  return iendsWith(path.filename().string(), ".las");
}

// The files named by `operands`, folders expanded in sorted order. A name that is neither a file
// nor a folder stays in the list and is reported unreadable.
std::vector<std::string> filesOf(const std::vector<std::string>& operands) {
  std::vector<std::string> files;
  for (const std::string& operand : operands) {
    std::error_code ec;
    if (!fs::is_directory(operand, ec)) {
      files.push_back(operand);
      continue;
    }
    std::vector<std::string> found;
    fs::recursive_directory_iterator walk(operand, fs::directory_options::skip_permission_denied,
                                          ec);
    for (; !ec && walk != fs::recursive_directory_iterator(); walk.increment(ec)) {
      const fs::path& path = walk->path();
      if (path.filename().string().starts_with(".")) {
        if (walk->is_directory(ec)) walk.disable_recursion_pending();
        continue;
      }
      if (isLasName(path) && walk->is_regular_file(ec)) found.push_back(path.string());
    }
    if (found.empty())
      std::fprintf(stderr, "zorvik check: no .las files under %s\n", operand.c_str());
    std::sort(found.begin(), found.end());
    files.insert(files.end(), found.begin(), found.end());
  }
  return files;
}

// Report names: the file's name with ".log" in place of its extension; a name taken by an
// earlier file of the run gets "-2", "-3"... so no report replaces another.
std::vector<Job> jobsOf(const std::vector<std::string>& files, const std::string& reportDir) {
  std::vector<Job> jobs;
  std::set<std::string> taken;
  for (const std::string& file : files) {
    Job job{file, ""};
    if (!reportDir.empty()) {
      std::string stem = fs::path(file).stem().string();
      std::string name = stem + ".log";
      for (int n = 2; taken.count(name) != 0; ++n) name = stem + "-" + std::to_string(n) + ".log";
      taken.insert(name);
      job.reportFile = (fs::path(reportDir) / name).string();
    }
    jobs.push_back(std::move(job));
  }
  return jobs;
}

std::optional<unsigned> jobCount(const std::string& text) {
  unsigned count = 0;
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), count);
  if (ec != std::errc() || end != text.data() + text.size() || count == 0) return std::nullopt;
  return count;
}

// A line on standard error that the next one overwrites; only on a terminal.
class Progress {
 public:
  Progress(const std::vector<Job>& jobs) : total_(jobs.size()) {
    if (!isatty(STDERR_FILENO)) return;
    std::error_code ec;
    on_ = jobs.size() > kManyFiles;
    for (const Job& job : jobs) on_ = on_ || fs::file_size(job.path, ec) > kBigFile;
  }
  ~Progress() { clear(); }
  void show(std::size_t index, const std::string& path) {
    if (!on_) return;
    std::fprintf(stderr, "\r\033[K[%zu/%zu] %s", index + 1, total_, path.c_str());
    std::fflush(stderr);
    shown_ = true;
  }
  void clear() {
    if (!shown_) return;
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
    shown_ = false;
  }

 private:
  std::size_t total_;
  bool on_ = false;
  bool shown_ = false;
};

}  // namespace

int runCheck(const ParsedOptions& options) {
  const auto started = std::chrono::steady_clock::now();
  if (options.operands.empty()) return usageError("check", "give at least one LAS file or folder");
  unsigned jobs = std::max(1u, std::thread::hardware_concurrency());
  if (auto text = options.value("jobs")) {
    auto count = jobCount(*text);
    if (!count)
      return usageError("check", "-j takes a whole number of 1 or more, not '" + *text + "'");
    jobs = *count;
  }
  std::string reportDir = options.value("report-dir").value_or("");
  if (options.has("report-dir")) {
    std::error_code ec;
    if (reportDir.empty()) return usageError("check", "--report-dir needs a folder name");
    fs::create_directories(reportDir, ec);
    if (!fs::is_directory(reportDir, ec))
      return usageError("check", "cannot make the report folder " + reportDir);
  }
  const bool json = options.has("json");
  const bool quiet = options.has("quiet");
  const bool wrap = options.has("wrap");

  const std::vector<Job> work = jobsOf(filesOf(options.operands), reportDir);
  std::vector<CheckedFile> done(work.size());
  std::vector<char> ready(work.size(), 0);
  std::mutex lock;
  std::condition_variable changed;
  std::size_t next = 0;

  // Workers take the files in order; the printing below waits for each in turn, so the output
  // is the same whatever the number of workers.
  auto worker = [&] {
    for (;;) {
      std::size_t index;
      {
        std::lock_guard<std::mutex> hold(lock);
        if (next == work.size()) return;
        index = next++;
      }
      CheckedFile file{work[index].path,
                       certifyFile(work[index].path, CertifyOptions{wrap, work[index].reportFile})};
      {
        std::lock_guard<std::mutex> hold(lock);
        done[index] = std::move(file);
        ready[index] = 1;
      }
      changed.notify_all();
    }
  };
  std::vector<std::jthread> workers;
  for (unsigned i = 0; i < std::min<std::size_t>(jobs, work.size()); ++i)
    workers.emplace_back(worker);

  bool reportTrouble = false;
  {
    Progress progress(work);
    for (std::size_t index = 0; index < work.size(); ++index) {
      progress.show(index, work[index].path);
      std::unique_lock<std::mutex> hold(lock);
      changed.wait(hold, [&] { return ready[index] != 0; });
      const CheckedFile& file = done[index];
      hold.unlock();
      if (!work[index].reportFile.empty() && file.result.verdict != Verdict::Unreadable &&
          !file.result.reportWritten && file.result.note.empty()) {
        progress.clear();
        std::fprintf(stderr, "zorvik check: could not write %s\n", work[index].reportFile.c_str());
        reportTrouble = true;
      }
      if (json || quiet) continue;
      progress.clear();
      std::fputs(fileLines(file).c_str(), stdout);
      std::fflush(stdout);
    }
  }
  workers.clear();

  const double seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
  const CheckTotals totals = totalsOf(done, seconds);
  std::fputs(json ? jsonDocument(done, totals).c_str() : summaryLine(totals).c_str(), stdout);
  std::fflush(stdout);

  if (totals.unreadable > 0 || reportTrouble) return EXIT_TROUBLE;
  return totals.failed > 0 ? EXIT_SOME_FAILED : EXIT_ALL_PASSED;
}

}  // namespace zorvik
