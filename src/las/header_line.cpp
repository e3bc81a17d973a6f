#include "las/header_line.h"

#include <algorithm>

#include "base/text.h"
#include "las/sections.h"
#include "las/value_format.h"

namespace zorvik {

namespace {

constexpr std::size_t npos = std::string_view::npos;

// The text strictly between the places `from` and `to`; empty when either is npos.
std::string_view between(std::string_view s, std::size_t from, std::size_t to) {
  if (from == npos || to == npos || to <= from + 1) return {};
  return s.substr(from + 1, to - from - 1);
}

}  // namespace

LineKind classifyHeaderLine(std::string_view line) {
  std::string_view t = trimView(line);
  if (t.empty()) return LineKind::Blank;
  if (t[0] == '#') return LineKind::Comment;
  if (t[0] == '~') return LineKind::Title;
  std::size_t d = t.find('.');
  std::size_t c = t.rfind(':');
  if (d != npos && c != npos && d + 1 < c) {
    // A tab outranks the mnemonic faults: it is what the user has to fix first.
    if (contains(t, '\t')) return LineKind::HasTab;
    if (d == 0) return LineKind::NoMnemonic;
    if (contains(fieldMnemonic(t), ' ')) return LineKind::SpaceInMnemonic;
    return LineKind::Ok;
  }
  return LineKind::NotDelimited;
}

std::size_t delimiterColon(std::string_view line, std::size_t& brace) {
  std::string format = fieldFormat(line);
  if (format.empty()) {
    brace = npos;
    return line.rfind(':');
  }
  brace = line.rfind('{');  // there is one: the format stands in braces
  // A time format ("hh:mm") carries colons of its own; the delimiter is the last one before it.
  if (contains(format, ':')) {
    const std::size_t written = ifindLast(line, format);
    if (written != npos && written > brace) return line.substr(0, brace).rfind(':');
  }
  return line.rfind(':');
}

std::size_t delimiterColon(std::string_view line) {
  std::size_t brace = npos;
  return delimiterColon(line, brace);
}

std::string fieldMnemonic(std::string_view line) {
  std::size_t d = line.find('.');
  return d == npos ? std::string() : trim(line.substr(0, d));
}

std::string fieldUnit(std::string_view line) {
  std::size_t d = line.find('.');
  std::size_t c = line.rfind(':');
  if (d == npos || c == npos || d >= c) return {};
  std::string_view r = between(line, d, c);
  // A blank right after the period means the line has no unit.
  if (trimView(r).empty() || r[0] == ' ') return {};
  r = trimView(r);
  return std::string(r.substr(0, r.find(' ')));
}

std::string fieldValue(std::string_view line) {
  if (classifyHeaderLine(line) != LineKind::Ok) return {};
  std::size_t c = delimiterColon(line);
  std::size_t d = line.find('.');
  std::string_view r = between(line, d, c);
  if (r.empty()) return {};
  if (r[0] == ' ') return trim(r);
  // The unit is glued to the period: the value is whatever follows the unit's first blank.
  if (countWords(r, " ") < 2) return {};
  return trim(r.substr(r.find(' ') + 1));
}

std::string fieldDescription(std::string_view line) {
  std::size_t brace = npos;
  std::size_t c = delimiterColon(line, brace);
  // A format brace after the colon (or without one) ends the description.
  if (brace != npos && (c == npos || brace > c)) {
    const std::size_t from = c == npos ? 0 : c + 1;
    return trim(line.substr(from, brace - from));
  }
  if (!contains(line, ':')) return {};
  std::string_view r = trimView(line.substr(line.rfind(':') + 1));
  if (std::size_t p = r.find('{'); p != std::string_view::npos) r = trimView(r.substr(0, p));
  if (std::size_t p = r.find('|'); p != std::string_view::npos) r = trimView(r.substr(0, p));
  return std::string(r);
}

std::string fieldFormat(std::string_view line) {
  std::size_t o = line.find('{');
  std::size_t e = line.find('}');
  if (o == npos || e == npos || o > e || e - o < 2) return {};
  std::string_view f = trimView(between(line, o, e));
  if (std::size_t p = f.find(';'); p != std::string_view::npos) f = f.substr(0, p);
  // A leading "A" marks an array format; the element format follows it.
  if (!f.empty() && (f[0] == 'A' || f[0] == 'a')) f.remove_prefix(1);
  return std::string(f);
}

std::string fieldAssociation(std::string_view line, std::string_view delimiter,
                             std::vector<std::string>& parts) {
  parts.assign(1, std::string());
  std::size_t bar = line.rfind('|');
  if (bar == npos) return {};
  std::string a = trim(line.substr(bar + 1));
  parts = delimiter == " " ? splitOnBlanks(a) : split(a, delimiter);
  return a;
}

std::string fieldAssociation(std::string_view line) {
  std::size_t bar = line.rfind('|');
  return bar == npos ? std::string() : trim(line.substr(bar + 1));
}

bool isValidMnemonic(std::string_view text, const Dialect& dialect) {
  std::string_view t = trimView(text);
  if (t.empty()) return false;
  if (!dialect.isV3()) return t.find_first_of(" .:") == std::string_view::npos;
  if (t.find_first_of(", \t.:{}|;") != std::string_view::npos) return false;
  std::size_t open = t.find('[');
  std::size_t close = t.find(']');
  if (open == npos && close == npos) return true;
  if (open == npos || close == npos) return false;
  // An array element: "NAME[3]", the index an unsigned integer closing the mnemonic.
  if (close + 1 != t.size() || open == 0) return false;
  return isIntegerValue(between(t, open, close), "");
}

int countWords(std::string_view text, std::string_view separator) {
  if (separator == " ") {
    std::string_view t = trimView(text);
    if (t.empty()) return 0;
    int words = 1;
    for (std::size_t i = 1; i < t.size(); ++i)
      if (t[i] == ' ' && t[i - 1] != ' ') ++words;
    return words;
  }
  if (text.empty()) return 0;
  if (separator.empty()) return 1;
  int words = 1;
  for (std::size_t p = text.find(separator); p != std::string_view::npos;
       p = text.find(separator, p + separator.size()))
    ++words;
  return words;
}

bool mnemonicListHas(std::string_view list, std::string_view mnemonic) {
  std::string_view m = trimView(mnemonic);
  if (m.empty()) return false;
  // The list is "A B C " : a blank in front makes every entry " NAME ".
  for (std::size_t p = 0; p < list.size();) {
    std::size_t end = list.find(' ', p);
    if (end == std::string_view::npos) end = list.size();
    if (iequals(list.substr(p, end - p), m)) return true;
    p = end + 1;
  }
  return false;
}

bool parseSectionTable(const LasFile& file, const Dialect& dialect, SectionIndex& index,
                       ParamTable& table, std::string_view sectionName) {
  table.reset();
  std::string text = sectionText(file, dialect, index, sectionName);
  if (text.empty()) return false;
  std::erase(text, '\n');
  // Compared with each line's own period position: a line without a colon of its own still
  // counts when the section's last colon lies further right than its period.
  std::size_t lastColon = text.rfind(':');
  const bool keepTabs = dialect.delimiter == "\t";
  std::string validList;
  std::string line;
  std::size_t start = 0;
  while (start <= text.size()) {
    std::size_t end = text.find('\r', start);
    if (end == std::string::npos) end = text.size();
    line.assign(text, start, end - start);
    start = end + 1;
    if (!keepTabs) std::replace(line.begin(), line.end(), '\t', ' ');
    std::size_t d = line.find('.');
    if (d == npos || d == 0 || lastColon == npos || lastColon <= d) continue;
    std::string_view t = trimView(line);
    if (t.empty() || t[0] == '#') continue;
    table.entries.push_back({fieldMnemonic(line), fieldUnit(line), fieldValue(line),
                             fieldDescription(line), fieldFormat(line), fieldAssociation(line)});
    const std::string& mnemonic = table.entries.back()[FIELD_MNEMONIC];
    if (isValidMnemonic(mnemonic, dialect)) validList += mnemonic + " ";
  }
  table.entries[0][FIELD_MNEMONIC] = validList;
  return true;
}

std::string mnemonicValue(const ParamTable& table, std::string_view mnemonic) {
  for (int i = 1; i <= table.lastEntry(); ++i)
    if (iequals(table.entries[i][FIELD_MNEMONIC], mnemonic)) return table.entries[i][FIELD_VALUE];
  return " ";
}

}  // namespace zorvik
