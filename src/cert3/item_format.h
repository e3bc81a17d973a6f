// The format of one data channel, read once before a data section is scanned, and the test of a
// data item against it.
//
// The common formats (a plain or fixed-point number, an unsized integer or string) are accepted
// by a quick character scan; every item the scan does not accept goes to the full value format
// test, so the answer is always the full test's. Nothing here allocates per item or can fail.
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

// True when the item conforms to the format (an empty item always does).
bool itemFitsFormat(std::string_view item, const ItemFormat& format);

}  // namespace zorvik
