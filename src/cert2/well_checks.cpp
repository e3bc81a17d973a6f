#include "cert2/well_checks.h"

#include <initializer_list>
#include <string_view>

#include "base/text.h"

namespace zorvik {

namespace {

constexpr int kWellGroup = 5;

// Each absent mnemonic followed by ", ". The list of mnemonics is blank separated, so a name is
// only found whole ("WELL" never matches inside "WELLX").
std::string absentFrom(const std::string& spacedList,
                       std::initializer_list<std::string_view> names) {
  std::string absent;
  for (std::string_view name : names) {
    std::string word = " " + std::string(name) + " ";
    if (ifind(spacedList, word) == std::string::npos) absent += std::string(name) + ", ";
  }
  return absent;
}

}  // namespace

CheckStatus checkWellMnemonics(const ParamTable& wellTable, CheckTable& table, Slots& slots) {
  slots.fill(RowResult{});
  // A leading blank lets the first mnemonic be found like the others.
  const std::string spacedList = " " + wellTable.validMnemonics();

  const std::string required = absentFrom(
      spacedList, {"STRT", "STOP", "STEP", "NULL", "COMP", "WELL", "FLD", "LOC", "DATE", "SRVC"});
  if (!required.empty())
    slots[1] = RowResult::saying("Missing required mnemonics are : " + required);

  const std::string canada = absentFrom(spacedList, {"PROV", "UWI"});
  const std::string usa = absentFrom(spacedList, {"STAT", "CNTY", "CTRY", "API"});
  std::string& countryTitle = table.at(2, COL_TITLE, kWellGroup);
  if (canada.empty() && !usa.empty()) countryTitle += " (CDN Requirements)";
  if (usa.empty() && !canada.empty()) countryTitle += " (USA Requirements)";

  if (!canada.empty() && !usa.empty()) {
    slots[2] = RowResult::saying("Country Specific mnemonics: CDN set missing,  " + canada +
                                 " ; USA set missing, " + usa);
  }
  return slots[1].passed() && slots[2].passed() ? CheckStatus::Passed : CheckStatus::Failed;
}

}  // namespace zorvik
