#include "cert3/item_format.h"

#include "las/text.h"
#include "las/value_format.h"

namespace zorvik {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool allDigits(std::string_view s) {
  if (s.empty()) return false;
  for (char c : s) {
    if (!isDigit(c)) return false;
  }
  return true;
}

std::size_t digitsValue(std::string_view s) {
  std::size_t v = 0;
  for (char c : s) v = v * 10 + static_cast<std::size_t>(c - '0');
  return v;
}

// A plain decimal number: optional sign, digits with at most one point, at least one digit.
// Gives the position of the point (npos without one).
bool isPlainNumber(std::string_view s, std::size_t& point) {
  point = std::string_view::npos;
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  bool digit = false;
  for (; i < s.size(); ++i) {
    char c = s[i];
    if (isDigit(c)) {
      digit = true;
    } else if (c == '.' && point == std::string_view::npos) {
      point = i;
    } else {
      return false;
    }
  }
  return digit;
}

bool quickAccepts(std::string_view item, const ItemFormat& f) {
  std::size_t point = 0;
  switch (f.quick) {
    case ItemFormat::QUICK_NUMBER:
      return isPlainNumber(item, point);
    case ItemFormat::QUICK_FIXED:
      return item.size() == f.width && isPlainNumber(item, point) &&
             point != std::string_view::npos && item.size() - point - 1 == f.decimals;
    case ItemFormat::QUICK_DIGITS:
      return allDigits(item);
    case ItemFormat::QUICK_DIGITS_SIZED:
      return item.size() == f.width && allDigits(item);
    case ItemFormat::QUICK_ANY:
      return true;
    case ItemFormat::QUICK_NONE:
      break;
  }
  return false;
}

}  // namespace

ItemFormat parseItemFormat(std::string_view format) {
  ItemFormat f;
  f.text = std::string(format);
  std::string_view spec = format.empty() ? format : format.substr(1);
  char code = format.empty() ? 'F' : format.front();
  if (code == 'F') {
    std::size_t dot = spec.find('.');
    if (spec.empty()) {
      f.quick = ItemFormat::QUICK_NUMBER;
    } else if (dot != std::string_view::npos && allDigits(spec.substr(0, dot)) &&
               allDigits(spec.substr(dot + 1)) && spec.size() < 10) {
      f.quick = ItemFormat::QUICK_FIXED;
      f.width = digitsValue(spec.substr(0, dot));
      f.decimals = digitsValue(spec.substr(dot + 1));
    }
  } else if (code == 'I') {
    if (spec.empty()) {
      f.quick = ItemFormat::QUICK_DIGITS;
    } else if (allDigits(spec) && spec.size() < 10 && digitsValue(spec) > 0) {
      f.quick = ItemFormat::QUICK_DIGITS_SIZED;
      f.width = digitsValue(spec);
    }
  } else if (code == 'S' && spec.empty()) {
    f.quick = ItemFormat::QUICK_ANY;
  }
  return f;
}

bool itemFitsFormat(std::string_view item, const ItemFormat& format) {
  std::string_view t = trimView(item);
  if (t.empty()) return true;
  if (t.size() == item.size() && quickAccepts(item, format)) return true;
  return valueMatchesFormat(item, format.text) == -1;
}

}  // namespace zorvik
