#pragma once

#include "log/KnownRosters.h"
#include "page/DataTable.h"

namespace iceline {

/// The games in the books of which the history tells, with their goals and penalties, a row each.
struct GameTables {
    DataTable games;
    DataTable goals;
    DataTable penalties;
};

/// `rosters` are those before the first step.
GameTables gameTables(const std::vector<Step>& steps, KnownRosters rosters);

} // namespace iceline
