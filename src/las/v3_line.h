// The version 3.0 line parser: types one line from the line and the section it stands in, and
// fills eleven diagnostic slots with whatever is wrong with it. It never reports or throws.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "las/dialect.h"
#include "las/section_types.h"

namespace zorvik {

enum class V3LineType { Pdl, Comment, Title, ColumnData, Blank, Bad };

// Slots 1..10 (slot 0 is never filled): 1 mnemonic, 2 unit, 3 value, 4 description, 5 bar
// placement, 6 brace/value format, 7 format syntax, 8 association (whole line), 9 data lines,
// 10 line-type message of a V3LineType::Bad line.
using V3LineDiagnostics = std::array<std::string, 11>;

// Slot numbers, for readers of the diagnostics.
enum V3Slot : int {
  SLOT_MNEMONIC = 1,
  SLOT_UNIT = 2,
  SLOT_VALUE = 3,
  SLOT_DESCRIPTION = 4,
  SLOT_BAR = 5,
  SLOT_BRACE = 6,
  SLOT_FORMAT = 7,
  SLOT_ASSOCIATION = 8,
  SLOT_DATA = 9,
  SLOT_LINE_TYPE = 10,
};

// The messages the parser puts in its slots (checks print them as they are).
inline constexpr const char* V3_MSG_MISSING_MNEMONIC = "Missing Mnemonic";
inline constexpr const char* V3_MSG_UNKNOWN_LINE = "Unknown line type";
inline constexpr const char* V3_MSG_UNRECOGNIZABLE = "Unrecognizable line";
// Reserved for the period/colon order decision; the tests before it already catch a missing
// colon or period, so the parser never gives these.
inline constexpr const char* V3_MSG_COLON_MISSING = "Expected PDL. Colon missing?";
inline constexpr const char* V3_MSG_PERIOD_MISSING = "Expected PDL. Period missing?";
inline constexpr const char* V3_MSG_NO_DELIMITER =
    "Expected COL_DATA line, but no Delimiter found. ";
inline constexpr const char* V3_MSG_UNDEFINED_SECTION = "Line in un-defined tilde (~) section. ";
inline constexpr const char* V3_MSG_BAR_BEFORE_FORMAT =
    "| (bar) must occur AFTER format {} characters";
inline constexpr const char* V3_MSG_BAR_BEFORE_COLON = "| (bar) must occur AFTER last colon";
inline constexpr const char* V3_MSG_MANY_BRACES = "More than one of either { } format delimiter";
inline constexpr const char* V3_MSG_EMPTY_FORMAT = "Format delimiters empty";
inline constexpr const char* V3_MSG_ILLEGAL_FORMAT = "Illegal Format";
inline constexpr const char* V3_MSG_MISSING_BRACE = "Missing either { or }";
inline constexpr const char* V3_MSG_BRACE_ORDER = "Wrong order of { and }";
inline constexpr const char* V3_MSG_BRACE_AFTER_BAR = "{ or } found after | delimiter";

// How the parser reads the lines of a section; it depends on the section's name alone.
enum class V3SectionKind {
  None,       // before the first title
  Pdl,        // header, parameter and definition lines
  Data,       // column data
  Undefined,  // a section no rule knows
};
V3SectionKind v3SectionKind(std::string_view currentSection, const SectionIndex& sections);

// Types `line` of the section `currentSection` ("" before the first title; a title line seen
// then sets it), in a file of `dialect` whose sections `sections` lists. Every slot is emptied
// first; empty slots after the call mean no fault of that kind.
V3LineType parseV3Line(std::string_view line, std::string& currentSection, const Dialect& dialect,
                       const SectionIndex& sections, V3LineDiagnostics& diagnostics);
// The same, for a caller reading a whole file, which decides the kind of `currentSection` once at
// its title rather than once a line. A title line read before the first section sets
// `currentSection`, whose kind the caller then decides anew.
V3LineType parseV3Line(std::string_view line, std::string& currentSection, V3SectionKind kind,
                       const Dialect& dialect, const SectionIndex& sections,
                       V3LineDiagnostics& diagnostics);

// Character tests of 3.0 fields (in other versions value and description always pass and the
// unit test only forbids tab and ":").
bool isLegalUnitText(std::string_view unit, const Dialect& dialect);
bool isLegalValueText(std::string_view value, const Dialect& dialect);
bool isLegalDescriptionText(std::string_view description, const Dialect& dialect);
bool isLegalAssociationText(std::string_view association);
// The association test of a line: passes without a "|"; otherwise the text after the last "|"
// must pass `isLegalAssociationText` and separate its names with the data delimiter only.
bool isLegalAssociationList(std::string_view line, std::string_view delimiter);

}  // namespace zorvik
