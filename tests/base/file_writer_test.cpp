#include "base/file_writer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <thread>
#include <vector>

#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

namespace fs = std::filesystem;
using testing::namesIn;
using testing::readBytes;
using testing::ScratchDir;

// Real calls, except the one chosen to fail (or, for writes, to stop short).
class FaultyCalls : public FileSystemCalls {
 public:
  enum class Fail { None, Open, Write, ShortWrite, Fsync, Close, Rename, Fchown, Fchmod };
  explicit FaultyCalls(Fail fail, int error = EIO) : fail_(fail), error_(error) {}

  int open(const char* path, int flags, mode_t mode) override {
    return fail_ == Fail::Open ? failed() : FileSystemCalls::open(path, flags, mode);
  }
  ssize_t write(int fd, const void* data, std::size_t size) override {
    if (fail_ == Fail::Write) return failed();
    // A full disk: the first write takes a part, the next ones take nothing.
    if (fail_ == Fail::ShortWrite) {
      if (shortDone_) return 0;
      shortDone_ = true;
      return FileSystemCalls::write(fd, data, size / 2);
    }
    return FileSystemCalls::write(fd, data, size);
  }
  int fsync(int fd) override {
    return fail_ == Fail::Fsync ? failed() : FileSystemCalls::fsync(fd);
  }
  int close(int fd) override {
    // The descriptor is released all the same, as the real call does on failure.
    int result = FileSystemCalls::close(fd);
    return fail_ == Fail::Close ? failed() : result;
  }
  int rename(const char* from, const char* to) override {
    return fail_ == Fail::Rename ? failed() : FileSystemCalls::rename(from, to);
  }
  int fchown(int fd, uid_t owner, gid_t group) override {
    return fail_ == Fail::Fchown ? failed() : FileSystemCalls::fchown(fd, owner, group);
  }
  int fchmod(int fd, mode_t mode) override {
    return fail_ == Fail::Fchmod ? failed() : FileSystemCalls::fchmod(fd, mode);
  }

 private:
  int failed() const {
    errno = error_;
    return -1;
  }
  Fail fail_;
  int error_;
  bool shortDone_ = false;
};

mode_t modeOf(const std::string& path) {
  struct stat info {};
  ::stat(path.c_str(), &info);
  return info.st_mode & 07777;
}

const std::string kOld = "old report\r\nkept whole\r\n";
// Large enough to need several buffered writes.
const std::string kNew = std::string(200000, 'n') + "\r\n";

TEST(FileWriter, AFailureAtAnyStepLeavesTheDestinationWholeAndNoTemporaryFile) {
  using Fail = FaultyCalls::Fail;
  struct Row {
    Fail fail;
    int error;
    WriteStep step;
    bool foreignOwner;  // the destination belongs to someone else (needs root to set up)
  };
  const Row rows[] = {
      {Fail::Open, EACCES, WriteStep::CreateTemporary, false},
      {Fail::Write, ENOSPC, WriteStep::Write, false},
      {Fail::ShortWrite, 0, WriteStep::Write, false},
      {Fail::Fsync, EIO, WriteStep::Sync, false},
      {Fail::Close, EIO, WriteStep::Close, false},
      {Fail::Rename, EXDEV, WriteStep::Rename, false},
      {Fail::Fchmod, EPERM, WriteStep::KeepMode, false},
      {Fail::Fchown, EPERM, WriteStep::KeepOwner, true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(static_cast<int>(row.fail));
    if (row.foreignOwner && ::geteuid() != 0) continue;
    ScratchDir dir;
    std::string destination = dir.write("out.log", kOld);
    if (row.foreignOwner) {
      ASSERT_EQ(::chown(destination.c_str(), 4321, 4321), 0);
    }
    FaultyCalls calls(row.fail, row.error);
    std::optional<WriteError> failure;
    {
      ScopedFileSystemCalls installed(calls);
      failure = writeFileSafely(destination, kNew);
    }
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->step, row.step);
    EXPECT_EQ(failure->error, row.error == 0 ? ENOSPC : row.error);
    EXPECT_EQ(readBytes(destination), kOld);
    EXPECT_EQ(namesIn(dir.path()), std::vector<std::string>{"out.log"});
  }
}

