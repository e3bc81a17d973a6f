// Whole reports of batch runs over the 3.0 examples and fixtures, each compared with its golden
// report `golden/<name>.log` (date and folder normalised): these pin every message text, slot
// order and stop rule. Each golden is a test of its own, named after it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/batch_run.h"

namespace zorvik {
namespace {

const std::string DATA = std::string(ZORVIK_TEST_DATA) + "/cert3/";

class Cert3Report : public ::testing::TestWithParam<std::string> {};

TEST_P(Cert3Report, MatchesGolden) {
  const std::string& name = GetParam();
  const std::string folder =
      name.starts_with("example") ? std::string(ZORVIK_EXAMPLES) + "/" : DATA;
  const testing::BatchResult run = testing::certifyInBatch(folder + name + ".las");
  ASSERT_TRUE(run.reportWritten) << run.commandLog;
  EXPECT_EQ(testing::compareWithGolden(testing::reportWithoutFolder(run.report),
                                       DATA + "golden/" + name + ".log"),
            "");
  EXPECT_EQ(run.commandLog.find("Error"), std::string::npos) << run.commandLog;
}

// The two examples and every fixture of the area.
std::vector<std::string> reportNames() {
  std::vector<std::string> names{"example_30", "example_30_log_sets"};
  for (std::string& name : testing::stemsIn(DATA, ".las")) names.push_back(std::move(name));
  return names;
}

INSTANTIATE_TEST_SUITE_P(Golden, Cert3Report, ::testing::ValuesIn(reportNames()),
                         [](const auto& info) { return testing::testNameOf(info.param); });

}  // namespace
}  // namespace zorvik
