#include "checks/file_value.h"

#include "base/text.h"
#include "checks/run_context.h"
#include "las/header_line.h"
#include "las/line_reader.h"
#include "las/lines.h"
#include "las/sections.h"

namespace zorvik {

namespace {

// The mnemonic of a header line as a view (the trimmed text before the first period).
std::string_view mnemonicView(std::string_view line) {
  std::size_t d = line.find('.');
  return d == std::string_view::npos ? std::string_view() : trimView(line.substr(0, d));
}

// A title line that opens the data: "~A..." in every version, or a 3.0 "..._Data" section.
bool opensData(std::string_view trimmedLine) {
  if (istartsWith(trimmedLine, "~A")) return true;
  std::string association;
  return icontains(parseTitleLine(trimmedLine, association), "_Data");
}

bool isRangeMnemonic(std::string_view m) {
  return iequals(m, "STRT") || iequals(m, "STOP") || iequals(m, "STEP") || iequals(m, "NULL");
}

}  // namespace

std::string lookupFileValue(RunContext& run, std::string_view mnemonic,
                            std::string_view sectionName, std::string* unit, bool* notFound) {
  if (unit) unit->clear();
  if (notFound) *notFound = false;
  float version = run.dialect.version;
  if (version <= 0) version = 2.0f;
  if (trimView(mnemonic).empty()) return {};

  LineReader file;
  if (!file.open(run.source())) return {};
  if (!sectionName.empty()) {
    std::string found;
    if (std::int64_t pos = findSection(run.source(), run.dialect, run.sections, sectionName, found);
        pos > 0)
      file.seek(pos);
  }

  std::string_view line;
  while (file.readLine(line)) {
    std::string_view t = trimLeftView(line);
    if (isTitleLine(t) && opensData(trimView(t))) {
      if (notFound) *notFound = true;
      return " ";
    }
    // The search deliberately runs on past the end of the named section, up to the data.
    if (!iequals(mnemonicView(t), trimView(mnemonic))) continue;
    std::string value;
    if (version == 1.2f && sectionName == "W" && !isRangeMnemonic(mnemonic))
      value = trim(fieldDescription(t));  // 1.2 files keep well information in the description
    else
      value = trim(fieldValue(t));
    if (unit) *unit = trim(fieldUnit(t));
    return value;
  }
  return {};
}

}  // namespace zorvik
