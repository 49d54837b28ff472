#include "books/PlayerStatsUpdate.h"

#include "league/Numbers.h"

namespace iceline {

namespace {

/// The parts of a skater's line that a rating is made of: what he has done, and how often.
double skaterTotals(const SkaterStats& line) {
    return 0.1 * line.GP + 0.3 * line.G + 0.2 * line.A + 0.6 * line.Pts - 0.5 * line.PIM + 0.15 * line.SOG +
           0.15 * line.SHG;
}

double skaterAverages(const SkaterStats& line, int seasonLength) {
    const double seasonPlayed = seasonLength == 0 ? 0 : static_cast<double>(line.GP) / seasonLength;
    return 0.4 * line.GPG + 0.3 * line.APG + 0.8 * line.PtsPG - 0.45 * line.PIMPG +
           0.3 * (line.ShotPct / 10) - 0.35 * seasonPlayed;
}

double goalieRating(const GoalieStats& line, double savesBefore, int seasonLength) {
    if (line.GP == 0 || seasonLength == 0)
        return 0;
    const double sum = 70 * savesBefore + 0.1 * line.SA / line.GP + -2 * line.GAA +
                       10 * (line.GW + 0.5 * line.GT) / line.GP + 0.1 * line.GP / seasonLength +
                       0.15 * line.SO;
    return r3(sum / 10);
}

} // namespace

SpecialGoals specialGoals(const GameSheet& game, Side side) {
    SpecialGoals goals;
    for (const ScoringEntry& goal : game.goals) {
        const auto scorer = rosterRow(goal.scorer);
        const auto strength = strengthOf(goal.type);
        if (!scorer || !strength || sideOf(goal.type) != side)
            continue;
        goals.shorthanded[*scorer] += isShorthanded(*strength);
        goals.powerPlay[*scorer] += isPowerPlay(*strength);
    }
    return goals;
}

PlayerGame playerGame(const TeamSheet& team, const SpecialGoals& special, RosterIndex row) {
    return {team.G[row],
            team.A[row],
            team.SOG[row],
            team.PIM[row],
            special.powerPlay[row],
            special.shorthanded[row]};
}

void updateSkater(SkaterStats& line, const PlayerGame& game, int seasonLength) {
    line.GP += game.hasPlayed();
    line.G += game.goals;
    line.A += game.assists;
    line.SOG += game.shots;
    line.PIM += game.penaltyMinutes;
    line.PPG += game.powerPlayGoals;
    line.SHG += game.shorthandedGoals;

    line.Pts = line.G + line.A;
    line.ShotPct = shootingPct(line.G, line.SOG);
    line.GPG = r2(perGame(line.G, line.GP));
    line.APG = r2(perGame(line.A, line.GP));
    line.SOGPG = r2(perGame(line.SOG, line.GP));
    line.PIMPG = r2(perGame(line.PIM, line.GP));
    line.PtsPG = r2(perGame(line.Pts, line.GP));
    line.Rating =
        line.GP == 0 ? 0 : r3((0.2 * skaterTotals(line) + 0.8 * skaterAverages(line, seasonLength)) / 2);
}

void updateGoalie(GoalieStats& line, const PlayerGame& game, int ownGoals, int otherGoals, int seasonLength) {
    const double savesBefore = line.SvPct;
    line.SO += game.goals == 0 && (game.shots != 0 || game.penaltyMinutes != 0);
    line.GP += game.hasPlayed();
    line.GA += game.goals;
    line.A += game.assists;
    line.SA += game.shots;
    line.PPG += game.powerPlayGoals;
    line.SHG += game.shorthandedGoals;
    if (game.hasPlayed())
        ++(ownGoals > otherGoals ? line.GW : ownGoals < otherGoals ? line.GL : line.GT);

    if (line.GP != 0)
        line.GAA = r2(perGame(line.GA, line.GP));
    if (line.SA != 0)
        line.SvPct = r3(static_cast<double>(line.SA - line.GA) / line.SA);
    line.Rating = goalieRating(line, savesBefore, seasonLength);
    line.Unused11 = 0;
    line.Unused14 = 0;
}

void updatePlayerStats(TeamPlayerStats& stats, const GameSheet& game, Side side, int seasonLength) {
    const TeamSheet& own = game.of(side);
    const int otherGoals = game.of(otherSide(side)).Goals;
    const SpecialGoals special = specialGoals(game, side);
    for (const RosterIndex row : AllRosterRows) {
        const PlayerGame player = playerGame(own, special, row);
        if (auto* goalie = std::get_if<GoalieStats>(&stats[row]))
            updateGoalie(*goalie, player, own.Goals, otherGoals, seasonLength);
        else
            updateSkater(std::get<SkaterStats>(stats[row]), player, seasonLength);
    }
}

} // namespace iceline
