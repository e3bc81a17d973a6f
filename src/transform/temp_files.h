// The temporary files that unwrapping and conversion leave in the program's folder.
#pragma once

namespace zorvik {

inline constexpr const char* WRAP_TEMP_FILE = "~~wrapno~~.las";  // unwrapping in place
inline constexpr const char* CONVERT_TEMP_FILE =
    "un_wrapped_temp~.las";  // unwrapped conversion input

// Deletes both from the program's folder when they exist. Never fails: a file that cannot be
// deleted is left where it is.
void removeTemporaryFiles();

}  // namespace zorvik
