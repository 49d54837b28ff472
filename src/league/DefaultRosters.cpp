#include "league/DefaultRosters.h"

#include "league/TeamTable.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace iceline {

namespace {

struct BuiltInRoster {
    std::string_view abbr;
    std::string_view text;
};

constexpr BuiltInRoster Rosters[] = {
#include "DefaultRosterTexts.inc"
};

} // namespace

std::string_view defaultRoster(TeamIndex row) {
    if (row < TeamIndex(0) || row > AllTeams)
        throw std::out_of_range("no built-in roster of row " + std::to_string(row.number()));
    const auto roster = std::ranges::find(Rosters, TeamAbbr[row], &BuiltInRoster::abbr);
    if (roster == std::end(Rosters))
        throw std::out_of_range("no built-in roster named " + std::string(TeamAbbr[row]));
    return roster->text;
}

} // namespace iceline
