#include "league/GameSheet.h"

namespace iceline {

namespace {

int& at(TeamSheet::RowFigures& figures, int row) {
    return figures.at(static_cast<std::size_t>(row));
}

} // namespace

GameSheet::GameSheet(TeamIndex homeTeam, TeamIndex awayTeam) {
    home.team = homeTeam;
    away.team = awayTeam;
}

void GameSheet::addShot(Side side, int shooter) {
    TeamSheet& other = of(otherSide(side));
    ++of(side).Shots;
    ++at(of(side).SOG, shooter);
    ++other.SOG[other.goalie];
}

void GameSheet::addGoal(int period, int seconds, Side side, Strength strength, int scorer, int assist1,
                        int assist2) {
    addShot(side, scorer);
    goals.push_back({period, seconds, typeByte(side, static_cast<int>(strength)), scorer, assist1, assist2});
    TeamSheet& team = of(side);
    TeamSheet& other = of(otherSide(side));
    ++team.Goals;
    if (isPowerPlay(strength))
        ++team.PPG;
    ++at(team.G, scorer);
    for (const int assistant : {assist1, assist2})
        if (assistant != NoAssist)
            ++at(team.A, assistant);
    ++other.G[other.goalie];
}

void GameSheet::addPenalty(int period, int seconds, Side side, Infraction infraction, int player) {
    penalties.push_back({period, seconds, typeByte(side, static_cast<int>(infraction)), player});
    TeamSheet& team = of(side);
    ++team.Penalties;
    team.PenM += minutesOf(infraction);
    at(team.PIM, player) += minutesOf(infraction);
}

std::string scoreText(TeamIndex home, int homeGoals, TeamIndex away, int awayGoals) {
    return std::string(TeamName[home]) + " " + std::to_string(homeGoals) + ", " +
           std::string(TeamName[away]) + " " + std::to_string(awayGoals);
}

std::string scoreText(const GameSheet& game) {
    return scoreText(game.home.team, game.home.Goals, game.away.team, game.away.Goals);
}

} // namespace iceline
