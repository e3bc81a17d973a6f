#include "cert3/item_format.h"

#include <gtest/gtest.h>

#include <string>

#include "las/value_format.h"
#include "run/run_state.h"

namespace zorvik {
namespace {

// Every item against every format: the quick scan may only ever agree with the full test.
TEST(ItemFormat, AgreesWithTheFullValueTest) {
  resetRunState();
  runState().lasVersion = 3.0f;
  runState().dataDelimiter = ",";
  const char* formats[] = {"",     "F",   "F10.4", "F4.2",      "F4.1",       "F6.2", "F10",
                           "F10.", "F.4", "f",     "I",         "I3",         "I0",   "I3.0",
                           "S",    "S3",  "E",     "E0.00E+00", "DD/MM/YYYY", "Q",    "s"};
  const char* items[] = {"12.5",    "12",         "-12.50", "+1.25",   ".5",        "5.",
                         "1E3",     "1e3",        "abc",    "1.2.3",   "-",         ".",
                         "007",     "123",        "-0",     "12.3456", "1234.5678", "0.25",
                         "-999.25", "12/05/1957", "a b",    "1.0,2.0", "",          " "};
  for (const char* format : formats) {
    ItemFormat parsed = parseItemFormat(format);
    EXPECT_EQ(parsed.text, format);
    for (const char* item : items) {
      SCOPED_TRACE(std::string("item [") + item + "] format [" + format + "]");
      EXPECT_EQ(itemFitsFormat(item, parsed), valueMatchesFormat(item, format) == -1);
    }
  }
}

TEST(ItemFormat, KnownAnswers) {
  resetRunState();
  runState().dataDelimiter = ",";
  struct Case {
    const char* item;
    const char* format;
    bool fits;
  } cases[] = {
      {"1234.5678", "F9.4", true}, {"0.3", "F4.2", false}, {"0.30", "F4.2", true},
      {"12", "F", true},           {"12", "F4.1", false},  {"1E3", "F", false},
      {"-5", "I", false},          {"123", "I3", true},    {"1234", "I3", false},
      {"shale", "S", true},        {"", "I", true},        {"12/05/1957", "DD/MM/YYYY", true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.item) + " {" + c.format + "}");
    EXPECT_EQ(itemFitsFormat(c.item, parseItemFormat(c.format)), c.fits);
  }
}

TEST(ItemFormat, PicksTheQuickScanForCommonFormats) {
  struct Case {
    const char* format;
    ItemFormat::Quick quick;
  } cases[] = {
      {"", ItemFormat::QUICK_NUMBER},         {"F", ItemFormat::QUICK_NUMBER},
      {"F10.4", ItemFormat::QUICK_FIXED},     {"F10", ItemFormat::QUICK_NONE},
      {"I", ItemFormat::QUICK_DIGITS},        {"I5", ItemFormat::QUICK_DIGITS_SIZED},
      {"I0", ItemFormat::QUICK_NONE},         {"S", ItemFormat::QUICK_ANY},
      {"S8", ItemFormat::QUICK_NONE},         {"E0.00E+00", ItemFormat::QUICK_NONE},
      {"DD/MM/YYYY", ItemFormat::QUICK_NONE},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.format);
    EXPECT_EQ(parseItemFormat(c.format).quick, c.quick);
  }
}

}  // namespace
}  // namespace zorvik
