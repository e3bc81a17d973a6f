// The file probes of a run: the log file name and the version sniff.
#include "base/file_helpers.h"

#include <gtest/gtest.h>

#include <array>

#include "run/version_sniff.h"
#include "support/scratch.h"
#include "transform/convert.h"

namespace zorvik {
namespace {

using testing::ScratchDir;

TEST(ChangeExtension, CutsAtTheFirstPointOfTheFilesOwnName) {
  const std::array<std::array<const char*, 3>, 6> rows = {{
      {"/data.v2/well.las", "log", "/data.v2/well.log"},
      {"./well.las", "log", "./well.log"},
      {"/data/well.v2.las", "log", "/data/well.log"},
      {"/data.v2/well", "log", "/data.v2/well.log"},
      {"/data/well.las", "", "/data/well"},
      {"well.las", "log", "well.log"},
  }};
  for (const auto& [name, extension, expected] : rows)
    EXPECT_EQ(changeExtension(name, extension), expected) << name;
}

// The conversion's output name is cut by the same rule as the log file names.
TEST(ChangeExtension, TheConvertedFileIsNamedByTheSameRule) {
  EXPECT_EQ(version3FileName("/data.v2/well.las"), "/data.v2/well_ver3.las");
  EXPECT_EQ(version3FileName("/data/well.v2.las"), "/data/well_ver3.las");
  EXPECT_EQ(version3FileName("/data.v2/well"), "/data.v2/well_ver3.las");
}

TEST(VersionSniff, TakesTheFirstWellFormedVersLineBeforeTheData) {
  struct Row {
    const char* name;
    const char* text;  // written as it is: line ends are part of the case
    float version;
  };
  const Row rows[] = {
      {"LowerCaseAndDeepIndent", "~V\r\n        vers.  1.2 : x\r\n", 1.2f},
      {"LongerMnemonicStillCounts", "~V\r\n VERSION.  3.0 : x\r\n", 3.0f},
      {"LoneCrLineEnds", "~V\r VERS.  2.0 : x\r~A\r", 2.0f},
      {"NotANumber", "~V\r\n VERS.  two : x\r\n VERS. 2.0 : x\r\n", 0.0f},
      {"BadLineSkipped", "~V\r\n VERS.\t2.0 : tab\r\n VERS. 3.0 : x\r\n", 3.0f},
      {"TildeAInADescription", "~V\r\n WRAP. NO : see ~All\r\n VERS. 2.0 : x\r\n", 0.0f},
      {"LogDataBegins", "~V\r\n~Log_Data\r\n VERS. 3.0 : x\r\n", 0.0f},
  };
  ScratchDir dir;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(sniffVersion(dir.write("sniff.las", row.text)), row.version);
  }
}

}  // namespace
}  // namespace zorvik