TEST(FileWriter, DescribesWhatFailedForTheCommandLog) {
  EXPECT_EQ(describeWriteError({WriteStep::Write, ENOSPC, {}}),
            "writing failed: No space left on device");
  EXPECT_EQ(describeWriteError({WriteStep::NotRegularFile, 0, {}}), "it is not a regular file");
  EXPECT_EQ(describeWriteError({WriteStep::Changed, 0, "it changed since it was read"}),
            "it changed since it was read");
  EXPECT_EQ(describeWriteError({WriteStep::Produce, ENOENT, "the source could not be read"}),
            "its new content could not be made: the source could not be read: No such file or "
            "directory");
}

TEST(FileWriter, ReplacesTheTargetOfALinkAndKeepsModeAndOwner) {
  ScratchDir dir;
  std::string target = dir.write("data/real.log", kOld);
  ASSERT_EQ(::chmod(target.c_str(), 0640), 0);
  bool root = ::geteuid() == 0;
  if (root) {
    ASSERT_EQ(::chown(target.c_str(), 4321, 4322), 0);
  }
  fs::create_symlink("data/real.log", dir.file("link.log"));
  fs::create_symlink("link.log", dir.file("link2.log"));

  ASSERT_FALSE(writeFileSafely(dir.file("link2.log"), kNew).has_value());
  EXPECT_TRUE(fs::is_symlink(dir.file("link.log")));
  EXPECT_TRUE(fs::is_symlink(dir.file("link2.log")));
  EXPECT_EQ(readBytes(target), kNew);
  EXPECT_EQ(modeOf(target), 0640u);
  if (root) {
    struct stat info {};
    ASSERT_EQ(::stat(target.c_str(), &info), 0);
    EXPECT_EQ(info.st_uid, 4321u);
    EXPECT_EQ(info.st_gid, 4322u);
  }
  EXPECT_EQ(namesIn(dir.file("data")), std::vector<std::string>{"real.log"});

  // A dangling link is followed to where it points, and the file is made there.
  fs::create_symlink("data/new.log", dir.file("dangling.log"));
  ASSERT_FALSE(writeFileSafely(dir.file("dangling.log"), "x").has_value());
  EXPECT_TRUE(fs::is_symlink(dir.file("dangling.log")));
  EXPECT_EQ(readBytes(dir.file("data/new.log")), "x");

  // Links in a loop lead nowhere.
  fs::create_symlink("loop2.log", dir.file("loop1.log"));
  fs::create_symlink("loop1.log", dir.file("loop2.log"));
  auto failure = writeFileSafely(dir.file("loop1.log"), "x");
  ASSERT_TRUE(failure.has_value());
  EXPECT_EQ(failure->step, WriteStep::Resolve);
}

TEST(FileWriter, RefusesDestinationsThatAreNotRegularFilesWithoutOpeningThem) {
  ScratchDir dir;
  // A reader on the pipe would see an open for writing; with none, such an open would hang.
  ASSERT_EQ(::mkfifo(dir.file("pipe").c_str(), 0644), 0);
  fs::create_directory(dir.file("folder"));
  fs::create_symlink("pipe", dir.file("pipe-link"));
  for (const char* name : {"pipe", "folder", "pipe-link", "/dev/null"}) {
    SCOPED_TRACE(name);
    std::string path = name[0] == '/' ? name : dir.file(name);
    auto failure = writeFileSafely(path, "x");
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->step, WriteStep::NotRegularFile);
  }
  EXPECT_TRUE(fs::is_fifo(dir.file("pipe")));
  EXPECT_EQ(namesIn(dir.path()), (std::vector<std::string>{"folder", "pipe", "pipe-link"}));
}

TEST(FileWriter, StreamsFromAProducerAndStopsWhenItGivesUp) {
  ScratchDir dir;
  std::string destination = dir.write("out.las", kOld);
  auto failure = writeFileSafely(destination, [](FileSink& sink) {
    for (int i = 0; i < 1000; ++i) sink.write(std::string(1000, 'a' + i % 26));
  });
  ASSERT_FALSE(failure.has_value());
  std::string written = readBytes(destination);
  ASSERT_EQ(written.size(), 1000000u);
  EXPECT_EQ(written.substr(999000), std::string(1000, 'a' + 999 % 26));

  failure = writeFileSafely(destination, [](FileSink& sink) {
    sink.write(std::string(300000, 'z'));
    sink.abandon("the source could not be read", EIO);
    sink.write("more");
  });
  ASSERT_TRUE(failure.has_value());
  EXPECT_EQ(failure->step, WriteStep::Produce);
  EXPECT_EQ(failure->detail, "the source could not be read");
  EXPECT_EQ(readBytes(destination).size(), 1000000u);
  EXPECT_EQ(namesIn(dir.path()), std::vector<std::string>{"out.las"});
}

