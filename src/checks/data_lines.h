// Small helpers shared by the checks that walk the data section line by line. They work on views
// and allocate nothing, so the loops over hundreds of MB of data lines stay cheap.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "las/lines.h"

namespace zorvik {

struct RunContext;

// 1-based position of the first line after the run's data section title (its data section name,
// or the first data section of the index when no name was found); 0 when the file has no data
// section. Builds the run's section index when it is empty. Cannot fail.
std::int64_t firstDataLinePosition(RunContext& run);

// True when a data section starting at `pos` holds nothing to read: no section, or a start at or
// beyond the last byte of the file.
bool noDataAt(std::int64_t pos, std::int64_t fileLength);

// The text before the first `delimiter` of the trimmed line, trimmed (the whole trimmed line when
// it has no delimiter).
std::string_view leadingField(std::string_view line, char delimiter);

// A number rounded as "0.00000" text read back gives it: half away from zero, no negative zero.
double roundTo5(double value);

// The number a whole field holds (blanks around it allowed), rounded to five decimals; false when
// the field is not one number. Plain decimals are read with integer arithmetic: this runs once
// per data record.
bool parseRoundedNumber(std::string_view field, double& value);

// Number of digits after the first "." of `text` (0 without a period).
int decimalsOf(std::string_view text);

}  // namespace zorvik
