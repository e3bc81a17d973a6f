// Scratch LAS files for tests: a private folder per test program and CR LF joined lines.
#pragma once

#include <string>
#include <vector>

namespace zorvik::testing {

// A folder of this test program's own under the system's temporary folder (created once).
std::string scratchFolder();

// Writes `bytes` to `name` in the scratch folder and gives back the full path.
std::string writeScratchFile(const std::string& name, const std::string& bytes);

// The lines, each ended by CR LF.
std::string crlfLines(const std::vector<std::string>& lines);

}  // namespace zorvik::testing
