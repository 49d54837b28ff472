#include "players/PlayerStats.h"

#include "league/Selection.h"
#include "players/PlayerFragments.h"
#include "shell/Application.h"

namespace iceline {

void PlayerStats::Form_Load() {
    if (!app_.state.ShowWindows)
        for (const TeamIndex team : AllLeagueTeams)
            writePlayerFragments(app_.files(), team, part_);
    app_.state.ShowWindows = true;
}

void PlayerStats::PlayersTeamSelect_Click() {
    players_ = {};
    content_ = {};
    changed();
    readAgain();
    changed();
}

void PlayerStats::readAgain() {
    if (PlayersTeamSelect == NotChosen)
        return;
    players_ = readTeamPlayers(app_.files(), TeamIndex(PlayersTeamSelect), part_);
    SkaterUpdate();
    GoalieUpdate();
    content_.leaders = players_.leaders;
}

void PlayerStats::SkaterUpdate() {
    content_.skaters = players_.skaters.ordered(SkaterSortColumn, SkaterSortAscending);
}

void PlayerStats::GoalieUpdate() {
    content_.goalies = players_.goalies.ordered(TeamGoalieSortColumn, TeamGoalieSortAscending);
}

void PlayerStats::PlayerStatsN_Click(int Index) {
    if (PlayersTeamSelect == NotChosen)
        return;
    sortByClick(Index, SkaterSortColumn, SkaterSortAscending);
    SkaterUpdate();
    changed();
}

void PlayerStats::GPlayerStatsN_Click(int Index) {
    if (PlayersTeamSelect == NotChosen)
        return;
    sortByClick(Index, TeamGoalieSortColumn, TeamGoalieSortAscending);
    GoalieUpdate();
    changed();
}

} // namespace iceline
