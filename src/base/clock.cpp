#include "base/clock.h"

#include <ctime>

#include "base/text.h"

namespace zorvik {

namespace {

const char* const kMonths[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string monthName(int month) {
  return month >= 1 && month <= 12 ? kMonths[month - 1] : "???";
}

// Zero-padded decimal of at least `width` digits.
std::string padded(int value, int width) {
  std::string digits = toText(value < 0 ? -value : value);
  if (static_cast<int>(digits.size()) < width) digits.insert(0, width - digits.size(), '0');
  return value < 0 ? "-" + digits : digits;
}

std::string timeOfDay(const DateTime& when) {
  return padded(when.hour, 2) + ":" + padded(when.minute, 2) + ":" + padded(when.second, 2);
}

}  // namespace

DateTime localNow() {
  std::time_t now = std::time(nullptr);
  std::tm parts{};
  if (localtime_r(&now, &parts) == nullptr) return DateTime{};
  return DateTime{parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
                  parts.tm_hour,        parts.tm_min,     parts.tm_sec};
}

std::string commandLogDate(const DateTime& when) {
  return monthName(when.month) + "-" + padded(when.day, 2) + "-" + padded(when.year, 4) + " " +
         timeOfDay(when);
}

std::string reportDate(const DateTime& when) {
  return padded(when.day, 2) + "-" + monthName(when.month) + "-" + padded(when.year, 4) + " " +
         timeOfDay(when);
}

}  // namespace zorvik
