// The value of one mnemonic read straight from the file, for values needed before (or without)
// a section's line table: "DLM" of the ~Version section, for instance.
//
// Never fails: an unreadable file or a missing mnemonic gives an empty value.
#pragma once

#include <string>
#include <string_view>

namespace zorvik {

// Searches the run's LAS file from the start of section `sectionName` (from the top of the file
// when the name is empty or the section is missing) through the later header sections, up to the
// data section, for the first line whose mnemonic equals `mnemonic` (ignoring case), and returns
// its trimmed value. In a 1.2 file, for section "W" and a mnemonic other than STRT/STOP/STEP/NULL,
// the description is returned instead, since 1.2 files keep such information there. `unit` receives
// the line's trimmed unit ("" when not found). Reaching the data section gives " " and sets
// `notFound`; reaching the end of the file gives "" (and leaves `notFound` false).
struct RunContext;

std::string lookupFileValue(RunContext& run, std::string_view mnemonic,
                            std::string_view sectionName, std::string* unit = nullptr,
                            bool* notFound = nullptr);

}  // namespace zorvik
