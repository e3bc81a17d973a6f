#include "run/batch_mode.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_writer.h"
#include "base/text.h"
#include "run/session.h"
#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::readBytes;

const std::string kData = std::string(ZORVIK_TEST_DATA) + "/run/";

TEST(BatchRun, WritesItsReportAndCommandLogEntries) {
  const std::string kNotRead =
      "LAS Version was not read from the file correctly. (0). It is either absent, not a "
      "numerical value or the file does not have basic LAS properties. No further processing is "
      "possible.\nError: VB Error in doBatchMode: . Error #0. LAS file was: \n";
  const std::string kNotKnown =
      "The LAS Version was not 1.2, 2.0 or 3.0. It was : 2.5. No further processing will be "
      "done.\n";
  const std::string kGood25 =
      "~VERSION\r\n VERS.  2.5 : VERSION\r\n WRAP.  NO : ONE\r\n~A D\r\n1\r\n";
  struct Row {
    const char* fileName;  // in the scratch folder; "missing.las" is not created
    std::string bytes;
    std::string messages;
    const char* golden;  // report of the run, nullptr when none is written
  };
  const Row rows[] = {
      {"missing.las", "", kNotRead, "missing.report"},
      {"empty.las", "", kNotRead, "empty.report"},
      {"unix.las", readBytes(kData + "lf_only.las"), kNotRead, "lf_only.report"},
      // Unusable files whose version reads: the report is written again after the version message.
      {"nul.las", readBytes(kData + "nul_head.las"), kNotKnown, "nul_head.report"},
      {"well.las.txt", kGood25, kNotKnown, "las_txt.report"},
      {"nov.las", "~VERSION\r\n WRAP.  NO : ONE\r\n~A D\r\n1\r\n", kNotRead, nullptr},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.fileName);
    testing::RunSandbox sandbox;
    const std::string las = sandbox.dir().file(row.fileName);
    if (las != sandbox.dir().file("missing.las")) sandbox.dir().write(row.fileName, row.bytes);
    Session session;
    session.lasFile = las;
    session.logFile = sandbox.dir().file("out.log");
    doBatchMode(session);
    EXPECT_EQ(testing::commandLogMessages(sandbox.commandLog()), row.messages);
    bool written = std::filesystem::exists(session.logFile);
    ASSERT_EQ(written, row.golden != nullptr);
    if (written) {
      EXPECT_EQ(testing::compareWithGolden(
                    testing::pinnedReport(readBytes(session.logFile), sandbox.dir().path()),
                    kData + row.golden),
                "");
    }
  }
}

// Counts the opens of one file and lets every call through.
class OpenCounter : public FileSystemCalls {
 public:
  explicit OpenCounter(std::string path) : path_(std::move(path)) {}
  int open(const char* path, int flags, mode_t mode) override {
    if (path_ == path) ++opens;
    return FileSystemCalls::open(path, flags, mode);
  }
  int opens = 0;

 private:
  std::string path_;
};

// However many checks read it, a run opens its LAS file twice: once to find the version, once for
// everything else.
TEST(BatchRun, OpensTheLasFileTwice) {
  for (const char* example :
       {"example_20.las", "example_20_wrapped.las", "example_30.las", "example_30_log_sets.las"}) {
    SCOPED_TRACE(example);
    testing::RunSandbox sandbox;
    Session session;
    session.lasFile =
        sandbox.dir().write(example, readBytes(std::string(ZORVIK_EXAMPLES) + "/" + example));
    session.logFile = sandbox.dir().file("out.log");
    session.doWrap = true;
    OpenCounter counter(session.lasFile);
    {
      ScopedFileSystemCalls installed(counter);
      doBatchMode(session);
    }
    EXPECT_NE(readBytes(session.logFile).find("PASSED"), std::string::npos);
    EXPECT_EQ(counter.opens, 2);
  }
}

}  // namespace
}  // namespace zorvik
