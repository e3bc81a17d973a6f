#include "run/file_helpers.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::ScratchDir;

TEST(ChangeExtension, CutsAtTheFirstPointOfTheWholeName) {
  struct Row {
    const char* name;
    const char* extension;
    const char* expected;
  };
  const Row rows[] = {
      {"/data/well.las", "log", "/data/well.log"},
      {"/data.v2/well.las", "log", "/data.log"},
      {"/data/well.old.las", "log", "/data/well.log"},
      {"/data/well", "log", "/data/well.log"},
      {"/data/well.las", "", "/data/well"},
      {"/data/well.las", "  ", "/data/well  "},
      {"/data/well", "", "/data/well"},
      {"", "log", ""},
      {"   ", "log", "   "},
      {"./well.las", "log", ".log"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.name) + " + " + row.extension);
    EXPECT_EQ(changeExtension(row.name, row.extension), row.expected);
  }
}

TEST(FileExists, SeesOnlyVisibleRegularFiles) {
  ScratchDir dir;
  dir.write("plain.las", "x");
  dir.write(".hidden.las", "x");
  dir.write("empty.las", "");
  std::string readOnly = dir.write("locked.las", "x");
  ::chmod(readOnly.c_str(), 0444);
  std::filesystem::create_directory(dir.file("folder.las"));
  ::mkfifo(dir.file("pipe.las").c_str(), 0600);

  struct Row {
    std::string name;
    bool exists;
    int attributes;
  };
  const Row rows[] = {
      {dir.file("plain.las"), true, ATTR_ARCHIVE},
      {dir.file("empty.las"), true, ATTR_ARCHIVE},
      {readOnly, true, ATTR_ARCHIVE | ATTR_READONLY},
      {dir.file(".hidden.las"), false, ATTR_ARCHIVE | ATTR_HIDDEN},
      {dir.file("folder.las"), false, ATTR_DIRECTORY},
      {dir.file("pipe.las"), false, ATTR_SYSTEM},
      {dir.file("missing.las"), false, -1},
      {dir.file("plain.las/inside"), false, -1},
      {"", false, -1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(fileExists(row.name), row.exists);
    EXPECT_EQ(fileAttributes(row.name), row.attributes);
  }
}

TEST(LogFileWritable, LeavesNothingBehindWhenItSucceeds) {
  ScratchDir dir;
  struct Row {
    std::string name;
    bool writable;
    bool leftBehind;
  };
  const Row rows[] = {
      {dir.file("out.log"), true, false},
      {dir.file("no/such/folder/out.log"), false, false},
      {dir.path(), false, false},
      {"", false, false},
      // A hidden name is written but then not seen, so it fails and stays.
      {dir.file(".out.log"), false, true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(logFileWritable(row.name), row.writable);
    EXPECT_EQ(std::filesystem::is_regular_file(row.name), row.leftBehind);
  }
}

}  // namespace
}  // namespace zorvik
