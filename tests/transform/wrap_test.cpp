// Wrap analysis (how many lines make one record) and unwrapping a file to one record per line.
#include "transform/wrap.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "las/sections.h"
#include "run/run_state.h"
#include "run/window_ops.h"
#include "support/batch_run.h"
#include "support/scratch_files.h"

namespace zorvik {
namespace {

using testing::crlfLines;
using testing::readBytes;
using testing::writeScratchFile;

std::string curveLines(int channels) {
  std::vector<std::string> lines = {"~Curve Information", "DEPT.M : DEPTH"};
  for (int i = 1; i < channels; ++i) lines.push_back("C" + std::to_string(i) + ".  : channel");
  return crlfLines(lines);
}

std::string lasWith(bool wrap, int channels, const std::vector<std::string>& data) {
  return crlfLines({"~Version Information", "VERS.   2.0 : CWLS LOG ASCII STANDARD",
                    std::string("WRAP.   ") + (wrap ? "YES" : "NO") + " : wrapping",
                    "~Well Information", "STRT.M 1000.0 : START", "NULL.   -999.25 : NULL"}) +
         curveLines(channels) + "~A" + "\r\n" + crlfLines(data);
}

void prepare(const std::string& path) {
  resetRunState();
  runState().lasVersion = 2.0f;
  locateStandardSections(path);
}

// Record lines of 1 + 5 + 5 values.
const std::vector<std::string> kWrapped155 = {"1000.0", "1 2 3 4 5", "6 7 8 9 10",
                                              "1000.5", "1 2 3 4 5", "6 7 8 9 10",
                                              "1001.0", "1 2 3 4 5", "6 7 8 9 10"};

TEST(AnalyseWrap, FindsTheLinesOfOneRecord) {
  struct Row {
    const char* name;
    std::vector<std::string> data;
    int hint;
    int curves;
    int code;
    int linesPerRecord;
    int bufferLength;
    int channels;
  };
  const Row rows[] = {
      {"same count everywhere",
       {"1000.0 1 2", "1000.5 1 2  ", "1001.0 3 4"},
       3,
       3,
       WRAP_UNWRAPPED,
       1,
       12,
       3},
      {"same count despite WRAP YES is still unwrapped",
       {"1 2", "3 4"},
       2,
       3,
       WRAP_UNWRAPPED,
       1,
       5,
       2},
      {"1+5+5 with seven lines sampled", kWrapped155, 11, 3, WRAP_WRAPPED, 3, 8 + 11 + 12, 11},
      {"1+5+5 with four lines sampled", kWrapped155, 5, 3, WRAP_UNDETERMINED, 0, 0, 0},
      {"blank lines are not sampled",
       {"1000.0", "", "1 2", "1000.5", "  ", "1 2", "1001.0"},
       5,
       3,
       WRAP_WRAPPED,
       2,
       8 + 5,
       3},
      {"a first line of 12 fields passes the loose test",
       {"a b c d e f g h i j k l", "1 2 3", "a b c d e f g h i j k l", "1 2 3"},
       5,
       3,
       WRAP_WRAPPED,
       2,
       25 + 7,
       15},
      {"no repeating pattern",
       {"1 2 3", "1 2 3", "1 2", "1 2 3"},
       5,
       3,
       WRAP_UNDETERMINED,
       0,
       0,
       0},
      {"no data lines", {}, 5, 3, WRAP_UNDETERMINED, 0, 0, 0},
      {"hint 0 counts the ~Curve lines",
       {"1000.0", "1 2", "1000.5", "1 2"},
       0,
       5,
       WRAP_WRAPPED,
       2,
       8 + 5,
       3},
      {"hint 0 with too few ~Curve lines to see a record",
       {"1000.0", "1 2", "1000.5", "1 2"},
       0,
       3,
       WRAP_UNDETERMINED,
       0,
       0,
       0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path = writeScratchFile("analyse_wrap.las", lasWith(true, row.curves, row.data));
    prepare(path);
    int lines = -1, buffer = -1, channels = -1;
    EXPECT_EQ(analyseWrap(path, lines, buffer, channels, row.hint), row.code);
    EXPECT_EQ(lines, row.linesPerRecord);
    EXPECT_EQ(buffer, row.bufferLength);
    EXPECT_EQ(channels, row.channels);
  }
}

class EscapeWindow : public WindowOps {
 public:
  void setTitle(const std::string&) override {}
  void setStatusLine(const std::string&) override {}
  void setProgress(int, const std::string&) override {}
  void prepareResultTabs(float) override {}
  void enableResultTabs(bool) override {}
  void fillResultGrid(const CheckTable&) override {}
  bool askYesNo(const std::string&, const std::string&) override { return false; }
  bool askOkCancel(const std::string&, const std::string&) override { return true; }
  void showCritical(const std::string&, const std::string&) override {}
  void processEvents() override { runState().escapePressed = true; }
  void setBusyPointer(bool) override {}
};

TEST(AnalyseWrap, EscapeCancelsTheSampling) {
  std::string path = writeScratchFile("analyse_wrap_esc.las", lasWith(true, 3, kWrapped155));
  prepare(path);
  EscapeWindow window;
  runState().window = &window;
  int lines = 0, buffer = 0, channels = 0;
  EXPECT_EQ(analyseWrap(path, lines, buffer, channels, 11), WRAP_CANCELLED);
  runState().window = nullptr;
}

std::string withWrapNo(std::string header) {
  header.replace(header.find("WRAP.   YES : wrapping"), 22, "WRAP.    NO : wrapping");
  return header;
}

TEST(UnwrapFile, JoinsEachRecordOntoOneLine) {
  std::vector<std::string> data = {"  1000.0",
                                   "1 2 3 4 5",
                                   "   6 7 8 9 10",
                                   "",
                                   "1000.123456789012",
                                   "1 2 3 4 5",
                                   "6 7 8 9 10",
                                   "1001.0",
                                   "# a comment is dropped",
                                   "1 2 3 4 5",
                                   "6 7 8 9 10"};
  std::string source = writeScratchFile("unwrap_src.las", lasWith(true, 11, data));
  std::string target = testing::scratchFolder() + "/unwrap_dst.las";
  std::filesystem::remove(target);
  ASSERT_TRUE(unwrapFile(source, target));
  // The index is padded to 13 characters (never cut); a line not starting with a blank gets one.
  std::string expected = withWrapNo(lasWith(true, 11, {})) +
                         crlfLines({"1000.0" + std::string(6, ' ') + "1 2 3 4 5   6 7 8 9 10",
                                    "1000.123456789012 1 2 3 4 5 6 7 8 9 10",
                                    "1001.0" + std::string(8, ' ') + "1 2 3 4 5 6 7 8 9 10"});
  EXPECT_EQ(readBytes(target), expected);
}

TEST(UnwrapFile, OntoItselfLeavesOnlyTheRewrittenFile) {
  std::string source = writeScratchFile("unwrap_self.las", lasWith(true, 11, kWrapped155));
  ASSERT_TRUE(unwrapFile(source, source));
  std::string record = std::string(8, ' ') + "1 2 3 4 5 6 7 8 9 10";
  EXPECT_EQ(readBytes(source),
            withWrapNo(lasWith(true, 11, {})) +
                crlfLines({"1000.0" + record, "1000.5" + record, "1001.0" + record}));
  EXPECT_FALSE(std::filesystem::exists(testing::scratchFolder() + "/~~wrapno~~.las"));
}

TEST(UnwrapFile, LeavesUnwrappedDataAloneAndRefusesAMissingSource) {
  std::string source = writeScratchFile("unwrap_flat.las", lasWith(false, 2, {"1 2", "3 4"}));
  std::string target = testing::scratchFolder() + "/unwrap_flat_out.las";
  std::filesystem::remove(target);
  EXPECT_TRUE(unwrapFile(source, target));
  EXPECT_FALSE(std::filesystem::exists(target));
  EXPECT_FALSE(unwrapFile(source + ".missing", target));
}

}  // namespace
}  // namespace zorvik
