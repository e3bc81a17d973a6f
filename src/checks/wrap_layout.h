// Wrapped data (WRAP YES): how many physical lines make one record, judged from a sample of the
// first data lines. The checks of both versions compare it with the declared WRAP; unwrapping
// uses it to join the records.
#pragma once

#include <string>

#include "las/dialect.h"
#include "las/las_file.h"
#include "las/section_types.h"

namespace zorvik {

class RunObserver;
struct RunContext;

inline constexpr int WRAP_UNWRAPPED = 1;
inline constexpr int WRAP_WRAPPED = 2;
inline constexpr int WRAP_UNDETERMINED = 3;
inline constexpr int WRAP_CANCELLED = 4;

// Samples the first data lines of the file. `sampleHint` is the channel count to size the sample
// (0: count the ~Curve lines). Gives back the lines per record, the record buffer length and the
// channels per record (the first line's for unwrapped data). Never fails: unreadable data is
// WRAP_UNDETERMINED with outputs 0.
// `observer` (may be null) sees the sample being read and may cancel it (WRAP_CANCELLED).
int analyseWrap(const LasFile& file, const Dialect& dialect, SectionIndex& sections,
                RunObserver* observer, int& linesPerRecord, int& bufferLength, int& channels,
                int sampleHint);
// The same for the run's LAS file.
int analyseWrap(RunContext& run, int& linesPerRecord, int& bufferLength, int& channels,
                int sampleHint);

}  // namespace zorvik
