// Whole 1.2/2.0 reports (date and folder normalised): `golden/<name>.log` is the report of
// `<name>.las` (the examples, then one fixture per failing check row), `<name>_wrapchecks.log` of
// a run with /W. They pin every message text, the slot order and where a failing report ends.
// Each golden is a test of its own, named after it, found when the tests are listed.
#include <gtest/gtest.h>

#include <string>

#include "support/batch_run.h"

namespace zorvik {
namespace {

const std::string DATA = std::string(ZORVIK_TEST_DATA) + "/cert2/";
const std::string WRAP_CHECKS = "_wrapchecks";

class Cert2Report : public ::testing::TestWithParam<std::string> {};

TEST_P(Cert2Report, MatchesGolden) {
  const std::string& golden = GetParam();
  const bool wrapChecks = golden.ends_with(WRAP_CHECKS);
  const std::string las = golden.substr(0, golden.size() - (wrapChecks ? WRAP_CHECKS.size() : 0));
  const std::string folder = las.starts_with("example") ? std::string(ZORVIK_EXAMPLES) + "/" : DATA;
  const testing::BatchResult run = testing::certifyInBatch(folder + las + ".las", wrapChecks);
  ASSERT_TRUE(run.reportWritten) << run.commandLog;
  EXPECT_EQ(testing::compareWithGolden(testing::reportWithoutFolder(run.report),
                                       DATA + "golden/" + golden + ".log"),
            "");
}

INSTANTIATE_TEST_SUITE_P(Golden, Cert2Report,
                         ::testing::ValuesIn(testing::stemsIn(DATA + "golden", ".log")),
                         [](const auto& info) { return testing::testNameOf(info.param); });

}  // namespace
}  // namespace zorvik
