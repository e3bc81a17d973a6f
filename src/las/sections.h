// The section model: title lines, the index of a file's sections (kept in the run state), their
// roles and 3.0 groups, and the text of one section.
//
// Nothing here reports to the user: missing sections give empty names, position 0 or empty text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "las/section_types.h"

namespace zorvik {

class LineReader;

std::string parseTitleLine(std::string_view line, std::string& association);
std::string splitArrayIndex(std::string_view name, int& index);
// The same as a view into `name`, for loops that must not allocate.
std::string_view splitArrayIndexView(std::string_view name, int& index);

// Rebuilds the run state's `sectionIndex` and `sectionGroups` from the file; false when the file
// cannot be opened (the index then stays empty).
bool buildSectionIndex(const std::string& fileName);
// Start position of the first section named `name` (building the index when empty); 0 when none.
std::int64_t findSection(const std::string& fileName, std::string_view name,
                         std::string& foundName);
// Positions `file` at the first line of section `name` (found through the index of the run's LAS
// file) and returns that position; 0 when none. An empty name rewinds the file and gives 0. With
// no index built, the open file itself is searched for the first line starting "~" + name: the
// result is then the position of that title line, and the file is left just after it.
std::int64_t seekSection(LineReader& file, std::string_view name);

// Largest text `sectionText` gives back; a longer section is cut there. Header sections are far
// smaller; the limit only keeps a mistaken request for a huge data section from eating memory.
inline constexpr std::int64_t SECTION_TEXT_LIMIT = 64 * 1024 * 1024;
// Raw text of the first section named `name` (CR LF kept, ending with the CR of its last line);
// "" when the section is missing or empty.
std::string sectionText(const std::string& fileName, std::string_view name);
// Rebuilds the index and sets dataSectionName, curveSectionName, paramSectionName and
// standardSectionsFound in the run state. True once the search has run.
bool locateStandardSections(const std::string& fileName);
// Role of the last section named `name`; -1 when none.
int sectionRoleOf(std::string_view name);

}  // namespace zorvik
