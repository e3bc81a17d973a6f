// Whole reports of batch runs over the 3.0 examples and fixtures, each compared with its golden
// report (date and folder normalised): these pin every message text, slot order and stop rule.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/batch_run.h"

namespace zorvik {
namespace {

const std::string DATA = std::string(ZORVIK_TEST_DATA) + "/cert3/";

TEST(GoldenReports, Match) {
  // The two examples and every fixture of the area; each report is golden/NAME.log.
  std::vector<std::filesystem::path> lasPaths = {
      std::filesystem::path(ZORVIK_EXAMPLES) / "example_30.las",
      std::filesystem::path(ZORVIK_EXAMPLES) / "example_30_log_sets.las"};
  for (const auto& entry : std::filesystem::directory_iterator(DATA))
    if (entry.path().extension() == ".las") lasPaths.push_back(entry.path());
  ASSERT_GT(lasPaths.size(), 2u) << "no fixtures under " << DATA;
  for (const std::filesystem::path& lasPath : lasPaths) {
    const std::string name = lasPath.stem().string();
    SCOPED_TRACE(name);
    const testing::BatchResult run = testing::certifyInBatch(lasPath.string());
    ASSERT_TRUE(run.reportWritten) << run.commandLog;
    EXPECT_EQ(testing::compareWithGolden(testing::reportWithoutFolder(run.report),
                                         DATA + "golden/" + name + ".log"),
              "");
    EXPECT_EQ(run.commandLog.find("Error"), std::string::npos) << run.commandLog;
  }
}

}  // namespace
}  // namespace zorvik
