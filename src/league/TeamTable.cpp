#include "league/TeamTable.h"

#include <algorithm>

namespace iceline {

namespace {

template <class List>
std::optional<TeamIndex> rowOf(const List& list, std::string_view text) {
    const auto end = list.begin() + LeagueTeams;
    const auto found = std::find(list.begin(), end, text);
    if (found == end)
        return std::nullopt;
    return TeamIndex(static_cast<int>(found - list.begin()));
}

} // namespace

std::optional<TeamIndex> teamByName(std::string_view name) {
    return rowOf(TeamName, name);
}

std::optional<TeamIndex> teamByAbbr(std::string_view abbr) {
    return rowOf(TeamAbbr, abbr);
}

} // namespace iceline
