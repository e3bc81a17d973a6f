// Rewriting one header value on disk: the line's layout, every other byte, and the temporary
// file that keeps a failed write from touching the original.
#include "las/param_writer.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/text.h"
#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

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
      // Left-aligned values grow to the right, keeping one blank before the colon.
      {"STOP.M   -999.25   : STOP", "1004.77320", "STOP.M   1004.77320 : STOP"},
      {"WRAP.   YES   : One line per depth", "NO", "WRAP.   NO    : One line per depth"},
      // Right-aligned means more than one blank before the value and at most one after it, with
      // or without that blank; otherwise the value is left-aligned.
      {"STOP.M  -999.25: STOP", "1.5", "STOP.M      1.5: STOP"},
      {"STOP.M -999.25 : STOP", "1.5", "STOP.M 1.5     : STOP"},
      {"STOP.M  -999.25  : STOP", "1.5", "STOP.M  1.5      : STOP"},
      // Too long for the room: one blank stays before the colon.
      {"STOP.M    -999.25 : STOP", "1004.77320", "STOP.M 1004.77320 : STOP"},
      // No room at all: the value gets a blank on each side.
      {"STOP.M: STOP", "1.5", "STOP.M 1.5 : STOP"},
      // No value yet: one blank after the unit.
      {"STOP.M      : STOP", "1000", "STOP.M 1000 : STOP"},
      // The delimiting colon is the last one; a colon in the value is part of it.
      {"TIME.  10:30 : START TIME", "11:45", "TIME.  11:45 : START TIME"},
      // Not a header line.
      {"# STOP .M 1 : comment", "2", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.line);
    std::string out;
    bool ok = replaceLineValue(row.line, row.value, out);
    EXPECT_EQ(ok, *row.expected != '\0');
    EXPECT_EQ(out, row.expected);
  }
}

// Header lines joined by '|'.
const std::string kHeader = replaceAll(
    "~VERSION| VERS.   2.0 : V| WRAP.   NO  : W|~WELL|STRT.M      1000.0 : START DEPTH|"
    "STOP.M     -999.25 : STOP DEPTH|~PARAMETER|BHT .DEGC    35.5 : BOTTOM HOLE TEMPERATURE|",
    "|", "\r\n");

TEST(WriteParameterValue, ChangesOnlyTheValueBytesOrFailsWithoutTouchingTheFile) {
  // A lone CR, a lone LF inside a line and a non-ASCII byte must all survive the rewrite, and the
  // data section is larger than the copy buffer.
  std::string data = "~A DEPT GR\r\n1000.0 1.5\r1000.5 \xb0 2\n.5\r\n";
  for (int i = 0; data.size() < 3'000'000; ++i)
    data += std::to_string(1000 + i) + ".0 " + std::to_string(i % 97) + "\r\n";
  std::string path = writeScratchFile("writer.las", kHeader + data);
  // A missing section, a mnemonic only in a later section, an empty mnemonic.
  const std::pair<const char*, const char*> rows[] = {
      {"Other", "STOP"}, {"Well", "BHT"}, {"Well", ""}};
  for (const auto& [section, mnemonic] : rows) {
    SCOPED_TRACE(std::string(section) + "/" + mnemonic);
    EXPECT_FALSE(writeParameterValue(path, section, mnemonic, "1"));
    EXPECT_TRUE(readBytes(path) == kHeader + data);
  }
  EXPECT_FALSE(writeParameterValue(path + ".missing", "Well", "STOP", "1"));
  ASSERT_TRUE(writeParameterValue(path, "Parameter", "bht", "36.0"));
  EXPECT_TRUE(readBytes(path) ==
              replaceAll(kHeader, "BHT .DEGC    35.5", "BHT .DEGC    36.0") + data);
  for (const auto& entry : std::filesystem::directory_iterator(testing::scratchFolder()))
    EXPECT_NE(entry.path().extension(), ".tmp") << entry.path();
}

}  // namespace
}  // namespace zorvik
