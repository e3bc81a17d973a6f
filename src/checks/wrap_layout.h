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

// What the sample shows: one line per record, records of several lines, no pattern (or no data
// to sample), or the sampling was cancelled.
enum class WrapLayout { Unwrapped, Wrapped, Undetermined, Cancelled };

// Samples the first data lines of the file. `sampleHint` is the channel count to size the sample
// (0: count the ~Curve lines). Gives back the lines per record, the record buffer length and the
// channels per record (the first line's for unwrapped data). Never fails: unreadable data is
// WrapLayout::Undetermined with outputs 0.
// `observer` (may be null) sees the sample being read and may cancel it (WrapLayout::Cancelled).
WrapLayout analyseWrap(const LasFile& file, const Dialect& dialect, SectionIndex& sections,
                       RunObserver* observer, int& linesPerRecord, int& bufferLength, int& channels,
                       int sampleHint);
// The same for the run's LAS file.
WrapLayout analyseWrap(RunContext& run, int& linesPerRecord, int& bufferLength, int& channels,
                       int sampleHint);

}  // namespace zorvik
