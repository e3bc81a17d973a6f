#include "cert3/data_items.h"

#include "las/text.h"

namespace zorvik {

namespace {

// An item as written between two separators: blanks trimmed, enclosing quotes removed.
std::string_view cleanItem(std::string_view raw) {
  std::string_view item = trimView(raw);
  if (item.size() >= 2 && item.front() == '"' && item.back() == '"') {
    item = item.substr(1, item.size() - 2);
  } else if (!item.empty() && item.front() == '"') {
    item.remove_prefix(1);  // an unmatched opening quote: the item runs to the line's end
  }
  return item;
}

void splitPlain(std::string_view line, char delimiter, std::vector<std::string_view>& items) {
  std::size_t start = 0;
  for (;;) {
    std::size_t cut = line.find(delimiter, start);
    if (cut == std::string_view::npos) {
      items.push_back(trimView(line.substr(start)));
      return;
    }
    items.push_back(trimView(line.substr(start, cut - start)));
    start = cut + 1;
  }
}

void splitQuoted(std::string_view line, char delimiter, std::vector<std::string_view>& items) {
  const bool spaces = delimiter == ' ';
  if (spaces) line = trimView(line);
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

void splitDataItems(std::string_view line, char delimiter, std::vector<std::string_view>& items) {
  items.clear();
  if (delimiter == ' ' || line.find('"') != std::string_view::npos) {
    splitQuoted(line, delimiter, items);
  } else {
    splitPlain(line, delimiter, items);
  }
}

}  // namespace zorvik
