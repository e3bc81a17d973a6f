// Which LAS version a file claims: the value of its first well-formed VERS line before the data.
#pragma once

#include <string>

namespace zorvik {

// The leading number of the value of the first well-formed header line starting with "VERS"
// (leading blanks aside, any letter case) that comes before any line holding "~A" or
// "~Log_Data". 0 when there is none, or the file is missing or unreadable. Cannot fail.
float sniffVersion(const std::string& fileName);

}  // namespace zorvik
