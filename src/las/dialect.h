// What a file's header says about how the rest of it is written: the LAS version and the data
// delimiter. The run learns it once, from the version sniff and the ~Version section, and hands
// it down to everything that reads lines.
#pragma once

#include <string>

namespace zorvik {

// The version of a file not sniffed yet.
inline constexpr float NO_VERSION = -999.25f;

struct Dialect {
  float version = NO_VERSION;   // as declared (single precision); 0 when the sniff failed
  std::string delimiter = " ";  // the data delimiter: " ", "\t" or ","

  bool isV3() const { return version == 3.0f; }
  // The delimiter as one character (a space when none is set).
  char delimiterChar() const { return delimiter.empty() ? ' ' : delimiter[0]; }
};

}  // namespace zorvik
