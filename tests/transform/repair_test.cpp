// Repair of 1.2/2.0 files: each repair fixes the row that found its fault, lists every line it
// changes, and leaves passing files and, on failure, every file as they were.
#include "transform/repair.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <optional>

#include "base/file_writer.h"
#include "base/text.h"
#include "checks/report.h"
#include "checks/run_context.h"
#include "run/interactive_run.h"
#include "run/session.h"
#include "support/batch_run.h"
#include "support/failing_writes.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::FailingWrites;
using testing::namesIn;
using testing::readBytes;
using testing::RunSandbox;

const std::string kBase =
    "~Version Information\r\n"
    " VERS.                 2.0 : CWLS log ASCII Standard -VERSION 2.0\r\n"
    " WRAP.                  NO : One line per depth step\r\n"
    "~Well Information\r\n"
    " STRT.M             1500.00 : START DEPTH\r\n"
    " STOP.M             1501.50 : STOP DEPTH\r\n"
    " STEP.M                0.50 : STEP\r\n"
    " NULL.              -999.25 : NULL VALUE\r\n"
    " COMP.         TEST COMPANY : COMPANY\r\n"
    " WELL.            TEST WELL : WELL\r\n"
    " FLD .           TEST FIELD : FIELD\r\n"
    " LOC .             LOCATION : LOCATION\r\n"
    " PROV.              ALBERTA : PROVINCE\r\n"
    " UWI .     100010100101W400 : UWI\r\n"
    " DATE.          01-JAN-2020 : LOG DATE\r\n"
    " SRVC.         TEST SERVICE : SERVICE COMPANY\r\n"
    "~Curve Information\r\n"
    " DEPT.M                     : DEPTH\r\n"
    " GR  .GAPI                  : GAMMA RAY\r\n"
    " RHOB.K/M3                  : DENSITY\r\n"
    "~A\r\n"
    "1500.00  45.2  2450.1\r\n"
    "1500.50  46.8  -999.25\r\n"
    "1501.00  47.1  2460.3\r\n"
    "1501.50  44.0  2470.0\r\n";

struct Certified {
  bool passed = false;
  std::vector<CatalogueRow> rows;
};

// Certifies `path` in this process, as the window does before and after a repair.
Certified certify(const std::string& path, RunContext& run) {
  Session session;
  session.lasFile = path;
  runInteractive(session, run, nullptr);
  Certified c;
  c.rows = failingRows(run.table2);
  c.passed = verdictLine(run).find("PASSED") != std::string::npos;
  return c;
}

Certified certify(const std::string& path) {
  RunContext run;
  return certify(path, run);
}

std::vector<std::string> lines(const std::string& bytes) {
  std::vector<std::string> out;
  std::size_t i = 0;
  while (i < bytes.size()) {
    std::size_t end = bytes.find_first_of("\r\n", i);
    if (end == std::string::npos) end = bytes.size();
    out.push_back(bytes.substr(i, end - i));
    i = end;
    if (i < bytes.size() && bytes[i] == '\r') ++i;
    if (i < bytes.size() && bytes[i] == '\n') ++i;
  }
  return out;
}

// The input's lines with the listed changes applied, and nothing else: what the output's lines
// must be when the change list is complete.
std::vector<std::string> applyListed(const std::vector<std::string>& input,
                                     const std::vector<Change>& changes) {
  std::map<std::int64_t, std::string> changed;
  std::map<std::int64_t, std::vector<std::string>> added;
  for (const Change& c : changes) {
    if (c.kind == ChangeKind::Changed && !c.after.empty()) changed[c.line] = c.after;
    if (c.kind == ChangeKind::Changed && c.what == "byte-order mark removed")
      changed[c.line] = input[0].substr(3);
    if (c.kind == ChangeKind::Added) added[c.line].push_back(c.after);
  }
  std::vector<std::string> out = added[0];
  for (std::size_t n = 1; n <= input.size(); ++n) {
    const auto it = changed.find(static_cast<std::int64_t>(n));
    out.push_back(it != changed.end() ? it->second : input[n - 1]);
    for (const std::string& a : added[static_cast<std::int64_t>(n)]) out.push_back(a);
  }
  return out;
}

