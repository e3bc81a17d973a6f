// The section model: title lines, the index of a file's sections, their
// roles and 3.0 groups, and the text of one section.
//
// Nothing here reports to the user: missing sections give empty names, position 0 or empty text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "las/dialect.h"
#include "las/las_file.h"
#include "las/section_types.h"

namespace zorvik {

std::string parseTitleLine(std::string_view line, std::string& association);
std::string splitArrayIndex(std::string_view name, int& index);
// The same as a view into `name`, for loops that must not allocate.
std::string_view splitArrayIndexView(std::string_view name, int& index);

// Rebuilds `index.entries` and `index.groups` from the file; false when the file cannot be opened
// (the index then stays empty).
bool buildSectionIndex(const LasFile& file, const Dialect& dialect, SectionIndex& index);
// Start position of the first section named `name` (building the index from `file` when it is
// empty); 0 when none.
std::int64_t findSection(const LasFile& file, const Dialect& dialect, SectionIndex& index,
                         std::string_view name, std::string& foundName);

// Largest text `sectionText` gives back; a longer section is cut there. Header sections are far
// smaller; the limit only keeps a mistaken request for a huge data section from eating memory.
inline constexpr std::int64_t SECTION_TEXT_LIMIT = 64 * 1024 * 1024;
// Raw text of the first section named `name` (CR LF kept, ending with the CR of its last line);
// "" when the section is missing or empty.
std::string sectionText(const LasFile& file, const Dialect& dialect, SectionIndex& index,
                        std::string_view name);
// Reads the index from the file unless it was read already under the dialect's rules, and sets
// its data, curve and parameter names and `standardFound`. True once the search has run.
bool locateStandardSections(const LasFile& file, const Dialect& dialect, SectionIndex& index);
// Role of the last section named `name`; none when no section has that name.
std::optional<SectionRole> sectionRoleOf(const SectionIndex& index, std::string_view name);

}  // namespace zorvik
