#include "cert3/well_checks3.h"

#include <exception>
#include <initializer_list>

#include "base/text.h"
#include "checks/run_context.h"
#include "las/lines.h"
#include "las/sections.h"

namespace zorvik {
namespace {

constexpr std::string_view REQUIRED[] = {"STRT", "STOP", "STEP", "NULL", "COMP",
                                         "WELL", "FLD",  "LOC",  "DATE", "SRVC"};
constexpr std::string_view LOCATION_A[] = {"X", "Y", "GDAT", "HZCS"};
constexpr std::string_view LOCATION_B[] = {"LATI", "LONG", "GDAT"};
constexpr std::string_view CANADA[] = {"PROV", "UWI", "LIC"};
constexpr std::string_view UNITED_STATES[] = {"STAT", "CNTY", "API"};

// Entry of the first line with this mnemonic, 0 when none.
int entryOf(const ParamTable& table, std::string_view mnemonic) {
  for (int e = 1; e <= table.lastEntry(); ++e)
    if (iequals(table.at(FIELD_MNEMONIC, e), mnemonic)) return e;
  return 0;
}

template <std::size_t N>
void appendMissing(const ParamTable& table, const std::string_view (&list)[N], RowResult& slot) {
  for (std::string_view m : list)
    if (entryOf(table, m) == 0) slot.add(closedFinding(std::string(m)));
}

// The missing mnemonics of a location set, each followed by ", ".
template <std::size_t N>
std::string missingLocation(const ParamTable& table, const std::string_view (&list)[N]) {
  std::string out;
  for (std::string_view m : list)
    if (entryOf(table, m) == 0) out.append(m).append(", ");
  return out;
}

// The line of `mnemonic` in section `section` as written, as a finding that shows it; rebuilt
// from the table's fields (and placed nowhere) when the section text cannot give it.
Finding lineAsWritten(RunContext& run, std::string_view section, const ParamTable& table,
                      int entry) {
  const std::string_view mnemonic = table.at(FIELD_MNEMONIC, entry);
  std::string found;
  const std::int64_t start = findSection(run.source(), run.dialect, run.sections, section, found);
  const std::string text = sectionText(run.source(), run.dialect, run.sections, section);
  std::size_t begin = 0;
  while (begin < text.size()) {
    std::size_t end = text.find('\r', begin);
    if (end == std::string::npos) end = text.size();
    std::string line = replaceAll(std::string_view(text).substr(begin, end - begin), "\n", "");
    const std::string_view trimmed = trimView(line);
    if (!trimmed.empty() && trimmed.front() != '#' && iequals(fieldMnemonic(line), mnemonic)) {
      // The line feed of the CR LF before it is not part of the line.
      const std::size_t lineStart = begin + (text[begin] == '\n' ? 1 : 0);
      return closedFinding(std::move(line), start + static_cast<std::int64_t>(lineStart));
    }
    begin = end + 1;
  }
  return closedFinding(std::string(mnemonic) + "." + table.at(FIELD_UNIT, entry) + " " +
                       table.at(FIELD_VALUE, entry) + " : " + table.at(FIELD_DESCRIPTION, entry));
}

void countryChecks(RunContext& run, const ParamTable& well, int ctry, Slots& slots) {
  const std::string value = trim(well.at(FIELD_VALUE, ctry));
  slots[3].clear();
  slots[4].clear();
  slots[5].clear();
  const bool badLength = !value.empty() && value.size() != 2;
  const bool badLetters =
      value.size() >= 2 && (!isAsciiLetter(value[0]) || !isAsciiLetter(value[1]));
  if (badLength || badLetters) {
    const Finding line = lineAsWritten(run, "Well", well, ctry);
    if (badLength) slots[3].add(line);
    if (badLetters) slots[4].add(line);
  }
  if (iequals(value, "ca")) appendMissing(well, CANADA, slots[5]);
  if (iequals(value, "us")) appendMissing(well, UNITED_STATES, slots[5]);
}

void locationChecks(const ParamTable& well, RowResult& slot) {
  slot.clear();
  const std::string missingA = missingLocation(well, LOCATION_A);
  const std::string missingB = missingLocation(well, LOCATION_B);
  if (missingA.empty() || missingB.empty()) return;
  // One finding: set A's list, then set B's, in the order the title names them. GDAT belongs to
  // both sets, so when it is missing each list gets a line break in its place and it is named once,
  // at the end.
  if (contains(missingB, "GDAT")) {
    slot = RowResult::saying(replaceAll(missingA, "GDAT", CRLF) +
                             replaceAll(missingB, "GDAT", CRLF) + "GDAT");
  } else {
    slot = RowResult::saying(missingA + missingB);
  }
}

}  // namespace

bool isAsciiLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

CheckStatus checkWellSection3(RunContext& run, const ParamTable& wellTable, Slots& slots) {
  try {
    slots[1].clear();
    appendMissing(wellTable, REQUIRED, slots[1]);

    const int ctry = entryOf(wellTable, "CTRY");
    if (ctry == 0) {
      slots[2].markNotReached();  // undecided: the country items cannot be judged without the line
    } else {
      slots[2].clear();
      countryChecks(run, wellTable, ctry, slots);
    }

    locationChecks(wellTable, slots[6]);

    for (int k = 1; k <= 6; ++k)
      if (!slots[k].passed()) return CheckStatus::Failed;
    return CheckStatus::Passed;
  } catch (const std::exception&) {
    return CheckStatus::Fault;
  }
}

}  // namespace zorvik
