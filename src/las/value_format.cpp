#include "las/value_format.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/text.h"

namespace zorvik {

namespace {

constexpr std::size_t MAX_SPEC = 100;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool allDigits(std::string_view s) {
  return std::all_of(s.begin(), s.end(), isDigit);
}
bool hasE(std::string_view s) {
  return s.find_first_of("eE") != std::string_view::npos;
}

// The degree sign as a single Latin-1 byte, or in its two-byte UTF-8 form.
std::size_t degreeSignLength(std::string_view s) {
  if (!s.empty() && static_cast<unsigned char>(s[0]) == 0xB0) return 1;
  if (s.size() >= 2 && static_cast<unsigned char>(s[0]) == 0xC2 &&
      static_cast<unsigned char>(s[1]) == 0xB0)
    return 2;
  return 0;
}

bool holdsDegreeThenApostrophe(std::string_view s) {
  for (std::size_t i = 0; i < s.size(); ++i) {
    std::size_t n = degreeSignLength(s.substr(i));
    if (n > 0 && i + n < s.size() && s[i + n] == '\'') return true;
  }
  return false;
}

bool matchesDatePattern(std::string_view part, std::string_view format) {
  if (part.size() != format.size()) return false;
  for (std::size_t i = 0; i < format.size(); ++i) {
    char f = format[i];
    bool separator = f == '.' || f == '-' || f == ':' || f == '/' || f == ' ';
    if (separator && part[i] != f) return false;
  }
  return true;
}

// ---- Date-pattern legality: format a fixed sample date, then ask whether that reads as a date.

const char* const MONTHS[] = {"January",   "February", "March",    "April",
                              "May",       "June",     "July",     "August",
                              "September", "October",  "November", "December"};
const char* const WEEKDAYS[] = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                "Friday", "Saturday", "Sunday"};

// "May 23, 1957 10:30:15" (a Thursday) written with a pattern of D, M, Y, m, h, s letter runs;
// D and Y, h and s are read in either case, M is the month and m the minute.
std::string formatSampleDate(std::string_view pattern) {
  std::string out;
  for (std::size_t i = 0; i < pattern.size();) {
    char c = pattern[i];
    std::size_t run = 1;
    while (i + run < pattern.size() && pattern[i + run] == c) ++run;
    char u = toUpperAscii(c);
    if (u == 'D') {
      out += run <= 2 ? "23" : run == 3 ? "Thu" : "Thursday";
    } else if (c == 'M') {
      out += run == 1 ? "5" : run == 2 ? "05" : "May";
    } else if (u == 'Y') {
      out += run <= 2 ? "57" : "1957";
    } else if (c == 'm') {
      out += "30";
    } else if (u == 'H') {
      out += "10";
    } else if (u == 'S') {
      out += "15";
    } else {
      out.append(run, c);
    }
    i += run;
  }
  return out;
}

int monthOfName(std::string_view word) {
  for (int m = 0; m < 12; ++m) {
    std::string_view name = MONTHS[m];
    if (iequals(word, name) || (word.size() == 3 && istartsWith(name, word))) return m + 1;
  }
  return 0;
}

bool isWeekdayName(std::string_view word) {
  for (std::string_view name : WEEKDAYS)
    if (iequals(word, name) || (word.size() == 3 && istartsWith(name, word))) return true;
  return false;
}

bool plausibleDayMonth(int day, int month) {
  return day >= 1 && day <= 31 && month >= 1 && month <= 12;
}

// Two or three numbers read as day/month/year in one of the usual orders.
bool numericDate(const std::vector<int>& n) {
  if (n.size() == 2)
    return plausibleDayMonth(n[0], n[1]) || plausibleDayMonth(n[1], n[0]) ||
           (n[0] >= 1 && n[0] <= 12 && n[1] > 31);
  if (n.size() == 3)
    return plausibleDayMonth(n[0], n[1]) || plausibleDayMonth(n[1], n[0]) ||
           plausibleDayMonth(n[2], n[1]);
  return false;
}

// A small, locale-free date test: the text must be a date (day, month and year in some order, the
// month maybe by name), a time (hours:minutes[:seconds]) or a date followed by a time. A single
// number is not a date.
bool looksLikeDate(std::string_view text) {
  std::vector<int> dateNumbers;
  std::vector<int> timeNumbers;
  int monthByName = 0;
  bool inTime = false;
  std::size_t i = 0;
  while (i < text.size()) {
    char c = text[i];
    if (c == ' ' || c == ',' || c == '/' || c == '-' || c == '.') {
      inTime = false;
      ++i;
      continue;
    }
    if (c == ':') {
      if (timeNumbers.empty()) {
        if (dateNumbers.empty()) return false;
        timeNumbers.push_back(dateNumbers.back());  // the hour was read as a date part
        dateNumbers.pop_back();
      }
      inTime = true;
      ++i;
      continue;
    }
    std::size_t j = i;
    if (isDigit(c)) {
      while (j < text.size() && isDigit(text[j])) ++j;
      if (j - i > 4) return false;
      int value = 0;
      for (std::size_t k = i; k < j; ++k) value = value * 10 + (text[k] - '0');
      (inTime ? timeNumbers : dateNumbers).push_back(value);
    } else {
      auto isLetter = [](char ch) { return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z'); };
      if (!isLetter(c)) return false;
      while (j < text.size() && isLetter(text[j])) ++j;
      std::string_view word = text.substr(i, j - i);
      if (int m = monthOfName(word); m != 0 && monthByName == 0) {
        monthByName = m;
      } else if (!isWeekdayName(word) && !iequals(word, "AM") && !iequals(word, "PM")) {
        return false;
      }
      inTime = false;
    }
    i = j;
  }

  bool hasTime = !timeNumbers.empty();
  if (hasTime) {
    if (timeNumbers.size() < 2 || timeNumbers.size() > 3 || timeNumbers[0] > 23) return false;
    for (std::size_t k = 1; k < timeNumbers.size(); ++k)
      if (timeNumbers[k] > 59) return false;
  }
  bool hasDate = monthByName != 0 || !dateNumbers.empty();
  if (!hasDate) return hasTime;
  if (monthByName != 0) {
    // "May 1957", "23 May", "23 May 1957": at most a day and a year beside the month's name.
    if (dateNumbers.empty() || dateNumbers.size() > 2) return false;
    return std::any_of(dateNumbers.begin(), dateNumbers.end(), [](int n) { return n >= 1; });
  }
  return numericDate(dateNumbers);
}

// ---- Exponential pattern legality: write 12 with a pattern such as "0.00E+00".

// Writes `value` with a pattern of digit placeholders ("0" or "#"), an optional point, an "E" and
// a sign, then exponent placeholders; whatever follows them is copied as it stands. Gives "" for
// a text that is not such a pattern.
std::string formatScientific(double value, std::string_view pattern) {
  std::size_t e = pattern.find_first_of("eE");
  if (e == std::string_view::npos || e + 1 >= pattern.size()) return {};
  std::string_view mantissa = pattern.substr(0, e);
  char sign = pattern[e + 1];
  if (sign != '+' && sign != '-') return {};
  std::string_view exponent = pattern.substr(e + 2);
  std::size_t point = mantissa.find('.');
  std::string_view intPart = mantissa.substr(0, point);
  std::string_view fracPart =
      point == std::string_view::npos ? std::string_view() : mantissa.substr(point + 1);
  auto placeholders = [](std::string_view s) {
    return std::all_of(s.begin(), s.end(), [](char c) { return c == '0' || c == '#'; });
  };
  std::size_t expDigits = 0;
  while (expDigits < exponent.size() && (exponent[expDigits] == '0' || exponent[expDigits] == '#'))
    ++expDigits;
  if (intPart.empty() || !placeholders(intPart) || !placeholders(fracPart) || expDigits == 0)
    return {};

  // Scale so that the integer part has as many digits as the pattern asks for.
  int exp = 0;
  double mant = value;
  if (mant != 0) {
    while (mant >= 10) mant /= 10, ++exp;
    while (mant < 1) mant *= 10, --exp;
    for (std::size_t k = 1; k < intPart.size(); ++k) mant *= 10, --exp;
  }
  std::string out = formatFixed(mant, static_cast<int>(fracPart.size()));
  if (point != std::string_view::npos && fracPart.empty()) out += '.';
  out += pattern[e];
  if (exp < 0 || sign == '+') out += exp < 0 ? '-' : '+';
  std::string digits = toText(exp < 0 ? -exp : exp);
  if (digits.size() < expDigits) digits.insert(0, expDigits - digits.size(), '0');
  out += digits;
  out += exponent.substr(expDigits);
  return out;
}

}  // namespace

bool isFloatValue(std::string_view part, std::string_view spec) {
  if (!isNumeric(part) || hasE(part)) return false;
  std::size_t point = part.find('.');
  if (spec.empty()) return true;
  if (point == std::string_view::npos) return false;
  // "width.decimals"; a width alone ("10", "10.") is no fixed-point spec.
  std::size_t specPoint = spec.find('.');
  if (specPoint == std::string_view::npos || specPoint == 0 || specPoint + 1 == spec.size())
    return false;
  double width = leadingNumber(spec.substr(0, specPoint));
  double decimals = leadingNumber(spec.substr(specPoint + 1));
  return static_cast<double>(part.size() - point - 1) == decimals &&
         static_cast<double>(part.size()) == width;
}

bool isIntegerValue(std::string_view part, std::string_view spec) {
  double value = 0;
  if (!parseNumber(part, value) || value < 0) return false;
  if (part.find_first_of("eE.") != std::string_view::npos) return false;
  double width = 0;
  if (parseNumber(spec, width) && width > 0) return static_cast<double>(part.size()) == width;
  return true;
}

bool isStringValue(std::string_view part, std::string_view spec) {
  if (part.empty() || spec.empty()) return true;
  return static_cast<double>(part.size()) == leadingNumber(spec);
}

bool isExponentialValue(std::string_view part, std::string_view) {
  return hasE(part) && isNumeric(part);
}

bool valueFitsFormat(std::string_view value, std::string_view format, std::string_view delimiter) {
  if (trimView(value).empty()) return true;

  // One header value may hold several array elements, written with the data delimiter.
  std::vector<std::string_view> parts;
  bool stringFormat = !format.empty() && toUpperAscii(format[0]) == 'S';
  if (!stringFormat && !delimiter.empty() && contains(value, delimiter)) {
    if (delimiter == " ") {
      std::string_view t = trimView(value);
      for (std::size_t i = 0; i < t.size();) {
        std::size_t e = std::min(t.find(' ', i), t.size());
        parts.push_back(t.substr(i, e - i));
        i = t.find_first_not_of(' ', e);
        if (i == std::string_view::npos) break;
      }
    } else {
      for (std::size_t i = 0;;) {
        std::size_t e = value.find(delimiter, i);
        parts.push_back(value.substr(i, e == std::string_view::npos ? e : e - i));
        if (e == std::string_view::npos) break;
        i = e + delimiter.size();
      }
    }
  } else {
    parts.push_back(value);
  }

  auto all = [&](auto test) { return std::all_of(parts.begin(), parts.end(), test); };
  if (degreeSignLength(format) > 0)
    return all([](std::string_view p) { return contains(p, '"') && contains(p, '\''); });
  std::string_view spec = format.empty() ? format : format.substr(1, MAX_SPEC);
  switch (format.empty() ? 'F' : toUpperAscii(format[0])) {
    case 'F':
      return all([&](std::string_view p) { return isFloatValue(p, spec); });
    case 'I':
      return all([&](std::string_view p) { return isIntegerValue(p, spec); });
    case 'S':
      return all([&](std::string_view p) { return isStringValue(p, spec); });
    case 'E':
      return all([&](std::string_view p) { return isExponentialValue(p, spec); });
    case 'D':
    case 'M':
    case 'Y':
    case 'H':
      return all([&](std::string_view p) { return matchesDatePattern(p, format); });
    default:
      return false;
  }
}

bool isLegalFormatElement(std::string_view element) {
  if (element.empty()) return false;
  if (degreeSignLength(element) > 0) return holdsDegreeThenApostrophe(element);
  std::string_view rest = trimView(element.substr(1));
  switch (toUpperAscii(element[0])) {
    case 'F': {
      if (rest.empty()) return true;  // a bare "F": any fixed-point number
      std::size_t point = rest.find('.');
      if (point == std::string_view::npos || point == 0 || point + 1 == rest.size()) return false;
      std::string_view width = rest.substr(0, point);
      std::string_view decimals = rest.substr(point + 1);
      if (!allDigits(width) || !allDigits(decimals)) return false;
      return leadingNumber(width) > leadingNumber(decimals);
    }
    case 'I':
    case 'S':
      return rest.empty() || (allDigits(rest) && leadingNumber(rest) > 0);
    case 'E': {
      if (rest.empty()) return true;  // a bare "E": any exponential number
      if (rest.size() < 2) return false;
      if (!contains(rest, '+') || !hasE(rest)) return false;
      double back = 0;
      return parseNumber(formatScientific(12, rest), back) && back == 12;
    }
    default:
      return looksLikeDate(formatSampleDate(element));
  }
}

bool isLegalFormat(std::string_view format) {
  if (format.empty()) return true;
  std::string_view t = trimView(format);
  if (contains(t, ' ')) {
    // A format with blanks inside ("DD MM YYYY") is only checked for a known leading letter.
    return !t.empty() && contains("FIESADMYH", toUpperAscii(t[0]));
  }
  if (t.size() >= 2 && t.front() == '{') t.remove_prefix(1);
  if (t.size() >= 2 && t.back() == '}') t.remove_suffix(1);
  t = trimView(t);
  if (t.empty() || toUpperAscii(t[0]) != 'A') return isLegalFormatElement(t);

  // An array format: "A", "AF10.4", "AF10.4;3;4" (element format, then dimensions).
  if (t.size() == 1) return true;
  bool answer = true;
  std::string_view rest = t.substr(1);
  if (rest != ";") {
    std::string_view element = rest.substr(0, rest.find(';'));
    if (!isLegalFormatElement(element)) answer = false;
  }
  if (contains(t, ';')) {
    std::vector<std::string> pieces = split(t, ";");
    for (std::size_t i = 1; i < pieces.size(); ++i)
      if (pieces[i].empty()) answer = false;
  }
  return answer;
}

}  // namespace zorvik
