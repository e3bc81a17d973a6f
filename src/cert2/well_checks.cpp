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
    if (ifind(spacedList, word) == 0) absent += std::string(name) + ", ";
  }
  return absent;
}

}  // namespace

CheckStatus checkWellMnemonics(const ParamTable& wellTable, CheckTable& table, Slots& slots) {
  slots.fill("");
  // A leading blank lets the first mnemonic be found like the others.
  const std::string spacedList = " " + wellTable.validMnemonics();

  slots[1] = absentFrom(
      spacedList, {"STRT", "STOP", "STEP", "NULL", "COMP", "WELL", "FLD", "LOC", "DATE", "SRVC"});
  if (!slots[1].empty()) slots[1] = "Missing required mnemonics are : " + slots[1];

  const std::string canada = absentFrom(spacedList, {"PROV", "UWI"});
  const std::string usa = absentFrom(spacedList, {"STAT", "CNTY", "CTRY", "API"});
  std::string& countryTitle = table.at(2, COL_TITLE, kWellGroup);
  if (canada.empty() && !usa.empty()) countryTitle += " (CDN Requirements)";
  if (usa.empty() && !canada.empty()) countryTitle += " (USA Requirements)";

  if (!canada.empty() && !usa.empty()) {
    slots[2] =
        "Country Specific mnemonics: CDN set missing,  " + canada + " ; USA set missing, " + usa;
  }
  return slots[1].empty() && slots[2].empty() ? CheckStatus::Passed : CheckStatus::Failed;
}

}  // namespace zorvik
