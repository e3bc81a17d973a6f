#include "las/sections.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <optional>
#include <unordered_map>

#include "base/text.h"
#include "las/line_reader.h"
#include "las/lines.h"
#include "las/tilde_lines.h"

namespace zorvik {

namespace {

SectionRole roleOfName(std::string_view name, bool v3) {
  // Tested in this order, so "Well_Data" is data and not a header.
  if (iequals(name, "Version") || iequals(name, "Well") || iequals(name, "Other"))
    return SectionRole::Header;
  // One-letter names are an older habit that 3.0 no longer allows.
  if (!v3 && (iequals(name, "V") || iequals(name, "W") || iequals(name, "O")))
    return SectionRole::Header;
  if (iequals(name, "ASCII") || icontains(name, "_Data") || (!v3 && iequals(name, "A")))
    return SectionRole::Data;
  if (iequals(name, "Curve") || icontains(name, "_Definition") || (!v3 && iequals(name, "C")))
    return SectionRole::Definition;
  if (iequals(name, "Parameter") || icontains(name, "_Parameter") || (!v3 && iequals(name, "P")))
    return SectionRole::Parameter;
  return SectionRole::Other;
}

// The places of the sections named `name` (compared ignoring case); both -1 when none.
NamePlaces placesOf(const SectionIndex& index, std::string_view name) {
  if (index.namesCover == index.entries.size()) {
    const auto it = index.names.find(toUpper(name));
    return it == index.names.end() ? NamePlaces{} : it->second;
  }
  NamePlaces places;
  for (std::size_t i = 0; i < index.entries.size(); ++i) {
    if (!iequals(index.entries[i].name, name)) continue;
    if (places.first < 0) places.first = static_cast<int>(i);
    places.last = static_cast<int>(i);
  }
  return places;
}

std::string_view cutAtSpace(std::string_view s) {
  return trimView(s.substr(0, s.find(' ')));
}

// `groupOf` maps the upper-cased prefixes to their places in `groups`.
void addToGroups(std::vector<SectionGroup>& groups,
                 std::unordered_map<std::string, std::size_t>& groupOf, const SectionEntry& entry,
                 int sectionNumber) {
  std::size_t underscore = entry.name.find('_');
  if (underscore == std::string::npos) return;
  std::string prefix = trim(std::string_view(entry.name).substr(0, underscore));
  const auto [place, added] = groupOf.emplace(toUpper(prefix), groups.size());
  if (added) groups.push_back(SectionGroup{prefix, 0, 0, 0});
  SectionGroup* group = &groups[place->second];
  // A later section of the same role and prefix replaces an earlier one.
  if (entry.role == SectionRole::Data) group->data = sectionNumber;
  if (entry.role == SectionRole::Definition) group->definition = sectionNumber;
  if (entry.role == SectionRole::Parameter) group->parameter = sectionNumber;
}

}  // namespace

std::string parseTitleLine(std::string_view line, std::string& association) {
  association.clear();
  std::string_view t = trimView(line);
  if (t.size() < 2 || t[0] != '~') return {};
  t = trimView(t.substr(1));
  if (std::size_t bar = t.find('|'); bar != std::string_view::npos) {
    association = std::string(cutAtSpace(trimView(t.substr(bar + 1))));
    // One blank tells "a bar with nothing after it" from "no bar".
    if (association.empty()) association = " ";
    t = trimView(t.substr(0, bar));
  }
  return std::string(cutAtSpace(t));
}

std::string_view splitArrayIndexView(std::string_view name, int& index) {
  index = -1;
  std::string_view t = trimView(name);
  std::size_t open = t.find('[');
  std::size_t close = t.find(']');
  const auto npos = std::string_view::npos;
  if (open == npos && close == npos) return cutAtSpace(t);
  if (open == npos || close == npos || close < open) return {};
  if (t.back() != ']' || t.rfind('[') != open || t.rfind(']') != close) return {};
  std::string_view digits = t.substr(open + 1, close - open - 1);
  if (!std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; }))
    return {};
  long long value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (digits.size() > 10 || value > INT_MAX) value = INT_MAX;  // absurd indexes saturate
  index = static_cast<int>(value);
  return cutAtSpace(trimView(t.substr(0, open)));
}

std::string splitArrayIndex(std::string_view name, int& index) {
  return std::string(splitArrayIndexView(name, index));
}

