#include "cert3/data_items.h"

#include <cstdint>

namespace zorvik {

namespace {

// Blanks (spaces only) trimmed from both ends; kept here so the hot loop stays inline.
std::string_view trimBlanks(const char* begin, const char* end) {
  while (begin != end && *begin == ' ') ++begin;
  while (end != begin && end[-1] == ' ') --end;
  return std::string_view(begin, static_cast<std::size_t>(end - begin));
}

// An item as written between two separators: blanks trimmed, enclosing quotes removed.
std::string_view cleanItem(std::string_view raw) {
  std::string_view item = trimBlanks(raw.data(), raw.data() + raw.size());
  if (item.size() >= 2 && item.front() == '"' && item.back() == '"') {
    item = item.substr(1, item.size() - 2);
  } else if (!item.empty() && item.front() == '"') {
    item.remove_prefix(1);  // an unmatched opening quote: the item runs to the line's end
  }
  return item;
}

// Cuts at every delimiter; false (items incomplete) when the line holds a double quote. The
// quote is looked for once per line, so the loop over the bytes tests one character.
bool splitPlain(std::string_view line, char delimiter, std::vector<std::string_view>& items) {
  if (line.find('"') != std::string_view::npos) return false;
  const char* p = line.data();
  const char* end = p + line.size();
  const char* start = p;
  for (; p != end; ++p) {
    if (*p == delimiter) {
      items.push_back(trimBlanks(start, p));
      start = p + 1;
    }
  }
  items.push_back(trimBlanks(start, end));
  return true;
}

void splitQuoted(std::string_view line, char delimiter, std::vector<std::string_view>& items) {
  const bool spaces = delimiter == ' ';
  if (spaces) line = trimBlanks(line.data(), line.data() + line.size());
  if (spaces && line.empty()) return;
  std::size_t start = 0;
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    char c = line[i];
    if (c == '"') {
      quoted = !quoted;
    } else if (c == delimiter && !quoted) {
      items.push_back(cleanItem(line.substr(start, i - start)));
      if (spaces) {
        while (i + 1 < line.size() && line[i + 1] == ' ') ++i;
      }
      start = i + 1;
    }
  }
  items.push_back(cleanItem(line.substr(start)));
}

}  // namespace

bool splitCountingItems(std::string_view line, char delimiter, std::vector<std::string_view>& items,
                        std::vector<ItemShape>& shapes) {
  items.clear();
  shapes.clear();
  if (line.find('"') != std::string_view::npos) return false;
  const char* p = line.data();
  const char* const end = p + line.size();
  for (;;) {
    while (p != end && *p == ' ') ++p;  // leading blanks are no part of the item
    const char* const start = p;
    std::uint64_t counts = 0;
    for (; p != end && *p != delimiter; ++p)
      counts += item_scan::kByteKinds[static_cast<unsigned char>(*p)];
    const char* last = p;
    while (last != start && last[-1] == ' ') {  // nor are trailing ones
      --last;
      counts -= ItemShape::kOther;
    }
    if (static_cast<std::size_t>(p - start) > ItemShape::kMaxCounted) {
      items.clear();
      shapes.clear();
      return false;
    }
    items.emplace_back(start, static_cast<std::size_t>(last - start));
    shapes.push_back(ItemShape{counts});
    if (p == end) return true;
    ++p;
  }
}

void splitDataItems(std::string_view line, char delimiter, std::vector<std::string_view>& items) {
  items.clear();
  if (delimiter != ' ' && splitPlain(line, delimiter, items)) return;
  items.clear();
  splitQuoted(line, delimiter, items);
}

}  // namespace zorvik
