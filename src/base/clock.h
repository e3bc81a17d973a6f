// Local date and time as the command log and the report print them.
//
// Month names are the English three-letter ones with a capital first letter ("Nov"), whatever
// the user's locale, so logs read the same on every machine. None of these functions can fail.
#pragma once

#include <string>

namespace zorvik {

struct DateTime {
  int year = 1970;
  int month = 1;  // 1..12
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

// The current local date and time.
DateTime localNow();

// "mmm-dd-yyyy hh:mm:ss", e.g. "Nov-05-2003 09:20:30" (command log header lines).
std::string commandLogDate(const DateTime& when);
// "dd-mmm-yyyy hh:mm:ss", e.g. "05-Nov-2003 09:20:30" (line 2 of the report).
std::string reportDate(const DateTime& when);

}  // namespace zorvik
