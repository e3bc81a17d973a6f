// The value of a mnemonic read straight from the file.
#include "cert2/file_value.h"

#include <gtest/gtest.h>

#include "las/sections.h"
#include "run/run_state.h"
#include "support/scratch_files.h"

namespace zorvik {
namespace {

using testing::crlfLines;
using testing::writeScratchFile;

TEST(LookupFileValue, FirstMatchingLineFromTheNamedSection) {
  const std::string withData = crlfLines({
      "~Version Information",
      " VERS.   1.2 : CWLS LOG ASCII STANDARD - VERSION 1.2",
      " DLM .  COMMA : delimiter",
      "~W",
      "STRT.M    1000.0 : START DEPTH",
      "COMP.  CO-VALUE  : ANY OIL COMPANY",
      "~Parameter",
      "BHT .DEGC   35.5 : BOTTOM HOLE TEMPERATURE",
      "~A DEPT",
      "HIDDEN.X 1 : after the data",
  });
  const std::string withoutData = crlfLines({"~Version", "VERS. 2.0 : v", "~Other", "NOTE"});
  struct Row {
    const char* name;
    const std::string* file;
    float version;
    const char* mnemonic;
    const char* section;
    std::string value;
    std::string unit;
    bool notFound;
  };
  const Row rows[] = {
      {"a value of ~Version", &withData, 2.0f, "dlm", "Version", "COMMA", "", false},
      {"the search runs on into later sections", &withData, 2.0f, "BHT", "Version", "35.5", "DEGC",
       false},
      {"an absent section reads from the top", &withData, 2.0f, "VERS", "Nowhere", "1.2", "",
       false},
      {"the data ends the search", &withData, 2.0f, "HIDDEN", "Version", " ", "", true},
      {"the end of the file gives nothing", &withoutData, 2.0f, "WRAP", "Version", "", "", false},
      {"1.2 keeps well information in the description", &withData, 1.2f, "COMP", "W",
       "ANY OIL COMPANY", "", false},
      {"1.2 keeps STRT in the value", &withData, 1.2f, "STRT", "W", "1000.0", "M", false},
      {"the description rule is for 1.2 only", &withData, 2.0f, "COMP", "W", "CO-VALUE", "", false},
      {"no version yet counts as 2.0", &withData, NO_VERSION, "COMP", "W", "CO-VALUE", "", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::string path = writeScratchFile("file_value.las", *row.file);
    resetRunState();
    runState().lasVersion = row.version;
    buildSectionIndex(path);
    std::string unit = "x";
    bool notFound = !row.notFound;
    EXPECT_EQ(lookupFileValue(path, row.mnemonic, row.section, &unit, &notFound), row.value);
    EXPECT_EQ(unit, row.unit);
    EXPECT_EQ(notFound, row.notFound);
  }
  EXPECT_EQ(lookupFileValue("/nonexistent/file.las", "VERS", "Version"), "");
}

}  // namespace
}  // namespace zorvik
