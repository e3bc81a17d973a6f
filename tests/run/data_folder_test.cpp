#include <gtest/gtest.h>

#include <filesystem>

#include "base/command_log.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

// The help and documents come from <prefix>/share/zorvik only when the program runs from an
// installed <prefix>/bin; a build folder keeps them beside the program.
TEST(DataFolder, InstalledLayoutOrBuildFolder) {
  testing::ScratchDir scratch;
  namespace fs = std::filesystem;
  fs::create_directories(scratch.file("usr/bin"));
  fs::create_directories(scratch.file("usr/share/zorvik"));
  fs::create_directories(scratch.file("opt/bin"));  // installed without its data
  fs::create_directories(scratch.file("build/src"));
  fs::create_directories(scratch.file("build/share/zorvik"));

  const std::vector<std::pair<std::string, std::string>> cases = {
      {"usr/bin", "usr/share/zorvik"},
      {"opt/bin", "opt/bin"},
      {"build/src", "build/src"},
  };
  for (const auto& [program, data] : cases) {
    setProgramFolder(scratch.file(program));
    EXPECT_EQ(dataFolder(), scratch.file(data)) << program;
  }
  setProgramFolder("");
}

}  // namespace
}  // namespace zorvik
