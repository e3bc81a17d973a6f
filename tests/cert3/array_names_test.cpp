#include <gtest/gtest.h>

#include <string>

#include "cert3/array_channels.h"

namespace zorvik {
namespace {

TEST(ArrayNames, ElementNumberAndBase) {
  struct Case {
    const char* mnemonic;
    int number;
    const char* base;
  } cases[] = {
      {"NMR[3]", 3, "NMR"},
      {"NMR[12]", 12, "NMR"},
      {"NMR[0]", 0, "NMR"},
      {"NMR", -1, "NMR"},
      {"NMR[]", -1, "NMR"},
      {"NMR[x]", -1, "NMR"},
      {"NMR[1", -1, "NMR"},
      {"NMR]1[", -1, "NMR]1"},
      {"NMR[-1]", -1, "NMR"},
      {"[2]", 2, ""},
      {"NMR[99999999999]", -1, "NMR"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.mnemonic);
    EXPECT_EQ(arrayElementNumber(c.mnemonic), c.number);
    EXPECT_EQ(arrayBaseMnemonic(c.mnemonic), c.base);
  }
}

TEST(ArrayNames, WrittenFormatKeepsMarkerAndSpacing) {
  struct Case {
    const char* line;
    const char* format;
  } cases[] = {
      {"NMR[1].ms : Bin {AF10.4;0.5}", "AF10.4;0.5"},
      {"NMR[1].ms : Bin { A F ; 2 } | DEPT", "A F ; 2"},
      {"DEPT.M : Depth {F}", "F"},
      {"DEPT.M : Depth {}", ""},
      {"DEPT.M : Depth", ""},
      {"DEPT.M : Depth }F{", ""},
      {"DEPT.M : Depth {F", ""},
      {"NMR[1].ms : Bin }x{AF}", ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.line);
    EXPECT_EQ(writtenFormat(c.line), c.format);
  }
}

}  // namespace
}  // namespace zorvik
