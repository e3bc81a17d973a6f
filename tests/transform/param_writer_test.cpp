// Rewriting one header value on disk: the line's layout, every other byte, and the temporary
// file that keeps a failed write from touching the original.
#include "transform/param_writer.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "support/batch_run.h"
#include "support/scratch_files.h"

namespace zorvik {
namespace {

using testing::crlfLines;
using testing::readBytes;
using testing::writeScratchFile;

TEST(ReplaceLineValue, KeepsTheLayoutAroundTheValue) {
  struct Row {
    const char* line;
    const char* value;
    const char* expected;  // "" when the line has no value field to replace
  };
  const Row rows[] = {
      // Right-aligned values keep the colon's column.
      {"STOP .M                         1004.7732 : STOP DEPTH", "1004.77320",
       "STOP .M                        1004.77320 : STOP DEPTH"},
      {"WRAP .                   NO : ONE LINE PER DEPTH STEP", "YES",
       "WRAP .                  YES : ONE LINE PER DEPTH STEP"},
      // Left-aligned values grow to the right, keeping one blank before the colon.
      {"STOP.M   -999.25   : STOP", "1004.77320", "STOP.M   1004.77320 : STOP"},
      {"WRAP.   YES   : One line per depth", "NO", "WRAP.   NO    : One line per depth"},
      // No value yet: one blank after the unit.
      {"STOP.M      : STOP", "1000", "STOP.M 1000 : STOP"},
      {"STOP.M: STOP", "1000", "STOP.M 1000 : STOP"},
      // The delimiting colon is the last one; a colon in the value is part of it.
      {"TIME.  10:30 : START TIME", "11:45", "TIME.  11:45 : START TIME"},
      {"NPHI.V/V  0.45 : NEUTRON {F} | DEPT", "0.5", "NPHI.V/V   0.5 : NEUTRON {F} | DEPT"},
      {"  STOP .FT  -999.25 :", "1200.5", "  STOP .FT   1200.5 :"},
      // Not a header line.
      {"# STOP .M 1 : comment", "2", ""},
      {"STOP M 1 STOP", "2", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    std::string out;
    bool ok = replaceLineValue(row.line, row.value, out);
    EXPECT_EQ(ok, *row.expected != '\0');
    EXPECT_EQ(out, row.expected);
  }
}

const std::string kHeader = crlfLines({
    "~VERSION INFORMATION",
    " VERS.   2.0 : CWLS LOG ASCII STANDARD - VERSION 2.0",
    " WRAP.   NO  : ONE LINE PER DEPTH STEP",
    "~WELL INFORMATION",
    "STRT.M      1000.0 : START DEPTH",
    "STOP.M     -999.25 : STOP DEPTH",
    "STEP.M         0.5 : STEP",
    "NULL.      -999.25 : NULL VALUE",
    "~PARAMETER INFORMATION",
    "BHT .DEGC    35.5 : BOTTOM HOLE TEMPERATURE",
});

TEST(WriteParameterValue, ChangesOnlyTheValueBytes) {
  // A lone CR, a lone LF inside a line and a non-ASCII byte must all survive the rewrite.
  std::string data = "~A DEPT GR\r\n1000.0 1.5\r1000.5 \xb0 2\n.5\r\n";
  std::string path = writeScratchFile("writer_keeps.las", kHeader + data);
  ASSERT_TRUE(writeParameterValue(path, "Well", "stop", "1000.50000"));
  std::string expected = kHeader;
  std::string from = "STOP.M     -999.25 : STOP DEPTH";
  expected.replace(expected.find(from), from.size(), "STOP.M  1000.50000 : STOP DEPTH");
  EXPECT_EQ(readBytes(path), expected + data);
  // Nothing but the file itself is left in the folder.
  EXPECT_FALSE(std::filesystem::exists(path + "~1.tmp"));
}

TEST(WriteParameterValue, StreamsADataSectionLargerThanItsBuffer) {
  std::string data = "~A DEPT GR\r\n";
  for (int i = 0; data.size() < 3'000'000; ++i)
    data += std::to_string(1000 + i) + ".0 " + std::to_string(i % 97) + "\r\n";
  std::string path = writeScratchFile("writer_big.las", kHeader + data);
  EXPECT_FALSE(writeParameterValue(path, "WELL", "BHT", "36.0"));  // not in ~Well
  ASSERT_TRUE(writeParameterValue(path, "Parameter", "BHT", "36.0"));
  std::string bytes = readBytes(path);
  EXPECT_EQ(bytes.size(), kHeader.size() + data.size());
  EXPECT_EQ(bytes.substr(bytes.size() - data.size()), data);
  EXPECT_NE(bytes.find("BHT .DEGC    36.0 : BOTTOM"), std::string::npos);
}

TEST(WriteParameterValue, FailsWithoutTouchingTheFile) {
  struct Row {
    const char* name;
    const char* section;
    const char* mnemonic;
  };
  const Row rows[] = {
      {"mnemonic missing", "Well", "UWI"},
      {"section missing", "Other", "STOP"},
      {"mnemonic only in a later section", "Well", "BHT"},
      {"empty mnemonic", "Well", ""},
  };
  std::string bytes = kHeader + "~A DEPT\r\n1000.0\r\n";
  std::string path = writeScratchFile("writer_fails.las", bytes);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_FALSE(writeParameterValue(path, row.section, row.mnemonic, "1"));
    EXPECT_EQ(readBytes(path), bytes);
  }
  EXPECT_FALSE(writeParameterValue(path + ".missing", "Well", "STOP", "1"));
  for (const auto& entry : std::filesystem::directory_iterator(testing::scratchFolder()))
    EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
}

TEST(CopyWithReplacement, LeavesTheTargetAloneWhenTheFolderIsNotWritable) {
  if (::geteuid() == 0) GTEST_SKIP() << "permissions do not bind the super-user";
  namespace fs = std::filesystem;
  fs::path folder = fs::path(testing::scratchFolder()) / "locked";
  fs::create_directories(folder);
  std::string path = (folder / "well.las").string();
  std::string bytes = kHeader;
  writeScratchFile("locked/well.las", bytes);
  fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_FALSE(writeParameterValue(path, "Well", "STOP", "1000.5"));
  fs::permissions(folder, fs::perms::owner_all);
  EXPECT_EQ(readBytes(path), bytes);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

}  // namespace
}  // namespace zorvik
