#include "players/PlayerProfiles.h"

#include "league/Numbers.h"
#include "players/PlayerCards.h"
#include "shell/Application.h"

#include <algorithm>

namespace iceline {

namespace {

using Figures = std::vector<PlayerProfiles::Figure>;

std::string text(double value) {
    return numberText(value);
}

Figures skaterFigures(const SkaterStats& s) {
    return {{"PlyrGP", text(s.GP)},
            {"PlyrG", text(s.G)},
            {"PlyrGPG", text(s.GPG)},
            {"PlyrA", text(s.A)},
            {"PlyrAPG", text(s.APG)},
            {"PlyrPts", text(s.Pts)},
            {"PlyrPPG", text(s.PtsPG)},
            {"PlyrSOG", text(s.SOG)},
            {"PlyrSOGPG", text(s.SOGPG)},
            {"PlyrSPct", text(s.ShotPct)},
            {"PlyrPIM", text(s.PIM)},
            {"PlyrPP", text(s.PPG)},
            {"PlyrSH", text(s.SHG)},
            {"PlyrPIMPG", text(s.PIMPG)},
            {"PlyrPowRanking", text(s.Rating)},
            {"Plyr3Star", text(s.StarPoints)}};
}

/// The season's window shows a tenth of a goalie's rating, the play-offs' window all of it.
double shownRating(const GoalieStats& goalie, PartOfYear part) {
    return part == PartOfYear::Season ? r3(goalie.Rating / 10) : goalie.Rating;
}

Figures goalieFigures(const GoalieStats& g, PartOfYear part) {
    return {{"GoalieGP", text(g.GP)},
            {"GoalieW", text(g.GW)},
            {"GoalieL", text(g.GL)},
            {"GoalieT", text(g.GT)},
            {"GoalieGAA", text(g.GAA)},
            {"GoalieSavePct", text(g.SvPct)},
            {"GoalieShutouts", text(g.SO)},
            {"ShotsFaced", text(g.SA)},
            {"GoalsAgainst", text(g.GA)},
            {"GoalieA", text(g.A)},
            {"Goalie3Star", text(g.StarPoints)},
            {"GoaliePowRanking", text(shownRating(g, part))}};
}

Figures figuresOf(const PlayerStatsLine& line, PartOfYear part) {
    if (const auto* goalie = std::get_if<GoalieStats>(&line))
        return goalieFigures(*goalie, part);
    return skaterFigures(std::get<SkaterStats>(line));
}

bool endsRoster(const RosterRow& row) {
    return row.isEmpty() || row.Name.empty();
}

} // namespace

void PlayerProfiles::PlayersTeamSelect_Click() {
    if (PlayersTeamSelect == NotChosen)
        return;
    const Roster roster = readRoster(app_.files(), paths::playersList(TeamIndex(PlayersTeamSelect)));
    PlayersNameSelect = NotChosen;
    content_ = {{roster.begin(), std::ranges::find_if(roster, endsRoster)}, std::nullopt};
    changed();
}

void PlayerProfiles::PlayersNameSelect_Click() {
    if (PlayersNameSelect == NotChosen)
        return;
    Files& files = app_.files();
    const Roster roster = readRoster(files, paths::playersList(TeamIndex(PlayersTeamSelect)));
    const std::string path = paths::teamFile(TeamIndex(PlayersTeamSelect), part_, paths::PlayerStats);
    const TeamPlayerStats stats = readPlayerStats(files, path, roster);
    const RosterRow& row = content_.roster.at(PlayersNameSelect);
    const std::string card = playerCard(files, app_.platform(), row.Name, row.isGoalie());
    content_.player =
        Player{row, paths::page("PlayerCards/" + card + ".gif"), figuresOf(stats[PlayersNameSelect], part_)};
    changed();
}

} // namespace iceline
