// File-name helpers shared by start-up, the run drivers and the file-level checks.
//
// Attributes are the desktop ones mapped onto this platform: a name whose last
// component begins with "." is hidden; a file nobody may write is read-only; every regular file
// carries the archive attribute; directories carry the directory attribute and other non-regular
// files (pipes, devices, sockets) the system attribute. None of these functions throws.
#pragma once

#include <string>

namespace zorvik {

inline constexpr int ATTR_NORMAL = 0;
inline constexpr int ATTR_READONLY = 1;
inline constexpr int ATTR_HIDDEN = 2;
inline constexpr int ATTR_SYSTEM = 4;
inline constexpr int ATTR_DIRECTORY = 16;
inline constexpr int ATTR_ARCHIVE = 32;

// True when `name` is a visible regular file (hidden, system and directory entries count as
// absent); false for an empty name.
bool fileExists(const std::string& name);

// The attribute bits of `name`, or -1 when nothing of that name can be looked at.
int fileAttributes(const std::string& name);

// True when a log file could be written under `name`: its folder is writable and the name is
// free or a writable regular file (links followed). Pipes, devices and folders are not writable,
// nor is a hidden name. Opens nothing, so nothing is created, emptied or waited for.
bool logFileWritable(const std::string& name);

// `name` cut at the first "." of the file's own name (after the last "/"; folders are never cut)
// followed by "." and `extension`; without a point the extension is appended. An empty extension
// appends nothing and drops the point. A blank name comes back unchanged.
std::string changeExtension(const std::string& name, const std::string& extension);

}  // namespace zorvik
