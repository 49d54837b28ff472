#include "players/PlayerProfiles.h"

#include "league/Numbers.h"
#include "players/PlayerCards.h"
#include "players/PlayerColumns.h"
#include "players/PlayerPages.h"
#include "shell/Application.h"

namespace iceline {

namespace {

using Figures = std::vector<PlayerProfiles::Figure>;

template <class Stats, std::size_t Lines>
Figures figuresOf(const std::array<ProfileLine<Stats>, Lines>& lines, const FigureOf<Stats>& figureOf) {
    Figures figures;
    for (const ProfileLine<Stats>& line : lines)
        for (const ProfileFigure<Stats>& figure : line.figures)
            figures.push_back({figure.control, numberText(figureOf(figure.field))});
    return figures;
}

Figures shownFigures(const RosterRow& player, const SkaterStats& skater, PartOfYear) {
    return figuresOf(SkaterProfileLines, FigureOf<SkaterStats>{player, skater});
}

/// The season's window shows a tenth of a goalie's rating, the play-offs' window all of it.
Figures shownFigures(const RosterRow& player, GoalieStats goalie, PartOfYear part) {
    if (part == PartOfYear::Season)
        goalie.Rating = r3(goalie.Rating / 10);
    return figuresOf(GoalieProfileLines, FigureOf<GoalieStats>{player, goalie});
}

} // namespace

void PlayerProfiles::PlayersTeamSelect_Click() {
    if (PlayersTeamSelect == NotChosen)
        return;
    const Roster roster = readRoster(app_.files(), paths::playersList(TeamIndex(PlayersTeamSelect)));
    PlayersNameSelect = NotChosen;
    const auto players = listedPlayers(roster);
    content_ = {{players.begin(), players.end()}, std::nullopt};
    changed();
}

void PlayerProfiles::PlayersNameSelect_Click() {
    if (PlayersNameSelect == NotChosen)
        return;
    std::vector<Figure> figures = readFigures();
    const RosterRow& row = content_.roster.at(RosterIndex(PlayersNameSelect));
    const std::string card = playerCard(app_.files(), app_.platform(), row.Name, row.isGoalie());
    content_.player = Player{row, paths::page("PlayerCards/" + card + ".gif"), std::move(figures)};
    changed();
}

std::vector<PlayerProfiles::Figure> PlayerProfiles::readFigures() {
    const TeamIndex team(PlayersTeamSelect);
    const Roster roster = readRoster(app_.files(), paths::playersList(team));
    const TeamPlayerStats stats =
        readPlayerStats(app_.files(), paths::teamFile(team, part_, paths::PlayerStats), roster);
    const RosterIndex chosen(PlayersNameSelect);
    const RosterRow& row = content_.roster.at(chosen);
    return std::visit([&](const auto& line) { return shownFigures(row, line, part_); }, stats[chosen]);
}

void PlayerProfiles::readAgain() {
    if (content_.player)
        content_.player->figures = readFigures();
}

} // namespace iceline
