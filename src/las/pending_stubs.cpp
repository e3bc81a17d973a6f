// Placeholders until the text model lands; every answer is the "nothing found" one.
#include "las/sections.h"
#include "las/v3_line.h"
#include "las/value_format.h"

namespace zorvik {

std::string parseTitleLine(std::string_view, std::string& association) { association.clear(); return {}; }
std::string splitArrayIndex(std::string_view, int& index) { index = -1; return {}; }
bool buildSectionIndex(const std::string&) { return false; }
std::int64_t findSection(const std::string&, std::string_view, std::string& foundName) { foundName.clear(); return 0; }
std::int64_t seekSection(LineReader&, std::string_view) { return 0; }
std::string sectionText(const std::string&, std::string_view) { return {}; }
bool locateStandardSections(const std::string&) { return true; }
int sectionRoleOf(std::string_view) { return -1; }

int parseV3Line(std::string_view, std::string&, V3LineDiagnostics& d) { d = {}; return V3_BAD; }
bool isLegalUnitText(std::string_view) { return true; }
bool isLegalValueText(std::string_view) { return true; }
bool isLegalDescriptionText(std::string_view) { return true; }
bool isLegalAssociationText(std::string_view) { return true; }

int valueMatchesFormat(std::string_view, std::string_view) { return -1; }
bool isFloatValue(std::string_view, std::string_view) { return false; }
bool isStringValue(std::string_view, std::string_view) { return false; }
bool isExponentialValue(std::string_view, std::string_view) { return false; }
int isLegalFormat(std::string_view) { return -1; }
bool isLegalFormatElement(std::string_view) { return true; }

}  // namespace zorvik