bool buildSectionIndex(const LasFile& file, const Dialect& dialect, SectionIndex& index) {
  index.entries.clear();
  index.groups.clear();
  index.names.clear();
  index.namesCover = 0;
  index.readAsV3.reset();
  const bool v3 = dialect.isV3();

  // Every title holds a tilde: only the lines that hold one are read as lines.
  std::string association;
  const bool read = forEachTildeLine(
      file, &index.tildeLines, [&](std::string_view line, std::int64_t start, std::int64_t next) {
        if (!isTitleLine(line)) return;
        std::string name = parseTitleLine(line, association);
        if (name.empty()) return;
        SectionEntry entry;
        entry.start = next;
        entry.titleStart = start;
        splitArrayIndex(name, entry.arrayIndex);
        if (!v3 && iequals(name, "ASCII") && trimView(association).empty()) association = "Curve";
        entry.name = std::move(name);
        entry.association = association;
        index.entries.push_back(std::move(entry));
      });
  if (!read) return false;

  if (!v3) {
    // A 1.2/2.0 data section always belongs to the file's (last) curve section.
    std::string curve;
    for (const SectionEntry& e : index.entries)
      if (istartsWith(e.name, "C")) curve = e.name;
    if (!curve.empty()) {
      for (SectionEntry& e : index.entries) {
        if (iequals(e.name, "ASCII") || iequals(e.name, "A")) {
          e.association = curve;
          break;
        }
      }
    }
  }

  std::unordered_map<std::string, std::size_t> groupOf;
  for (std::size_t i = 0; i < index.entries.size(); ++i) {
    SectionEntry& e = index.entries[i];
    e.role = roleOfName(e.name, v3);
    addToGroups(index.groups, groupOf, e, static_cast<int>(i) + 1);
    NamePlaces& places = index.names[toUpper(e.name)];
    if (places.first < 0) places.first = static_cast<int>(i);
    places.last = static_cast<int>(i);
  }
  index.namesCover = index.entries.size();
  index.readAsV3 = v3;
  return true;
}

std::int64_t findSection(const LasFile& file, const Dialect& dialect, SectionIndex& index,
                         std::string_view name, std::string& foundName) {
  foundName.clear();
  if (index.entries.empty() && !buildSectionIndex(file, dialect, index)) return 0;
  const int i = placesOf(index, name).first;
  if (i < 0) return 0;
  foundName = index.entries[i].name;
  return index.entries[i].start;
}

std::string sectionText(const LasFile& file, const Dialect& dialect, SectionIndex& sections,
                        std::string_view name) {
  std::string found;
  std::int64_t start = findSection(file, dialect, sections, name, found);
  const auto& index = sections.entries;
  const int i = placesOf(sections, name).first;
  std::int64_t length = file.isOpen() ? file.length() : -1;
  std::int64_t end = length + 1;  // one past the last byte: the last section reads to the end
  std::string nextTitle;
  if (i >= 0 && static_cast<std::size_t>(i) + 1 < index.size()) {
    end = index[i + 1].start;
    nextTitle = "~" + index[i + 1].name;
  }
  if (start == 0 || end <= start || end > length + 1) return {};

  LineReader reader(file);
  std::string text;
  std::int64_t count = std::min<std::int64_t>(end - start, SECTION_TEXT_LIMIT);
  reader.readRange(start, count, text);
  if (!nextTitle.empty()) {
    // The range ends after the next title line: drop it and the line feed before it.
    std::size_t p = ifindLast(text, nextTitle);
    if (p != std::string::npos) text.resize(p >= 1 ? p - 1 : 0);
  }
  return text;
}

bool locateStandardSections(const LasFile& file, const Dialect& dialect, SectionIndex& index) {
  index.dataName.clear();
  index.curveName.clear();
  index.paramName.clear();
  index.standardFound = false;
  if (index.readAsV3 != dialect.isV3()) buildSectionIndex(file, dialect, index);
  const bool v3 = dialect.isV3();

  std::string curve, data, param;         // the standard names
  std::string logDef, logData, logParam;  // 3.0 fall-backs by base name
  int unused = 0;
  for (const SectionEntry& e : index.entries) {
    if (iequals(e.name, "Curve") || (!v3 && iequals(e.name, "C"))) curve = e.name;
    if (iequals(e.name, "ASCII") || (!v3 && iequals(e.name, "A"))) data = e.name;
    if (iequals(e.name, "Parameter") || (!v3 && iequals(e.name, "P"))) param = e.name;
    if (v3) {
      std::string base = splitArrayIndex(e.name, unused);
      if (iequals(base, "Log_Definition")) logDef = e.name;
      if (iequals(base, "Log_Data")) logData = e.name;
      if (iequals(base, "Log_Parameter")) logParam = e.name;
    }
  }
  if (v3) {
    if (curve.empty()) curve = logDef;
    if (data.empty()) data = logData;
    if (param.empty()) param = logParam;
  }
  index.curveName = curve;
  index.dataName = data;
  index.paramName = param;
  index.standardFound = !data.empty() || !curve.empty() || (v3 && !param.empty());
  return true;
}

std::optional<SectionRole> sectionRoleOf(const SectionIndex& sections, std::string_view name) {
  const int last = placesOf(sections, name).last;
  if (last < 0) return std::nullopt;
  return sections.entries[static_cast<std::size_t>(last)].role;
}

}  // namespace zorvik