TEST(FileWriter, ACheckBeforeTheRenameCanRefuseTheWrite) {
  ScratchDir dir;
  std::string destination = dir.write("in.las", kOld);
  WriteOptions options;
  options.beforeRename = [] {
    return std::optional<WriteError>(WriteError{WriteStep::Changed, 0, "it changed"});
  };
  auto failure = writeFileSafely(
      destination, [](FileSink& sink) { sink.write(kNew); }, options);
  ASSERT_TRUE(failure.has_value());
  EXPECT_EQ(failure->step, WriteStep::Changed);
  EXPECT_EQ(readBytes(destination), kOld);
  EXPECT_EQ(namesIn(dir.path()), std::vector<std::string>{"in.las"});
}

TEST(FileWriter, ConcurrentWritersOfOneFileNeverMixTheirContent) {
  ScratchDir dir;
  std::string destination = dir.file("shared.log");
  std::vector<std::thread> writers;
  for (int i = 0; i < 8; ++i)
    writers.emplace_back([&, i] {
      for (int round = 0; round < 10; ++round)
        EXPECT_FALSE(writeFileSafely(destination, std::string(50000, 'a' + i)).has_value());
    });
  for (std::thread& writer : writers) writer.join();
  std::string written = readBytes(destination);
  ASSERT_EQ(written.size(), 50000u);
  EXPECT_EQ(written, std::string(50000, written[0]));
  EXPECT_EQ(namesIn(dir.path()), std::vector<std::string>{"shared.log"});
}

TEST(FileWriter, RecognisesItsOwnTemporaryNames) {
  struct Row {
    const char* name;
    bool matches;
    long pid;
  };
  const Row rows[] = {
      {"well.las.zorvik-123-0a1b2c3d.tmp", true, 123},
      {".zorvik-7-ffffffff.tmp", true, 7},
      {"a.zorvik-b.zorvik-42-00000000.tmp", true, 42},
      {"well.las.zorvik-123-0a1b2c3.tmp", false, 0},    // seven hex digits
      {"well.las.zorvik-123-0A1B2C3D.tmp", false, 0},   // upper case is not ours
      {"well.las.zorvik--0a1b2c3d.tmp", false, 0},      // no process number
      {"well.las.zorvik-x1-0a1b2c3d.tmp", false, 0},    // not a number
      {"well.las.zorvik-123-0a1b2c3d.tmpx", false, 0},  // other ending
      {"well.las~1.tmp", false, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    long pid = 0;
    EXPECT_EQ(isWriterTemporaryName(row.name, pid), row.matches);
    if (row.matches) {
      EXPECT_EQ(pid, row.pid);
    }
  }
}

// The number of a process that has ended.
long deadPid() {
  pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);
  return child;
}

TEST(FileWriter, RemovesOnlyOldTemporaryFilesOfDeadRuns) {
  ScratchDir dir;
  const std::string dead = std::to_string(deadPid());
  const std::time_t runStart = std::time(nullptr);
  struct Row {
    std::string name;
    bool old;
    bool removed;
  };
  const std::vector<Row> rows = {
      {"a.las.zorvik-" + dead + "-0000beef.tmp", true, true},
      {"b.log.zorvik-" + dead + "-0000beef.tmp", false, false},  // made during this run
      {"c.las.zorvik-1-0000beef.tmp", true, false},              // its process still runs
      {"d.las.zorvik-" + dead + "-beef.tmp", true, false},       // not our pattern
      {"e.las", true, false},
  };
  for (const Row& row : rows) {
    std::string path = dir.write(row.name, "partial");
    if (row.old) {
      struct timespec times[2] = {{runStart - 3600, 0}, {runStart - 3600, 0}};
      ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    }
  }
  // A link with our pattern is not ours to remove, nor what it points to.
  fs::create_symlink("e.las", dir.file("f.las.zorvik-" + dead + "-0000beef.tmp"));

  EXPECT_EQ(removeLeftoverTemporaries(dir.path(), runStart), 1);
  for (const Row& row : rows) EXPECT_EQ(fs::exists(dir.file(row.name)), !row.removed) << row.name;
  EXPECT_TRUE(fs::is_symlink(dir.file("f.las.zorvik-" + dead + "-0000beef.tmp")));
  EXPECT_EQ(removeLeftoverTemporaries(dir.file("missing"), runStart), 0);
}

}  // namespace
}  // namespace zorvik
