#include "run/cli_options.h"

#include <gtest/gtest.h>

#include <array>

#include "run/check_output.h"

namespace zorvik {
namespace {

Finding numbered(std::string message, std::uint64_t line, std::string quoted) {
  Finding finding(std::move(message), std::move(quoted));
  finding.line = line;
  return finding;
}

constexpr std::array<OptionSpec, 3> kTable{{
    {"report-dir", 0, "DIR", "reports"},
    {"jobs", 'j', "N", "workers"},
    {"quiet", 'q', "", "summary only"},
}};

struct ParseCase {
  const char* name;
  std::vector<std::string> words;
  std::string error;                          // empty: the words parse
  std::map<std::string, std::string> values;  // expected when they parse
  std::vector<std::string> operands;
};

TEST(ToolOptions, WordsAgainstTheTable) {
  const std::vector<ParseCase> cases = {
      {"long with separate value",
       {"--report-dir", "out dir", "a.las"},
       "",
       {{"report-dir", "out dir"}},
       {"a.las"}},
      {"long with equals", {"--report-dir=x=y"}, "", {{"report-dir", "x=y"}}, {}},
      {"short attached", {"-j4", "a"}, "", {{"jobs", "4"}}, {"a"}},
      {"short separate", {"-j", "4"}, "", {{"jobs", "4"}}, {}},
      {"last repeat wins", {"-j", "1", "--jobs=3"}, "", {{"jobs", "3"}}, {}},
      {"flag", {"a", "-q", "b"}, "", {{"quiet", ""}}, {"a", "b"}},
      {"lone dash is an operand", {"-"}, "", {}, {"-"}},
      {"double dash ends options", {"--", "-q", "--jobs"}, "", {}, {"-q", "--jobs"}},
      {"value may start with a dash", {"--report-dir", "-odd"}, "", {{"report-dir", "-odd"}}, {}},
      {"unknown long", {"--jsn"}, "unknown option --jsn", {}, {}},
      {"unknown short", {"-x"}, "unknown option -x", {}, {}},
      {"missing value", {"a", "-j"}, "option -j needs a value (N)", {}, {}},
      {"flag given a value", {"--quiet=1"}, "option --quiet takes no value", {}, {}},
      {"prefix is not a name", {"--report"}, "unknown option --report", {}, {}},
  };
  for (const ParseCase& c : cases) {
    SCOPED_TRACE(c.name);
    ParseResult result = parseOptions(c.words, kTable);
    EXPECT_EQ(result.error, c.error);
    if (!c.error.empty()) continue;
    EXPECT_EQ(result.options.operands, c.operands);
    EXPECT_EQ(result.options.values.size(), c.values.size());
    for (const auto& [name, value] : c.values) EXPECT_EQ(result.options.value(name), value);
  }
}

TEST(ToolOptions, HelpLinesAlignTheTexts) {
  EXPECT_EQ(optionHelp(kTable),
            "      --report-dir DIR   reports\n"
            "  -j, --jobs N           workers\n"
            "  -q, --quiet            summary only\n");
}

TEST(ToolOutput, BytesOfAQuotedLineStayVisible) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"STRT.M 100 : START", "STRT.M 100 : START"}, {"A\tB", "A\\tB"},
      {std::string("x\0y", 3), "x\\x00y"},          {"\r\n", "\\r\\n"},
      {"say \"hi\" \\", "say \\\"hi\\\" \\\\"},     {"\x7f\xc3\xa9", "\\x7f\\xc3\\xa9"},
  };
  for (const auto& [bytes, shown] : cases) EXPECT_EQ(escapeBytes(bytes), shown) << shown;
}

TEST(ToolOutput, ShellWordsSurviveTheShell) {
  EXPECT_EQ(shellWord("data/well_1.las"), "data/well_1.las");
  EXPECT_EQ(shellWord("my well.las"), "'my well.las'");
  EXPECT_EQ(shellWord("it's.las"), "'it'\\''s.las'");
  EXPECT_EQ(shellWord("$HOME.las"), "'$HOME.las'");
  EXPECT_EQ(shellWord(""), "''");
}

TEST(ToolOutput, FailedFileShowsRowsFirstFindingAndHint) {
  CheckedFile file{"a b.las", {}};
  file.result.verdict = Verdict::Failed;
  file.result.version = "2.0";
  file.result.rows = {
      {1, 1, "File exists", RowOutcome::Passed, {}},
      {4,
       5,
       "Legal line type",
       RowOutcome::Failed,
       {numbered("Tab used:", 12, "A\tB"), numbered("Tab used:", 14, "C\tD")}},
      {6, 1, "STRT", RowOutcome::Failed, {Finding{"STRT differs"}}},
      {7, 1, "Data", RowOutcome::NotPerformed, {}},
  };
  EXPECT_EQ(fileLines(file),
            "FAILED  2.0  a b.las\n"
            "    4.e  Legal line type: 2 findings\n"
            "    6.a  STRT: 1 finding\n"
            "    line 12: Tab used:\n"
            "      \"A\\tB\"\n");
  file.result.onlyLineEndsFailed = true;
  EXPECT_NE(fileLines(file).find("`zorvik repair --in-place 'a b.las'`"), std::string::npos);
}

}  // namespace
}  // namespace zorvik
