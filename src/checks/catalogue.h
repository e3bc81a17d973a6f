// The two check catalogues (3.0 and 1.2/2.0): group headings and numbered check titles, laid out
// into the run state's check tables, and the group result store.
#pragma once

#include "checks/check_table.h"

namespace zorvik {

struct RunContext;

// Writes the headings and titles of both of the run's tables (results are left as they are).
void layOutCatalogue(RunContext& run);
// The results of rows 1..15 of `group` := slots 1..15.
void storeGroupResults(CheckTable& table, int group, const Slots& slots);
// True when any check row of groups 1.. did not pass (not reached counts as not passed).
bool anyFailure(const CheckTable& table);

}  // namespace zorvik
