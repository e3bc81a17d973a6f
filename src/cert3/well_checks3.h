// The ~Well checks of 3.0 files ("~Well Section Mnemonics and Content Checks"): the required
// mnemonics, the CTRY line and its two-letter country code, the mnemonics that country requires,
// and one complete set of location mnemonics.
//
// Never throws. Returns CheckStatus::Passed when slots 1-6 are all empty, CheckStatus::Failed when
// any is not (a single space left in slot 2 by a missing CTRY line counts), CheckStatus::Fault on
// an internal fault (slots then hold what had been decided).
#pragma once

#include <string>
#include <string_view>

#include "checks/check_table.h"
#include "las/header_line.h"

namespace zorvik {

struct RunContext;

// `wellTable` holds the ~Well lines; the file is read again only to quote the CTRY line as
// written. Slots 3-5 are left as the caller preset them when there is no CTRY line.
CheckStatus checkWellSection3(RunContext& run, const ParamTable& wellTable, Slots& slots);

// True for the letters A-Z in either case.
bool isAsciiLetter(char c);

}  // namespace zorvik
