// A header line "MNEM.UNIT  VALUE : DESCRIPTION {FORMAT} | ASSOCIATIONS", its kind and its
// six fields, and the table of one section's header lines.
//
// These are pure functions over one line: none reports or throws; a missing delimiter yields an
// empty field or a line kind. Comparisons ignore case; positions are 1-based, 0 = not found.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "las/dialect.h"
#include "las/las_file.h"
#include "las/section_types.h"

namespace zorvik {

// What a header line is: a well-formed "MNEM.UNIT VALUE : DESCRIPTION" line, or why it is not one.
enum class LineKind {
  Ok,
  Comment,
  Title,
  Blank,
  NoMnemonic,
  HasTab,
  SpaceInMnemonic,
  NotDelimited,
};

LineKind classifyHeaderLine(std::string_view line);
// Place of the colon that ends the value (the last colon outside a format), npos when there is
// none; gives back the place of the format's "{" in `brace` (npos when there is no format).
std::size_t delimiterColon(std::string_view line, std::size_t& brace);
std::size_t delimiterColon(std::string_view line);

std::string fieldMnemonic(std::string_view line);
std::string fieldUnit(std::string_view line);
std::string fieldValue(std::string_view line);
std::string fieldDescription(std::string_view line);
std::string fieldFormat(std::string_view line);
// The association text after the last "|"; `parts` receives it split on the data delimiter.
std::string fieldAssociation(std::string_view line, std::string_view delimiter,
                             std::vector<std::string>& parts);
std::string fieldAssociation(std::string_view line);

bool isValidMnemonic(std::string_view text, const Dialect& dialect);
// Number of fields of `text` split on `separator`. A single-space separator trims the text first
// and counts a run of spaces as one. An empty (or, for a space, blank) text has no fields: 0.
int countWords(std::string_view text, std::string_view separator);

// Whole-word search of a valid-mnemonic list ("DEPT GR NPHI "), ignoring case: "GR" is found,
// "G" and "R" are not.
bool mnemonicListHas(std::string_view list, std::string_view mnemonic);

// Field rows of a parameter table.
enum ParamField : int {
  FIELD_MNEMONIC = 0,
  FIELD_UNIT = 1,
  FIELD_VALUE = 2,
  FIELD_DESCRIPTION = 3,
  FIELD_FORMAT = 4,
  FIELD_ASSOCIATION = 5,
};

// One section's header lines. Entry 0 is not a line: its mnemonic field holds the section's
// valid mnemonics, each followed by one blank ("DEPT GR NPHI "). Entries 1..n are the lines.
struct ParamTable {
  std::vector<std::array<std::string, 6>> entries = std::vector<std::array<std::string, 6>>(1);

  int lastEntry() const { return static_cast<int>(entries.size()) - 1; }
  const std::string& at(int field, int entry) const { return entries.at(entry).at(field); }
  const std::string& validMnemonics() const { return entries[0][FIELD_MNEMONIC]; }
  void reset() { entries.assign(1, {}); }
};

// Builds the table of section `sectionName` of the file; false (table left empty) when the section
// has no text.
bool parseSectionTable(const LasFile& file, const Dialect& dialect, SectionIndex& index,
                       ParamTable& table, std::string_view sectionName);

// The value of the first entry whose mnemonic equals `mnemonic` (ignoring case); a single space
// when no entry has it.
std::string mnemonicValue(const ParamTable& table, std::string_view mnemonic);

}  // namespace zorvik
