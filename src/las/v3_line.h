// The version 3.0 line parser: types one line from the line and the section it stands in, and
// fills eleven diagnostic slots with whatever is wrong with it. It never reports or throws.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zorvik {

enum V3LineType : int {
  V3_PDL = 1,
  V3_COMMENT = 2,
  V3_TITLE = 3,
  V3_COLUMN_DATA = 4,
  V3_BLANK = 5,
  V3_BAD = 6,
};

// Slots 1..10 (slot 0 is never filled): 1 mnemonic, 2 unit, 3 value, 4 description, 5 bar
// placement, 6 brace/value format, 7 format syntax, 8 association (whole line), 9 data lines,
// 10 line-type message of a V3_BAD line.
using V3LineDiagnostics = std::array<std::string, 11>;

int parseV3Line(std::string_view line, std::string& currentSection, V3LineDiagnostics& diagnostics);

// Character tests of 3.0 fields (in other versions value and description always pass and the
// unit test only forbids tab and ":").
bool isLegalUnitText(std::string_view unit);
bool isLegalValueText(std::string_view value);
bool isLegalDescriptionText(std::string_view description);
bool isLegalAssociationText(std::string_view association);

}  // namespace zorvik
