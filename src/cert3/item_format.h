// The format of one data channel, read once before a data section is scanned, and the test of a
// data item against it.
//
// The common formats (a plain or fixed-point number, an unsized integer or string) are accepted
// by a quick character scan, inline here because it runs for every item of a data section; every
// item the scan does not accept goes to the full value format test, so the answer is always the
// full test's. Nothing here can fail; the quick scan allocates nothing.
#pragma once

#include <string>
#include <string_view>

namespace zorvik {

struct ItemFormat {
  enum Quick : char {
    QUICK_NONE,          // no quick acceptance: always the full test
    QUICK_NUMBER,        // "F" or empty: a number without exponent
    QUICK_FIXED,         // "Fw.d": a number of w characters with d decimals
    QUICK_DIGITS,        // "I": digits only
    QUICK_DIGITS_SIZED,  // "Iw": w digits
    QUICK_ANY,           // "S": any text
  };
  std::string text;  // the format as stated (array marker already removed)
  Quick quick = QUICK_NONE;
  std::size_t width = 0;
  std::size_t decimals = 0;
};

ItemFormat parseItemFormat(std::string_view format);

// The full value format test (allocates; for the items the quick scan leaves open) for data
// delimited by `delimiter`.
bool itemFitsFormatFully(std::string_view item, const ItemFormat& format,
                         std::string_view delimiter);

namespace item_scan {

inline bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

inline bool allDigits(std::string_view s) {
  if (s.empty()) return false;
  for (char c : s) {
    if (!isDigit(c)) return false;
  }
  return true;
}

// A plain decimal number: optional sign, digits with at most one point, at least one digit.
inline bool isPlainNumber(std::string_view s) {
  std::size_t i = !s.empty() && (s[0] == '+' || s[0] == '-') ? 1 : 0;
  bool point = false;
  bool digit = false;
  for (; i < s.size(); ++i) {
    char c = s[i];
    if (isDigit(c)) {
      digit = true;
    } else if (c == '.' && !point) {
      point = true;
    } else {
      return false;
    }
  }
  return digit;
}

inline bool quickAccepts(std::string_view item, const ItemFormat& f) {
  switch (f.quick) {
    case ItemFormat::QUICK_NUMBER:
      return isPlainNumber(item);
    case ItemFormat::QUICK_FIXED: {
      if (item.size() != f.width || !isPlainNumber(item)) return false;
      std::size_t point = item.find('.');
      return point != std::string_view::npos && item.size() - point - 1 == f.decimals;
    }
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

}  // namespace item_scan

// True when the item conforms to the format (an empty or blank item always does).
inline bool itemFitsFormat(std::string_view item, const ItemFormat& format,
                           std::string_view delimiter) {
  return item_scan::quickAccepts(item, format) || itemFitsFormatFully(item, format, delimiter);
}

}  // namespace zorvik
