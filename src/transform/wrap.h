// Wrapped data (WRAP YES): how many physical lines make one record, and rewriting such a file
// with one record per line.
#pragma once

#include <string>

namespace zorvik {

inline constexpr int WRAP_UNWRAPPED = 1;
inline constexpr int WRAP_WRAPPED = 2;
inline constexpr int WRAP_UNDETERMINED = 3;
inline constexpr int WRAP_CANCELLED = 4;

// Samples the first data lines of the file. `sampleHint` is the channel count to size the sample
// (0: count the ~Curve lines). Gives back the lines per record, the record buffer length and the
// channels per record (the first line's for unwrapped data). Never fails: unreadable data is
// WRAP_UNDETERMINED with outputs 0.
int analyseWrap(const std::string& fileName, int& linesPerRecord, int& bufferLength, int& channels,
                int sampleHint);

// Writes `destination` as `source` with each wrapped record joined onto one line and WRAP set to
// NO (unwrapped data is left alone), through the safe file writer. Unwrapping onto the source
// itself is a locked in-place rewrite, refused like any other (read-only, linked, changing).
// False when the source is missing or writing failed or was refused; neither file is ever left
// half-written. Rebuilds the run's section index from `source`. In window
// mode publishes progress and shows a critical box when writing fails.
bool unwrapFile(const std::string& source, const std::string& destination);

}  // namespace zorvik