std::string withLine(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

TEST(RepairFile, EachRepairFixesItsRowAndChangesOnlyTheListedLines) {
  struct Row {
    const char* label;
    std::function<std::string(const std::string&)> fault;
    CatalogueRow row;
    std::string unitsAnswer = "";
    // The repaired file when its changes are listed as one item for many lines.
    std::string whole = "";
  };
  const Row rows[] = {
      {"LF line ends",
       [](const std::string& t) { return replaceAll(t, "\r\n", "\n"); },
       {1, 4},
       "",
       kBase},
      {"LF and CR line ends after a byte-order mark",
       [](const std::string& t) {
         return "\xEF\xBB\xBF" + withLine(replaceAll(t, "\r\n", "\n"), "2460.3\n", "2460.3\r");
       },
       {1, 4},
       "",
       kBase},
      {"tabs between data values",
       [](const std::string& t) { return replaceAll(t, "  ", "\t"); },
       {4, 5},
       "",
       replaceAll(kBase, "  ", " ")},
      {"tab in a ~Well line",
       [](const std::string& t) { return withLine(t, " COMP.  ", " COMP.\t "); },
       {4, 5}},
      {"VERS missing",
       [](const std::string& t) {
         return withLine(t, " VERS.                 2.0 : CWLS log ASCII Standard -VERSION 2.0\r\n",
                         "");
       },
       {2, 2}},
      {"WRAP missing",
       [](const std::string& t) {
         return withLine(t, " WRAP.                  NO : One line per depth step\r\n", "");
       },
       {2, 3}},
      {"STRT, COMP and SRVC missing",
       [](const std::string& t) {
         std::string out = withLine(t, " STRT.M             1500.00 : START DEPTH\r\n", "");
         out = withLine(out, " COMP.         TEST COMPANY : COMPANY\r\n", "");
         return withLine(out, " SRVC.         TEST SERVICE : SERVICE COMPANY\r\n", "");
       },
       {5, 1}},
      // The index channel has no unit: the question's answer is the unit of the added lines, and
      // the unit check that follows still wants one on the channel.
      {"STRT, STOP and STEP missing, index without unit",
       [](const std::string& t) {
         std::string out = withLine(t, " STRT.M             1500.00 : START DEPTH\r\n", "");
         out = withLine(out, " STOP.M             1501.50 : STOP DEPTH\r\n", "");
         out = withLine(out, " STEP.M                0.50 : STEP\r\n", "");
         return withLine(out, " DEPT.M ", " DEPT.  ");
       },
       {5, 1},
       "M"},
      {"STRT against the data",
       [](const std::string& t) { return withLine(t, "1500.00 : START", "1499.00 : START"); },
       {6, 2}},
      {"STOP against the data",
       [](const std::string& t) { return withLine(t, "1501.50 : STOP", "1502.50 : STOP"); },
       {6, 3}},
      {"STEP against the data",
       [](const std::string& t) { return withLine(t, "   0.50 : STEP", "   0.25 : STEP"); },
       {6, 4}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    RunSandbox sandbox;
    const std::string faulty = row.fault(kBase);
    const std::string path = sandbox.dir().write("well.las", faulty);
    const Certified before = certify(path);
    ASSERT_NE(std::find(before.rows.begin(), before.rows.end(), row.row), before.rows.end());

    RepairRequest request;
    request.file = path;
    request.found = before.rows;
    std::vector<std::string> asked;
    request.askIndexUnits = [&](const std::string& prompt) {
      asked.push_back(prompt);
      return row.unitsAnswer;
    };
    const RepairResult result = repairFile(request);
    ASSERT_EQ(result.outcome, RepairOutcome::Repaired) << result.error;
    for (const Change& c : result.changes) EXPECT_EQ(c.row, row.row) << c.what;
    EXPECT_EQ(asked, row.unitsAnswer.empty() ? std::vector<std::string>{}
                                             : std::vector<std::string>{INDEX_UNITS_PROMPT});

    const std::string repaired = readBytes(path);
    if (!row.whole.empty()) {
      EXPECT_EQ(repaired, row.whole);
    } else {
      EXPECT_EQ(lines(repaired), applyListed(lines(faulty), result.changes))
          << describeChanges(result.changes);
    }
    RunContext afterRun;
    const Certified after = certify(path, afterRun);
    EXPECT_EQ(std::find(after.rows.begin(), after.rows.end(), row.row), after.rows.end());
    if (row.unitsAnswer.empty()) {
      EXPECT_TRUE(after.passed) << describeChanges(result.changes) << buildReport(afterRun);
    }
  }
}

// A fault behind an earlier failing group is reached in a later round; every round's changes are
// listed.
TEST(RepairInRounds, RepairsWhatEachCertificationBringsToLight) {
  RunSandbox sandbox;
  std::string faulty =
      withLine(kBase, " WRAP.                  NO : One line per depth step\r\n", "");
  faulty = withLine(faulty, "1501.50 : STOP", "1502.50 : STOP");
  faulty = replaceAll(faulty, "\r\n", "\n");
  const std::string path = sandbox.dir().write("well.las", faulty);
  int certifications = 0;
  RepairRequest request;
  request.file = path;
  const RepairResult result =
      repairInRounds(request, [&]() -> std::optional<std::vector<CatalogueRow>> {
        ++certifications;
        return certify(path).rows;
      });
  EXPECT_EQ(result.outcome, RepairOutcome::Repaired);
  std::vector<std::pair<ChangeKind, CatalogueRow>> listed;
  for (const Change& c : result.changes) listed.emplace_back(c.kind, c.row);
  const std::vector<std::pair<ChangeKind, CatalogueRow>> expected = {
      {ChangeKind::Changed, {1, 4}},
      {ChangeKind::Added, {2, 3}},
      {ChangeKind::Changed, {6, 3}},
  };
  EXPECT_EQ(listed, expected) << describeChanges(result.changes);
  EXPECT_EQ(certifications, 4);  // before, after each of the three repairing rounds
}

TEST(RepairFile, PassingFilesAreLeftByteForByte) {
  std::vector<std::pair<std::string, std::string>> inputs = {{"base.las", kBase}};
  for (const char* name : {"example_12.las", "example_20.las", "example_20_wrapped.las"})
    inputs.emplace_back(name, readBytes(std::string(ZORVIK_EXAMPLES) + "/" + name));
  for (const char* name : {"v2_passing.las", "v12_one_letter_titles.las"})
    inputs.emplace_back(name, readBytes(std::string(ZORVIK_TEST_DATA) + "/cert2/" + name));
  for (const auto& [name, bytes] : inputs) {
    SCOPED_TRACE(name);
    RunSandbox sandbox;
    const std::string path = sandbox.dir().write(name, bytes);
    ASSERT_TRUE(certify(path).passed);
    RepairRequest request;
    request.file = path;  // every repair allowed: none may find anything to do
    const RepairResult result = repairFile(request);
    EXPECT_EQ(result.outcome, RepairOutcome::NothingRepaired) << describeChanges(result.changes);
    EXPECT_EQ(readBytes(path), bytes);
  }
}

TEST(RepairFile, FaultsOnlyTheUserCanFixAreListedNotRepaired) {
  RunSandbox sandbox;
  const std::string path =
      sandbox.dir().write("well.las", withLine(kBase, "46.8  -999.25", "46.8"));
  const Certified before = certify(path);
  RepairRequest request;
  request.file = path;
  request.found = before.rows;
  const RepairResult result = repairFile(request);
  EXPECT_EQ(result.outcome, RepairOutcome::NothingRepaired);
  ASSERT_FALSE(result.changes.empty());
  for (const Change& c : result.changes) {
    EXPECT_EQ(c.kind, ChangeKind::NotRepaired);
    EXPECT_FALSE(isRepairableRow(c.row));
  }
  EXPECT_NE(describeChanges(result.changes).find("Not repaired (check 4.7)"), std::string::npos)
      << describeChanges(result.changes);
}

TEST(RepairFile, AFailedOrRefusedWriteLeavesTheInputByteIdentical) {
  namespace fs = std::filesystem;
  const std::string faulty = replaceAll(kBase, "\r\n", "\n");
  struct Row {
    const char* label;
    const char* output;  // in the scratch folder; empty: in place
    bool fullDisk;
    std::function<void(const std::string& input)> prepare;
  };
  const Row rows[] = {
      {"full disk", "", true, nullptr},
      {"full disk, to another file", "repaired.las", true, nullptr},
      {"folder that does not exist", "gone/well.las", false, nullptr},
      {"read-only input", "", false,
       [](const std::string& in) { fs::permissions(in, fs::perms::owner_read); }},
      {"input with a second name", "", false,
       [](const std::string& in) { fs::create_hard_link(in, in + ".bak"); }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    RunSandbox sandbox;
    const std::string path = sandbox.dir().write("well.las", faulty);
    if (row.prepare) row.prepare(path);
    const std::vector<std::string> before = namesIn(sandbox.dir().path());
    RepairRequest request;
    request.file = path;
    if (*row.output != '\0') request.output = sandbox.dir().file(row.output);
    FailingWrites full(".las");
    std::optional<ScopedFileSystemCalls> installed;
    if (row.fullDisk) installed.emplace(full);
    const RepairResult result = repairFile(request);
    EXPECT_EQ(result.outcome, RepairOutcome::Failed);
    EXPECT_EQ(result.error.rfind("The repaired file could not be written: ", 0), 0u)
        << result.error;
    EXPECT_TRUE(result.changes.empty());
    EXPECT_EQ(readBytes(path), faulty);
    EXPECT_EQ(namesIn(sandbox.dir().path()), before) << "no temporary file, no output";
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  }
}

TEST(RepairFile, ALinkedFileIsRepairedAndTheLinkStaysALink) {
  namespace fs = std::filesystem;
  const std::string faulty = replaceAll(kBase, "\r\n", "\n");
  for (const bool inPlace : {true, false}) {
    SCOPED_TRACE(inPlace ? "in place" : "to another file");
    RunSandbox sandbox;
    const std::string real = sandbox.dir().write("real.las", inPlace ? faulty : "old copy\n");
    const std::string link = sandbox.dir().file("link.las");
    fs::create_symlink("real.las", link);
    RepairRequest request;
    request.file = inPlace ? link : sandbox.dir().write("well.las", faulty);
    request.output = inPlace ? "" : link;
    ASSERT_EQ(repairFile(request).outcome, RepairOutcome::Repaired);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(readBytes(real), kBase);
    if (!inPlace) {
      EXPECT_EQ(readBytes(request.file), faulty);
    }
  }
}

TEST(RepairFile, AReplacedFileKeepsItsPermissions) {
  RunSandbox sandbox;
  const std::string path = sandbox.dir().write("well.las", replaceAll(kBase, "\r\n", "\n"));
  namespace fs = std::filesystem;
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  RepairRequest request;
  request.file = path;
  ASSERT_EQ(repairFile(request).outcome, RepairOutcome::Repaired);
  EXPECT_EQ(fs::status(path).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  EXPECT_EQ(readBytes(path), kBase);
}

}  // namespace
}  // namespace zorvik
