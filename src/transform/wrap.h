// Rewriting a file of wrapped data (WRAP YES) with one record per line.
#pragma once

#include <string>

#include "checks/wrap_layout.h"

namespace zorvik {

class RunObserver;

// Writes `destination` as `source` with each wrapped record joined onto one line and WRAP set to
// NO (unwrapped data is left alone), through the safe file writer. Unwrapping onto the source
// itself is a locked in-place rewrite, refused like any other (read-only, linked, changing).
// False when the source is missing or writing failed or was refused; neither file is ever left
// half-written. `observer` (may be null) sees the progress and is shown a critical box when
// writing fails.
bool unwrapFile(const std::string& source, const std::string& destination,
                RunObserver* observer = nullptr);

}  // namespace zorvik
