#include "base/text.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace zorvik {

std::string trim(std::string_view s) {
  return std::string(trimView(s));
}

char toUpperAscii(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string toUpper(std::string_view s) {
  std::string out(s);
  for (char& c : out) c = toUpperAscii(c);
  return out;
}

bool iequals(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (toUpperAscii(a[i]) != toUpperAscii(b[i])) return false;
  return true;
}

bool istartsWith(std::string_view s, std::string_view prefix) {
  return s.size() >= prefix.size() && iequals(s.substr(0, prefix.size()), prefix);
}

bool iendsWith(std::string_view s, std::string_view suffix) {
  return s.size() >= suffix.size() && iequals(s.substr(s.size() - suffix.size()), suffix);
}

std::size_t ifind(std::string_view s, std::string_view what, std::size_t from) {
  if (from > s.size() || what.size() > s.size() - from) return std::string_view::npos;
  for (std::size_t i = from; i + what.size() <= s.size(); ++i)
    if (iequals(s.substr(i, what.size()), what)) return i;
  return std::string_view::npos;
}

std::size_t ifindLast(std::string_view s, std::string_view what) {
  if (what.empty() || what.size() > s.size()) return std::string_view::npos;
  for (std::size_t i = s.size() - what.size() + 1; i-- > 0;)
    if (iequals(s.substr(i, what.size()), what)) return i;
  return std::string_view::npos;
}

bool icontains(std::string_view s, std::string_view what) {
  return ifind(s, what) != std::string_view::npos;
}

bool contains(std::string_view s, std::string_view what) {
  return s.find(what) != std::string_view::npos;
}
bool contains(std::string_view s, char c) {
  return s.find(c) != std::string_view::npos;
}

std::vector<std::string> split(std::string_view s, std::string_view separator) {
  std::vector<std::string> out;
  if (separator.empty()) {
    out.emplace_back(s);
    return out;
  }
  std::size_t start = 0;
  for (;;) {
    std::size_t p = s.find(separator, start);
    if (p == std::string_view::npos) {
      out.emplace_back(s.substr(start));
      return out;
    }
    out.emplace_back(s.substr(start, p - start));
    start = p + separator.size();
  }
}

std::vector<std::string> splitOnBlanks(std::string_view s) {
  std::vector<std::string> out;
  std::string_view t = trimView(s);
  std::size_t i = 0;
  while (i < t.size()) {
    std::size_t e = t.find(' ', i);
    if (e == std::string_view::npos) e = t.size();
    out.emplace_back(t.substr(i, e - i));
    i = e;
    while (i < t.size() && t[i] == ' ') ++i;
  }
  if (out.empty()) out.emplace_back();
  return out;
}

std::string replaceAll(std::string_view s, std::string_view what, std::string_view with) {
  if (what.empty()) return std::string(s);
  std::string out;
  out.reserve(s.size());
  std::size_t start = 0;
  for (;;) {
    std::size_t p = s.find(what, start);
    if (p == std::string_view::npos) break;
    out.append(s.substr(start, p - start)).append(with);
    start = p + what.size();
  }
  out.append(s.substr(start));
  return out;
}

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// Length of the longest numeric prefix of `s` (sign, digits, one point, optional exponent), or 0
// when no digit is present.
std::size_t numericPrefix(std::string_view s) {
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < s.size() && isDigit(s[i])) ++i, ++digits;
  if (i < s.size() && s[i] == '.') {
    ++i;
    while (i < s.size() && isDigit(s[i])) ++i, ++digits;
  }
  if (digits == 0) return 0;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
    std::size_t expDigits = 0;
    while (j < s.size() && isDigit(s[j])) ++j, ++expDigits;
    if (expDigits > 0) i = j;
  }
  return i;
}

double convert(std::string_view s) {
  if (!s.empty() && s[0] == '+') s.remove_prefix(1);
  double v = 0;
  auto r = std::from_chars(s.data(), s.data() + s.size(), v);
  if (r.ec == std::errc::result_out_of_range) {
    // Overflow or underflow: keep the sign of the magnitude the text asked for.
    bool negative = !s.empty() && s[0] == '-';
    bool tiny = contains(s, "e-") || contains(s, "E-");
    return tiny ? 0.0 : (negative ? -HUGE_VAL : HUGE_VAL);
  }
  return v;
}

}  // namespace

double leadingNumber(std::string_view s) {
  s = trimLeftView(s);
  std::size_t n = numericPrefix(s);
  return n == 0 ? 0.0 : convert(s.substr(0, n));
}

bool parseNumber(std::string_view s, double& value) {
  s = trimView(s);
  std::size_t n = numericPrefix(s);
  if (n == 0 || n != s.size()) return false;
  value = convert(s);
  return true;
}

bool isNumeric(std::string_view s) {
  double v;
  return parseNumber(s, v);
}

std::string formatShortest(float value) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, value);
  return std::string(buf, r.ptr);
}

std::string formatShortest(double value) {
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, value);
  return std::string(buf, r.ptr);
}

std::string formatFixed(double value, int decimals) {
  if (!std::isfinite(value)) return formatShortest(value);
  // Round half away from zero on the decimal text, as a display format does.
  double scale = std::pow(10.0, decimals);
  double scaled = std::round(value * scale);
  if (scaled == 0) value = 0;  // no "-0.00000"
  char buf[512];
  auto r = std::to_chars(buf, buf + sizeof buf, scaled / scale, std::chars_format::fixed, decimals);
  if (r.ec != std::errc()) return formatShortest(value);
  std::string out(buf, r.ptr);
  if (out == "-" + std::string("0") + (decimals > 0 ? "." + std::string(decimals, '0') : ""))
    out.erase(0, 1);
  return out;
}

std::string toText(long long value) {
  char buf[32];
  auto r = std::to_chars(buf, buf + sizeof buf, value);
  return std::string(buf, r.ptr);
}

}  // namespace zorvik
