#include "log/KnownRosters.h"

#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"

namespace iceline {

void KnownRosters::take(const Step& step) {
    const auto* game = std::get_if<GameImported>(&step.entry.operation);
    if (!game)
        return;
    for (const auto& [abbr, roster] : game->rosters)
        if (const auto team = teamByAbbr(abbr))
            texts_[paths::playersList(*team)] = roster;
}

GameRosters KnownRosters::of(const GameSheet& game) const {
    return {of(game.home.team), of(game.away.team)};
}

Roster KnownRosters::of(TeamIndex team) const {
    const std::string path = paths::playersList(team);
    return rosterFromText(path, texts_.at(path));
}

} // namespace iceline
