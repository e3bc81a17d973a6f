#include "base/in_place.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <thread>

#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

namespace fs = std::filesystem;
using testing::readBytes;
using testing::ScratchDir;

// An edit that puts "DONE" in place of "TODO", and has nothing to do once it is there.
EditPlan replaceTodo(const std::string& path) {
  std::string text = readBytes(path);
  std::size_t at = text.find("TODO");
  if (at == std::string::npos) return {EditPlan::Kind::NothingToDo, {}, {}};
  text.replace(at, 4, "DONE");
  return {EditPlan::Kind::Write, [text](FileSink& sink) { sink.write(text); }, {}};
}

std::size_t entriesIn(const std::string& folder) {
  return static_cast<std::size_t>(
      std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(InPlaceRewrite, RefusesFilesItMustNotReplace) {
  struct Row {
    const char* what;
    std::function<void(const ScratchDir&, const std::string&)> prepare;
    std::string reason;
  };
  const Row rows[] = {
      {"read-only", [](const ScratchDir&, const std::string& p) { ::chmod(p.c_str(), 0444); },
       "it is read-only"},
      {"hard link",
       [](const ScratchDir& d, const std::string& p) { fs::create_hard_link(p, d.file("b.las")); },
       "it has more than one hard link"},
      {"pipe",
       [](const ScratchDir&, const std::string& p) {
         fs::remove(p);
         ::mkfifo(p.c_str(), 0644);
       },
       "it is not a regular file"},
      {"missing", [](const ScratchDir&, const std::string& p) { fs::remove(p); },
       "it could not be opened: No such file or directory"},
      {"refused by the edit", nullptr, "no such line"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    ScratchDir dir;
    std::string path = dir.write("a.las", "STOP TODO\r\n");
    if (row.prepare) row.prepare(dir, path);
    std::size_t before = entriesIn(dir.path());
    RewriteResult result = rewriteInPlace(path, [&](const std::string& p) {
      return row.prepare ? replaceTodo(p) : EditPlan{EditPlan::Kind::Refuse, {}, "no such line"};
    });
    EXPECT_EQ(result.outcome, RewriteOutcome::Refused);
    EXPECT_EQ(result.reason, row.reason);
    if (fs::is_regular_file(path)) {
      EXPECT_EQ(readBytes(path), "STOP TODO\r\n");
    }
    EXPECT_EQ(entriesIn(dir.path()), before);
  }
}

TEST(InPlaceRewrite, LeavesAFileThatGrowsWhileItIsRewritten) {
  // A logger still appending rows: whatever it wrote must survive, so the rewrite gives way.
  ScratchDir dir;
  std::string path = dir.write("live.las", "STOP TODO\r\n1 2\r\n");
  RewriteResult result = rewriteInPlace(path, [](const std::string& p) {
    EditPlan plan = replaceTodo(p);
    Producer produce = plan.produce;
    plan.produce = [p, produce](FileSink& sink) {
      produce(sink);
      std::ofstream(p, std::ios::binary | std::ios::app) << "3 4\r\n";
    };
    return plan;
  });
  EXPECT_EQ(result.outcome, RewriteOutcome::Refused);
  EXPECT_EQ(result.reason, "it changed since it was read");
  EXPECT_EQ(readBytes(path), "STOP TODO\r\n1 2\r\n3 4\r\n");
  EXPECT_EQ(entriesIn(dir.path()), 1u);
}

TEST(InPlaceRewrite, RewritesTheTargetOfALink) {
  ScratchDir dir;
  std::string target = dir.write("real/a.las", "STOP TODO\r\n");
  fs::create_symlink("real/a.las", dir.file("a.las"));
  EXPECT_EQ(rewriteInPlace(dir.file("a.las"), replaceTodo).outcome, RewriteOutcome::Rewritten);
  EXPECT_TRUE(fs::is_symlink(dir.file("a.las")));
  EXPECT_EQ(readBytes(target), "STOP DONE\r\n");
  EXPECT_EQ(rewriteInPlace(dir.file("a.las"), replaceTodo).outcome, RewriteOutcome::NothingToDo);
}

TEST(InPlaceRewrite, RunsOnOneFileTakeTurnsAndTheLaterOnesSeeTheChange) {
  ScratchDir dir;
  std::string path = dir.write("a.las", "STOP TODO\r\n" + std::string(100000, 'x') + "\r\n");
  std::atomic<int> rewritten{0};
  std::atomic<int> nothing{0};
  std::vector<std::thread> runs;
  for (int i = 0; i < 6; ++i)
    runs.emplace_back([&] {
      RewriteResult result = rewriteInPlace(path, replaceTodo);
      if (result.outcome == RewriteOutcome::Rewritten) ++rewritten;
      if (result.outcome == RewriteOutcome::NothingToDo) ++nothing;
    });
  for (std::thread& run : runs) run.join();
  EXPECT_EQ(rewritten.load(), 1);
  EXPECT_EQ(nothing.load(), 5);
  EXPECT_EQ(readBytes(path).substr(0, 11), "STOP DONE\r\n");
  EXPECT_EQ(entriesIn(dir.path()), 1u);
}

}  // namespace
}  // namespace zorvik
