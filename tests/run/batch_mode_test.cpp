#include "run/batch_mode.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "las/text.h"
#include "run/run_state.h"
#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::commandLogMessages;
using testing::compareWithGolden;
using testing::readBytes;
using testing::RunSandbox;

const std::string kData = std::string(ZORVIK_TEST_DATA) + "/run/";

const char* const kNotRead =
    "LAS Version was not read from the file correctly. (0). It is either absent, not a numerical "
    "value or the file does not have basic LAS properties. No further processing is possible.\n"
    "Error: VB Error in doBatchMode: . Error #0. LAS file was: \n";
const char* const kNotKnown =
    "The LAS Version was not 1.2, 2.0 or 3.0. It was : 2.5. No further processing will be done.\n";
const char* const kProcessingError = "A processing error occured within the program.\n";

const std::string kGood25 =
    "~VERSION\r\n VERS.  2.5 : VERSION\r\n WRAP.  NO : ONE\r\n~A D\r\n1\r\n";

// The report with its folder, the program's version and the date pinned, so that it can be kept
// as a golden file.
std::string pinned(const std::string& report, const std::string& folder) {
  std::string text = replaceAll(report, folder, "<dir>");
  std::size_t line2 = text.find("\r\n");
  if (line2 == std::string::npos) return text;
  line2 += 2;
  std::size_t end = text.find("\r\n", line2);
  if (end == std::string::npos) return text;
  return text.replace(line2, end - line2, "Zorvik Ver: <version> Date: <date>");
}

struct BatchCase {
  const char* name;
  const char* fileName;  // in the scratch folder
  std::string bytes;
  bool create;
  const char* messages;
  const char* golden;  // report of the run, nullptr when none is written
};

void PrintTo(const BatchCase& row, std::ostream* out) {
  *out << row.name;
}

const BatchCase kBatchCases[] = {
    {"Missing", "missing.las", "", false, kNotRead, "missing.report"},
    {"Empty", "empty.las", "", true, kNotRead, "empty.report"},
    {"LfOnly", "unix.las", readBytes(kData + "lf_only.las"), true, kNotRead, "lf_only.report"},
    // Unusable files whose version reads: the report is written again after the version message.
    {"NulInHead", "nul.las", readBytes(kData + "nul_head.las"), true, kNotKnown, "nul_head.report"},
    {"DoubleExtension", "well.las.txt", kGood25, true, kNotKnown, "las_txt.report"},
    {"UnknownVersion", "v25.las", kGood25, true,
     "The LAS Version was not 1.2, 2.0 or 3.0. It was : 2.5. No further processing will be "
     "done.\nA processing error occured within the program.\n",
     nullptr},
    {"NoVersLine", "nov.las", "~VERSION\r\n WRAP.  NO : ONE\r\n~A D\r\n1\r\n", true, kNotRead,
     nullptr},
};

class BatchRun : public ::testing::TestWithParam<BatchCase> {};

TEST_P(BatchRun, WritesItsReportAndCommandLogEntries) {
  const BatchCase& row = GetParam();
  RunSandbox sandbox;
  const std::string dir = sandbox.dir().path();
  std::string las =
      row.create ? sandbox.dir().write(row.fileName, row.bytes) : sandbox.dir().file(row.fileName);
  runState().batchMode = true;
  runState().lasFile = las;
  runState().logFile = sandbox.dir().file("out.log");

  doBatchMode();

  EXPECT_EQ(commandLogMessages(sandbox.commandLog()), row.messages);
  bool written = std::filesystem::exists(runState().logFile);
  ASSERT_EQ(written, row.golden != nullptr);
  if (written) {
    EXPECT_EQ(compareWithGolden(pinned(readBytes(runState().logFile), dir), kData + row.golden),
              "");
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, BatchRun, ::testing::ValuesIn(kBatchCases),
                         [](const auto& info) { return std::string(info.param.name); });

// The whole program, started as a process: these runs go through start-up as well.
TEST(BatchProgram, ExampleFilePasses) {
  testing::BatchResult run =
      testing::certifyInBatch(std::string(ZORVIK_EXAMPLES) + "/example_20.las");
  ASSERT_TRUE(run.reportWritten) << run.commandLog;
  EXPECT_NE(run.report.find("\r\nResult: LAS file PASSED Ver 2 Certification\r\n"),
            std::string::npos)
      << run.report;
  std::string messages = commandLogMessages(run.commandLog);
  EXPECT_EQ(messages.rfind("Command line :", 0), 0u) << messages;
  EXPECT_EQ(messages.find('\n'), messages.size() - 1) << "only the command line entry";
}

}  // namespace
}  // namespace zorvik
