// Small text helpers shared by every subsystem.
//
// The LAS rules compare names, mnemonics and keywords ignoring letter case, count positions from 1
// (0 meaning "not found") and trim blanks only (a tab is never trimmed). These helpers encode those
// habits once so the checks read like the rules they implement. None of them can fail.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zorvik {

// Remove leading and trailing space characters (not tabs); inline, as they run on every line of
// the data.
inline std::string_view trimLeftView(std::string_view s) {
  std::size_t b = 0;
  while (b < s.size() && s[b] == ' ') ++b;
  return s.substr(b);
}
inline std::string_view trimRightView(std::string_view s) {
  std::size_t e = s.size();
  while (e > 0 && s[e - 1] == ' ') --e;
  return s.substr(0, e);
}
inline std::string_view trimView(std::string_view s) {
  return trimRightView(trimLeftView(s));
}
std::string trim(std::string_view s);

char toUpperAscii(char c);
std::string toUpper(std::string_view s);

// Case-insensitive equality and prefix/suffix tests (ASCII letters only).
bool iequals(std::string_view a, std::string_view b);
bool istartsWith(std::string_view s, std::string_view prefix);
bool iendsWith(std::string_view s, std::string_view suffix);

// Case-insensitive (ASCII) searches, as std::string_view::find and rfind: the 0-based place of
// the first / last occurrence, npos when there is none.
std::size_t ifind(std::string_view s, std::string_view what, std::size_t from = 0);
std::size_t ifindLast(std::string_view s, std::string_view what);
bool icontains(std::string_view s, std::string_view what);

bool contains(std::string_view s, std::string_view what);
bool contains(std::string_view s, char c);

// Splits at every occurrence of `separator` (empty fields kept). An empty text gives one empty
// field.
std::vector<std::string> split(std::string_view s, std::string_view separator);
// Splits on runs of spaces after trimming; an all-blank text gives one empty field.
std::vector<std::string> splitOnBlanks(std::string_view s);

std::string replaceAll(std::string_view s, std::string_view what, std::string_view with);

// The leading number of a text: leading blanks skipped, then an
// optional sign, digits, one point and an optional exponent; anything else ends it; no number is 0.
double leadingNumber(std::string_view s);

// True when the whole text (blanks around it allowed) is one number: optional sign, digits, at most
// one point, an optional exponent. On success `value` holds it.
bool parseNumber(std::string_view s, double& value);
bool isNumeric(std::string_view s);

// Shortest decimal text of a single-precision number: 2.0f gives "2", 1.2f gives "1.2".
std::string formatShortest(float value);
// Shortest decimal text of a double.
std::string formatShortest(double value);
// Fixed-point text with `decimals` places, as the "0.00000" format prints (rounding half away
// from zero, a leading "-" for negatives, at least one digit before the point).
std::string formatFixed(double value, int decimals = 5);

// Text of an integer.
std::string toText(long long value);

}  // namespace zorvik
