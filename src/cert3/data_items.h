// Splitting one column data line of a 3.0 file into its items.
//
// With a space delimiter, or whenever the line holds a double quote, items are read quote-aware:
// a double-quoted item may hold the delimiter (spaces included) and comes back without its
// quotes, and with a space delimiter runs of spaces count as one separator. Otherwise the line
// is cut at every delimiter character. Items are trimmed of blanks. Cannot fail.
#pragma once

#include <string_view>
#include <vector>

#include "cert3/item_format.h"

namespace zorvik {

// Fills `items` (cleared first) with views into `line`; an item left open by an unmatched quote
// runs to the end of the line. A blank line gives no items with a space delimiter and one empty
// item otherwise.
void splitDataItems(std::string_view line, char delimiter, std::vector<std::string_view>& items);

// For a delimiter other than a blank: cuts the line as splitDataItems does and counts the kinds
// of bytes of every item into `shapes` on the same pass. False, with nothing cut, when the line
// holds a double quote or an item too long to count; splitDataItems reads those.
bool splitCountingItems(std::string_view line, char delimiter, std::vector<std::string_view>& items,
                        std::vector<ItemShape>& shapes);

}  // namespace zorvik
