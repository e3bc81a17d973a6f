// Group 1 of both catalogues: is the named file there, non-empty, readable, CR LF terminated,
// free of NUL bytes and named ".las"? Decided from the file system and two 4096-byte samples,
// before anything parses the file.
//
// Nothing here throws: faults met while looking at the file become the access result.
#pragma once

#include <string>

#include "base/fault.h"
#include "checks/check_table.h"
#include "las/las_file.h"

namespace zorvik {

struct RunContext;

// Rows of group 1 in the slots the file-level checks fill.
enum FileCheckRow : int {
  FILE_EXISTS = 1,
  FILE_SIZE = 2,
  FILE_ACCESS = 3,
  FILE_TERMINATION = 4,
  FILE_ASCII = 5,
  FILE_EXTENSION = 6,
};

// Fills slots 1..6 (see FileCheckRow; the others are emptied) and answers RunStatus::Completed when
// all six pass, else RunStatus::Stopped. Existence, size or access failing leaves rows 4..6
// empty.
RunStatus fileLevelChecks(RunContext& run, Slots& results);

enum class LineEnds {
  CrLf,
  LineFeed,   // lines end at LF alone
  NulByte,    // a NUL in the first 4096 bytes: not a text file, line ends not judged
  Undecided,  // neither, or the file could not be read (then `fault` says why)
};

// Judges the line ends and the NUL-free head of an existing, non-empty file. `fault` is set when
// the file could not be read (number 0 when there was no fault).
LineEnds judgeLineEnds(const LasFile& file, Fault& fault);

}  // namespace zorvik
