#include <gtest/gtest.h>

#include "transform/convert.h"
#include "transform/repair.h"

namespace zorvik {
namespace {

TEST(ConvertName, ReplacesTheFileNamesExtension) {
  struct Row {
    const char* input;
    const char* proposed;
  };
  const Row rows[] = {
      {"/data/well.las", "/data/well_ver3.las"},
      {"/data/well.LAS", "/data/well_ver3.las"},
      {"/data/well.v2.las", "/data/well.v2_ver3.las"},
      {"/data.v2/well", "/data.v2/well_ver3.las"},
      {"well", "well_ver3.las"},
      {"", "_ver3.las"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.input);
    EXPECT_EQ(version3FileName(row.input), row.proposed);
  }
}

TEST(ConvertName, RepairAndConversionAreNotOfferedYet) {
  EXPECT_FALSE(convertToVersion3("in.las", "out.las", LogSectionTitles::LogPrefixed, ','));
  EXPECT_FALSE(repairLasFile("in.las", RepairQuestions{}));
}

}  // namespace
}  // namespace zorvik
