#include "cert3/item_format.h"

#include "checks/run_context.h"
#include "las/value_format.h"

namespace zorvik {

namespace {

std::size_t digitsValue(std::string_view s) {
  std::size_t v = 0;
  for (char c : s) v = v * 10 + static_cast<std::size_t>(c - '0');
  return v;
}

}  // namespace

ItemFormat parseItemFormat(std::string_view format) {
  using item_scan::allDigits;
  ItemFormat f;
  f.text = std::string(format);
  std::string_view spec = format.empty() ? format : format.substr(1);
  char code = format.empty() ? 'F' : format.front();
  // Specs of ten digits or more are left to the full test rather than risk an overflow here.
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

bool itemFitsFormatFully(std::string_view item, const ItemFormat& format,
                         std::string_view delimiter) {
  return valueFitsFormat(item, format.text, delimiter);
}

}  // namespace zorvik
