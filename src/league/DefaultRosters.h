#pragma once

#include "league/TeamTable.h"

#include <string_view>

namespace iceline {

/// The roster with which a team begins, built into the program: the text of a whole `Players List.txt`
/// without its last line end. Rows 0 to 25 are those of the team table, the All-Star teams included; row 26,
/// AllTeams, is a selection of the whole league. Throws std::out_of_range for any other row.
std::string_view defaultRoster(TeamIndex row);

} // namespace iceline
