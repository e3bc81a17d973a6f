// The format of one data channel, read once before a data section is scanned, and the test of a
// data item against it.
//
// The common formats (a plain or fixed-point number, an unsized integer or string) are accepted
// by a quick character scan, inline here because it runs for every item of a data section; every
// item the scan does not accept goes to the full value format test, so the answer is always the
// full test's. Nothing here can fail; the quick scan allocates nothing.
#pragma once

#include <array>
#include <cstdint>
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

// The kinds of bytes in an item, counted while its line is cut so that the quick scan need not
// read the item again. The four counts share one 64-bit sum, 16 bits a kind, so that counting a
// byte is one addition; items longer than kMaxCounted are not counted.
struct ItemShape {
  static constexpr std::uint64_t kDigit = 1;
  static constexpr std::uint64_t kPoint = std::uint64_t{1} << 16;
  static constexpr std::uint64_t kSign = std::uint64_t{1} << 32;   // '+' and '-'
  static constexpr std::uint64_t kOther = std::uint64_t{1} << 48;  // blanks inside included
  static constexpr std::size_t kMaxCounted = 0xFFFF;

  std::uint64_t counts = 0;

  std::uint64_t digits() const { return counts & 0xFFFF; }
  std::uint64_t points() const { return (counts >> 16) & 0xFFFF; }
  std::uint64_t signs() const { return (counts >> 32) & 0xFFFF; }
  std::uint64_t others() const { return counts >> 48; }
};

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

// What each byte adds to an item's shape.
inline constexpr std::array<std::uint64_t, 256> kByteKinds = [] {
  std::array<std::uint64_t, 256> kinds{};
  for (auto& kind : kinds) kind = ItemShape::kOther;
  for (char c = '0'; c <= '9'; ++c) kinds[static_cast<unsigned char>(c)] = ItemShape::kDigit;
  kinds['.'] = ItemShape::kPoint;
  kinds['+'] = ItemShape::kSign;
  kinds['-'] = ItemShape::kSign;
  return kinds;
}();

// The counted bytes of an item of at most ItemShape::kMaxCounted bytes.
inline ItemShape shapeOf(std::string_view item) {
  ItemShape shape;
  for (char c : item) shape.counts += kByteKinds[static_cast<unsigned char>(c)];
  return shape;
}

// A quick yes for the common items, from the item and its counted bytes; false means the full test
// decides.
inline bool quickAcceptsShape(std::string_view item, const ItemShape& shape, const ItemFormat& f) {
  // A plain number: no other byte, at most one point and one sign (all tested at once on the
  // packed counts), at least one digit, and a sign only in front.
  constexpr std::uint64_t kMoreThanOnePointOrSignOrAnyOther = 0xFFFF'FFFE'FFFE'0000;
  const bool plainNumber = (shape.counts & kMoreThanOnePointOrSignOrAnyOther) == 0 &&
                           shape.digits() > 0 &&
                           (shape.signs() == 0 || item.front() == '+' || item.front() == '-');
  switch (f.quick) {
    case ItemFormat::QUICK_NUMBER:
      return plainNumber;
    case ItemFormat::QUICK_FIXED:
      return item.size() == f.width && plainNumber && shape.points() == 1 &&
             item.size() - item.find('.') - 1 == f.decimals;
    case ItemFormat::QUICK_DIGITS:
      return !item.empty() && shape.digits() == item.size();
    case ItemFormat::QUICK_DIGITS_SIZED:
      return item.size() == f.width && shape.digits() == item.size();
    case ItemFormat::QUICK_ANY:
      return true;
    case ItemFormat::QUICK_NONE:
      break;
  }
  return false;
}

// The same, counting the item's bytes first; an item too long to count is left to the full test.
inline bool quickAccepts(std::string_view item, const ItemFormat& f) {
  return item.size() <= ItemShape::kMaxCounted && quickAcceptsShape(item, shapeOf(item), f);
}

}  // namespace item_scan

// True when the item conforms to the format (an empty or blank item always does).
inline bool itemFitsFormat(std::string_view item, const ItemFormat& format,
                           std::string_view delimiter) {
  return item_scan::quickAccepts(item, format) || itemFitsFormatFully(item, format, delimiter);
}

// The same, for an item whose bytes were counted when its line was cut.
inline bool itemFitsFormat(std::string_view item, const ItemShape& shape, const ItemFormat& format,
                           std::string_view delimiter) {
  return item_scan::quickAcceptsShape(item, shape, format) ||
         itemFitsFormatFully(item, format, delimiter);
}

}  // namespace zorvik
