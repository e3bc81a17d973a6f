#include "las/v3_line.h"

#include <optional>

#include "base/text.h"
#include "las/header_line.h"
#include "las/sections.h"
#include "las/value_format.h"

namespace zorvik {

namespace {

bool holdsAny(std::string_view s, std::string_view chars) {
  return s.find_first_of(chars) != std::string_view::npos;
}

bool isPdlSection(std::string_view baseName) {
  return iequals(baseName, "Version") || iequals(baseName, "Well") || iequals(baseName, "Curve") ||
         iequals(baseName, "Parameter") || icontains(baseName, "_Definition") ||
         icontains(baseName, "_Parameter");
}

V3LineType parseDataLine(std::string_view t, std::string_view delimiter, V3LineDiagnostics& d) {
  d[SLOT_DATA].clear();
  if (!contains(t, delimiter)) {
    d[SLOT_LINE_TYPE] = V3_MSG_NO_DELIMITER;
    return V3LineType::Bad;
  }
  return V3LineType::ColumnData;
}

// The brace and format tests of a parameter data line; later findings in the brace slot replace
// earlier ones, so the slot keeps the last fault found.
void checkFormatPart(std::string_view line, std::optional<SectionRole> role,
                     std::string_view delimiter, V3LineDiagnostics& d) {
  constexpr std::size_t npos = std::string_view::npos;
  // Where the text after the delimiting colon starts (the whole line when there is no colon).
  const std::size_t colon = delimiterColon(line);
  const std::size_t afterColon = colon == npos ? 0 : colon + 1;
  const std::size_t firstBar = line.find('|');
  const std::size_t lastBar = line.rfind('|');
  if (firstBar != npos) {
    const std::size_t open = line.find('{');
    const std::size_t close = line.find('}');
    if (firstBar >= afterColon && close != npos &&
        (firstBar < close || (open != npos && firstBar < open)))
      d[SLOT_BAR] = V3_MSG_BAR_BEFORE_FORMAT;
    if (firstBar < afterColon) d[SLOT_BAR] = V3_MSG_BAR_BEFORE_COLON;
  }

  // The format part: after the delimiting colon, up to a bar that follows it.
  std::string_view p = line.substr(afterColon);
  if (lastBar != npos && lastBar >= afterColon) p = line.substr(afterColon, lastBar - afterColon);
  const std::size_t openFirst = p.find('{'), openLast = p.rfind('{');
  const std::size_t closeFirst = p.find('}'), closeLast = p.rfind('}');
  const bool hasOpen = openFirst != npos, hasClose = closeFirst != npos;

  if (openFirst != openLast || closeFirst != closeLast) d[SLOT_BRACE] = V3_MSG_MANY_BRACES;

  std::string value = fieldValue(line);
  std::string format = fieldFormat(line);
  if (hasOpen && hasClose && openLast < closeLast) {
    if (format.empty()) {
      d[SLOT_FORMAT] = V3_MSG_EMPTY_FORMAT;
    } else if (!isLegalFormat(format)) {
      d[SLOT_FORMAT] = V3_MSG_ILLEGAL_FORMAT;
    }
    // Header and parameter values are written in their own format; definitions describe the
    // data's format instead.
    if ((role == SectionRole::Header || role == SectionRole::Parameter) &&
        !valueFitsFormat(value, format, delimiter))
      d[SLOT_BRACE] = "Bad Format: " + value + " doesn't look like this format: {" + format + "}";
  } else if (!valueFitsFormat(value, "F", delimiter) && !valueFitsFormat(value, "S", delimiter)) {
    d[SLOT_BRACE] =
        "Value is not Floating point format, assumed String, but value not string. Value was: " +
        value + ". Format was: {" + format + "}";
  }
  if (hasOpen != hasClose) d[SLOT_BRACE] = V3_MSG_MISSING_BRACE;
  if (hasOpen && hasClose && openLast > closeLast) d[SLOT_BRACE] = V3_MSG_BRACE_ORDER;
  if (firstBar != npos) {
    const std::size_t open = line.rfind('{');
    const std::size_t close = line.rfind('}');
    if ((open != npos && open > firstBar) || (close != npos && close > firstBar))
      d[SLOT_BRACE] = V3_MSG_BRACE_AFTER_BAR;
  }
}

}  // namespace

bool isLegalUnitText(std::string_view unit, const Dialect& dialect) {
  std::string_view t = trimView(unit);
  return dialect.isV3() ? !holdsAny(t, "\t:{}|;") : !holdsAny(t, "\t:");
}

bool isLegalValueText(std::string_view value, const Dialect& dialect) {
  return !dialect.isV3() || !holdsAny(trimView(value), "{}|;");
}

bool isLegalDescriptionText(std::string_view description, const Dialect& dialect) {
  return !dialect.isV3() || !holdsAny(trimView(description), "\t{}|;");
}

bool isLegalAssociationText(std::string_view association) {
  return !holdsAny(trimView(association), "{};");
}

bool isLegalAssociationList(std::string_view line, std::string_view delimiter) {
  std::size_t bar = line.rfind('|');
  if (bar == std::string_view::npos) return true;
  std::string_view a = trimView(line.substr(bar + 1));
  if (!isLegalAssociationText(a)) return false;
  // Names are separated by the data delimiter alone; any other separator mixes styles.
  for (char separator : {',', ' ', '\t'})
    if (delimiter != std::string(1, separator) && contains(a, separator)) return false;
  return true;
}

V3SectionKind v3SectionKind(std::string_view currentSection, const SectionIndex& sections) {
  if (currentSection.empty()) return V3SectionKind::None;
  int index = 0;
  if (isPdlSection(splitArrayIndexView(currentSection, index))) return V3SectionKind::Pdl;
  const std::string& dataName = sections.dataName;
  if ((!dataName.empty() && iequals(currentSection, dataName)) ||
      icontains(currentSection, "_Data"))
    return V3SectionKind::Data;
  return V3SectionKind::Undefined;
}

V3LineType parseV3Line(std::string_view line, std::string& currentSection, const Dialect& dialect,
                       const SectionIndex& sections, V3LineDiagnostics& d) {
  return parseV3Line(line, currentSection, v3SectionKind(currentSection, sections), dialect,
                     sections, d);
}

V3LineType parseV3Line(std::string_view line, std::string& currentSection, V3SectionKind kind,
                       const Dialect& dialect, const SectionIndex& sections, V3LineDiagnostics& d) {
  for (std::string& slot : d) slot.clear();
  std::string_view t = trimView(line);
  if (t.empty()) return V3LineType::Blank;
  if (t[0] == '#') return V3LineType::Comment;

  switch (kind) {
    case V3SectionKind::None:
      if (t[0] == '~') {
        std::string association;
        currentSection = parseTitleLine(t, association);
        return V3LineType::Title;
      }
      d[SLOT_LINE_TYPE] = std::string(line);
      return V3LineType::Bad;
    case V3SectionKind::Data:
      // Data lines come by the million: their path allocates nothing.
      return parseDataLine(t, dialect.delimiter, d);
    case V3SectionKind::Undefined:
      d[SLOT_LINE_TYPE] = V3_MSG_UNDEFINED_SECTION;
      return V3LineType::Bad;
    case V3SectionKind::Pdl:
      break;
  }

  std::size_t period = t.find('.');
  std::size_t colon = t.find(':');
  if (period == std::string_view::npos || colon == std::string_view::npos) {
    d[SLOT_LINE_TYPE] = V3_MSG_UNKNOWN_LINE;
    return V3LineType::Bad;
  }
  if (period + 1 >= colon) {
    d[SLOT_LINE_TYPE] = V3_MSG_UNRECOGNIZABLE;
    return V3LineType::Bad;
  }

  std::string mnemonic = fieldMnemonic(line);
  // An empty mnemonic would leave the slot empty, which reads as no fault: name it instead, in
  // the words the 1.2/2.0 check uses for the same line.
  if (!isValidMnemonic(mnemonic, dialect))
    d[SLOT_MNEMONIC] = trimView(mnemonic).empty() ? std::string(V3_MSG_MISSING_MNEMONIC) : mnemonic;
  std::string unit = fieldUnit(line);
  if (!isLegalUnitText(unit, dialect)) d[SLOT_UNIT] = unit;
  std::string value = fieldValue(line);
  if (!isLegalValueText(value, dialect)) d[SLOT_VALUE] = value;
  std::string description = fieldDescription(line);
  if (!isLegalDescriptionText(description, dialect)) d[SLOT_DESCRIPTION] = description;

  checkFormatPart(line, sectionRoleOf(sections, currentSection), dialect.delimiter, d);
  if (!isLegalAssociationList(line, dialect.delimiter)) d[SLOT_ASSOCIATION] = std::string(line);
  return V3LineType::Pdl;
}

}  // namespace zorvik
