// Whole 1.2/2.0 reports (date and folder normalised): `golden/<name>.log` is the report of
// `<name>.las` (the examples, then one fixture per failing check row), `<name>_wrapchecks.log` of
// a run with /W. They pin every message text, the slot order and where a failing report ends.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/batch_run.h"

namespace zorvik {
namespace {

TEST(Cert2Reports, MatchGoldenReports) {
  const std::string data = std::string(ZORVIK_TEST_DATA) + "/cert2/";
  std::vector<std::string> goldens;
  for (const auto& entry : std::filesystem::directory_iterator(data + "golden")) {
    goldens.push_back(entry.path().stem().string());
  }
  ASSERT_GE(goldens.size(), 46u);
  const std::string suffix = "_wrapchecks";
  for (const std::string& golden : goldens) {
    SCOPED_TRACE(golden);
    const bool wrapChecks = golden.ends_with(suffix);
    const std::string las = golden.substr(0, golden.size() - (wrapChecks ? suffix.size() : 0));
    const std::string folder =
        las.starts_with("example") ? std::string(ZORVIK_EXAMPLES) + "/" : data;
    testing::BatchResult run = testing::certifyInBatch(folder + las + ".las", wrapChecks);
    ASSERT_TRUE(run.reportWritten) << run.commandLog;
    EXPECT_EQ(testing::compareWithGolden(testing::reportWithoutFolder(run.report),
                                         data + "golden/" + golden + ".log"),
              "");
  }
}

}  // namespace
}  // namespace zorvik
