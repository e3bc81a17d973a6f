// Wrap analysis (how many lines make one record) and unwrapping a file to one record per line.
#include "transform/wrap.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/text.h"
#include "checks/run_context.h"
#include "las/sections.h"
#include "support/batch_run.h"
#include "support/fake_window.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::readBytes;
using testing::writeScratchFile;

// A 2.0 file with `channels` curves and the data lines given joined by '|'.
std::string lasWith(bool wrap, int channels, const std::string& data) {
  std::string text = "~Version Information|VERS.   2.0 : CWLS LOG ASCII STANDARD|WRAP.   " +
                     std::string(wrap ? "YES" : "NO") +
                     " : wrapping|~Well Information|STRT.M 1000.0 : START|NULL.   -999.25 : "
                     "NULL|~Curve Information|DEPT.M : DEPTH|";
  for (int i = 1; i < channels; ++i) text += "C" + std::to_string(i) + ".  : channel|";
  return replaceAll(text + "~A|" + data + (data.empty() ? "" : "|"), "|", "\r\n");
}

// Record lines of 1 + 5 + 5 values.
const char* const kWrapped155 =
    "1000.0|1 2 3 4 5|6 7 8 9 10|1000.5|1 2 3 4 5|6 7 8 9 10|1001.0|1 2 3 4 5|6 7 8 9 10";

TEST(AnalyseWrap, FindsTheLinesOfOneRecord) {
  struct Row {
    std::string data;
    int hint, curves;
    WrapLayout layout;
    int linesPerRecord, bufferLength, channels;
  };
  const Row rows[] = {
      {"1000.0 1 2|1000.5 1 2  |1001.0 3 4", 3, 3, WrapLayout::Unwrapped, 1, 12, 3},
      // Seven lines sampled show the record; four do not.
      {kWrapped155, 11, 3, WrapLayout::Wrapped, 3, 8 + 11 + 12, 11},
      {kWrapped155, 5, 3, WrapLayout::Undetermined, 0, 0, 0},
      {kWrapped155, 11, 3, WrapLayout::Cancelled, 0, 0, 0},  // Escape pressed while sampling
      {"1000.0||1 2|1000.5|  |1 2|1001.0", 5, 3, WrapLayout::Wrapped, 2, 8 + 5,
       3},  // blanks not sampled
      // A first line of 12 fields passes the loose test.
      {"a b c d e f g h i j k l|1 2 3|a b c d e f g h i j k l|1 2 3", 5, 3, WrapLayout::Wrapped, 2,
       25 + 7, 15},
      // Hint 0 counts the ~Curve lines, which may be too few to see a record.
      {"1000.0|1 2|1000.5|1 2", 0, 5, WrapLayout::Wrapped, 2, 8 + 5, 3},
      {"1000.0|1 2|1000.5|1 2", 0, 3, WrapLayout::Undetermined, 0, 0, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.data + " hint " + std::to_string(row.hint));
    std::string path = writeScratchFile("analyse_wrap.las", lasWith(true, row.curves, row.data));
    RunContext run;
    run.lasFile = path;
    run.dialect.version = 2.0f;
    locateStandardSections(LasFile(path), run.dialect, run.sections);
    testing::FakeWindow window;
    if (row.layout == WrapLayout::Cancelled) {
      window.onEvents = [&window](const std::string&) { window.cancel = true; };
    }
    run.observer = &window;
    int lines = -1, buffer = -1, channels = -1;
    EXPECT_EQ(analyseWrap(run, lines, buffer, channels, row.hint), row.layout);
    EXPECT_EQ((std::vector<int>{lines, buffer, channels}),
              (std::vector<int>{row.linesPerRecord, row.bufferLength, row.channels}));
  }
}

TEST(UnwrapFile, JoinsEachRecordOntoOneLineOfWrappedDataOnly) {
  const char* data =
      "  1000.0|1 2 3 4 5|   6 7 8 9 10||1000.123456789012|1 2 3 4 5|6 7 8 9 10|1001.0|"
      "# a comment is dropped|1 2 3 4 5|6 7 8 9 10";
  // The index is padded to 13 characters (never cut); a line not starting with a blank gets one.
  std::string expected = replaceAll(
      lasWith(true, 11,
              "1000.0      1 2 3 4 5   6 7 8 9 10|1000.123456789012 1 2 3 4 5 6 7 8 9 10|"
              "1001.0        1 2 3 4 5 6 7 8 9 10"),
      "WRAP.   YES", "WRAP.    NO");
  for (bool ontoItself : {false, true}) {
    SCOPED_TRACE(ontoItself);
    std::string source = writeScratchFile("unwrap_src.las", lasWith(true, 11, data));
    std::string target = ontoItself ? source : testing::scratchFolder() + "/unwrap_dst.las";
    ASSERT_TRUE(unwrapFile(source, target));
    EXPECT_EQ(readBytes(target), expected);
    EXPECT_FALSE(std::filesystem::exists(testing::scratchFolder() + "/~~wrapno~~.las"));
  }
  // Unwrapped data is left alone; a missing source is refused.
  std::string source = writeScratchFile("unwrap_flat.las", lasWith(false, 2, "1 2|3 4"));
  std::string target = testing::scratchFolder() + "/unwrap_flat_out.las";
  std::filesystem::remove(target);
  EXPECT_TRUE(unwrapFile(source, target));
  EXPECT_FALSE(std::filesystem::exists(target));
  EXPECT_FALSE(unwrapFile(source + ".missing", target));
}

}  // namespace
}  // namespace zorvik
