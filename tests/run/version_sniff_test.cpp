#include "run/version_sniff.h"

#include <gtest/gtest.h>

#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::ScratchDir;

struct SniffCase {
  const char* name;
  const char* text;  // written as it is: line ends are part of the case
  float version;
};

void PrintTo(const SniffCase& row, std::ostream* out) {
  *out << row.name;
}

const SniffCase kSniffCases[] = {
    {"Decimal", "~V\r\n VERS.   2.0 : x\r\n~A\r\n", 2.0f},
    {"WholeNumber", "~V\r\n VERS.   2 : x\r\n~A\r\n", 2.0f},
    {"TrailingZeros", "~V\r\n VERS.   2.00 : x\r\n~A\r\n", 2.0f},
    {"TwelveWithZero", "~V\r\n VERS.   1.20 : x\r\n~A\r\n", 1.2f},
    {"Three", "~V\r\n VERS.   3 : x\r\n~A\r\n", 3.0f},
    {"OtherVersion", "~V\r\n VERS.   2.1 : x\r\n~A\r\n", 2.1f},
    {"LowerCaseAndDeepIndent", "~V\r\n        vers.  1.2 : x\r\n", 1.2f},
    {"LongerMnemonicStillCounts", "~V\r\n VERSION.  3.0 : x\r\n", 3.0f},
    {"LoneCrLineEnds", "~V\r VERS.  2.0 : x\r~A\r", 2.0f},
    {"NotANumber", "~V\r\n VERS.  two : x\r\n VERS. 2.0 : x\r\n", 0.0f},
    {"BadLineSkipped", "~V\r\n VERS.\t2.0 : tab\r\n VERS. 3.0 : x\r\n", 3.0f},
    {"FirstGoodLineWins", "~V\r\n VERS. 1.2 : x\r\n VERS. 3.0 : x\r\n", 1.2f},
    {"NoVersLine", "~V\r\n WRAP. NO : x\r\n~A\r\n1 2\r\n", 0.0f},
    {"VersAfterData", "~V\r\n~A\r\n VERS. 2.0 : x\r\n", 0.0f},
    {"TildeAInADescription", "~V\r\n WRAP. NO : see ~All\r\n VERS. 2.0 : x\r\n", 0.0f},
    {"LogDataBegins", "~V\r\n~Log_Data\r\n VERS. 3.0 : x\r\n", 0.0f},
    {"LfOnlyIsOneLine", "~V\n VERS. 2.0 : x\n~A\n1 2\n", 0.0f},
    {"Empty", "", 0.0f},
};

class VersionSniff : public ::testing::TestWithParam<SniffCase> {};

TEST_P(VersionSniff, TakesTheFirstWellFormedVersLineBeforeTheData) {
  ScratchDir dir;
  std::string name = dir.write("sniff.las", GetParam().text);
  EXPECT_EQ(sniffVersion(name), GetParam().version);
}

INSTANTIATE_TEST_SUITE_P(Rows, VersionSniff, ::testing::ValuesIn(kSniffCases),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace zorvik
