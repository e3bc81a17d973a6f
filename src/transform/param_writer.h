// Rewrites the value of one header line of a LAS file on disk.
#pragma once

#include <string>
#include <string_view>

namespace zorvik {

// Replaces the value field of the first line with mnemonic `mnemonic` (ignoring case) in section
// `sectionName` by `newValue`, keeping every other byte of the file. The file is written to a
// temporary file in the same folder and renamed over the original, so a failure never leaves a
// half-written file. False (file unchanged) when the file cannot be read or written, or the
// section or the mnemonic is missing.
bool writeParameterValue(const std::string& fileName, std::string_view sectionName,
                         std::string_view mnemonic, std::string_view newValue);

}  // namespace zorvik
