// Every finding a check places in the file must point at the line it is about: over every
// fixture and example, a finding that quotes a line names the line that holds that text, and one
// that only places itself names a line of the file at all.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "cert2/certify2.h"
#include "cert3/certify3.h"
#include "checks/run_context.h"
#include "las/line_numbers.h"
#include "run/run_start.h"
#include "run/version_sniff.h"
#include "support/batch_run.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

// A quote as checks show it (trimmed, tabs as "<Tab>") against the line as the file holds it.
std::string comparable(std::string_view line) {
  return trim(replaceAll(line, "\t", "<Tab>"));
}

// Some checks quote a header line rebuilt from its fields; those agree with the line on the
// mnemonic, the text before its first period.
bool quotes(const std::string& quoted, const std::string& line) {
  if (comparable(quoted) == comparable(line)) return true;
  const std::size_t period = quoted.find('.');
  return period != std::string::npos && period > 0 &&
         trim(quoted.substr(0, period)) == trim(line.substr(0, line.find('.')));
}

// Certifies a copy of `source` (a null-STOP file is rewritten by its run) the way a batch run
// does, and checks the places of its findings; the number of placed findings.
int checkPlaces(const std::string& source) {
  testing::ScratchDir dir;
  RunContext run;
  run.lasFile = dir.write("copy.las", testing::readBytes(source));
  run.logSink = [](std::string_view) {};
  Slots group1;
  if (beginRun(run, group1) == RunStatus::Stopped) {
    storeFileResults(run, group1);
  } else {
    run.dialect.version = sniffVersion(run.lasFile);
    if (run.dialect.version == 3.0f)
      aaCertify3(run);
    else if (run.dialect.version == 1.2f || run.dialect.version == 2.0f)
      aaCertify2(run);
  }

  const CheckTable& table = run.results();
  std::vector<const Finding*> placed;
  std::vector<std::int64_t> positions;
  for (int group = 0; group <= table.lastGroup(); ++group)
    for (int row = 1; row <= table.lastRow(); ++row)
      for (const Finding& finding : table.result(row, group).findings())
        if (finding.position > 0) {
          placed.push_back(&finding);
          positions.push_back(finding.position);
        }
  const std::vector<NumberedLine> lines = linesAt(run.source(), positions);
  for (std::size_t i = 0; i < placed.size(); ++i) {
    const Finding& finding = *placed[i];
    SCOPED_TRACE(finding.message);
    EXPECT_GT(lines[i].number, 0u);
    if (!finding.quoted || finding.quoted->find('\r') != std::string::npos) continue;
    EXPECT_TRUE(quotes(*finding.quoted, lines[i].text))
        << *finding.quoted << " | line " << lines[i].number << ": " << lines[i].text;
  }
  return static_cast<int>(placed.size());
}

TEST(FindingPlaces, EveryPlacedFindingNamesItsLine) {
  std::vector<std::string> files;
  for (const char* area : {"/cert2/", "/cert3/"}) {
    const std::string folder = std::string(ZORVIK_TEST_DATA) + area;
    for (const std::string& stem : testing::stemsIn(folder, ".las"))
      files.push_back(folder + stem + ".las");
  }
  for (const std::string& stem : testing::stemsIn(ZORVIK_EXAMPLES, ".las"))
    files.push_back(std::string(ZORVIK_EXAMPLES) + "/" + stem + ".las");
  int placed = 0;
  for (const std::string& file : files) {
    SCOPED_TRACE(file);
    placed += checkPlaces(file);
  }
  // The fixtures fail on lines in every group that reads lines; a run that placed nothing would
  // prove nothing.
  EXPECT_GT(placed, 50);
}

}  // namespace
}  // namespace zorvik
