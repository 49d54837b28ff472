#include "games/GameReport.h"

#include "league/Numbers.h"

#include <algorithm>

namespace iceline {

namespace {

std::string shootingText(const TeamGameStats& team) {
    return team.Shots == 0 ? "0.0%" : numberText(shootingPct(team.Goals, team.Shots)) + "%";
}

std::string faceoffText(const TeamGameStats& team, const TeamGameStats& other) {
    const int faceoffs = team.FaceoffsWon + other.FaceoffsWon;
    return faceoffs == 0 ? "0.000%" : numberText(pct(team.FaceoffsWon, faceoffs)) + "%";
}

std::string passingText(const TeamGameStats& team) {
    return team.PassAtt == 0 ? "0.000" : numberText(pct(team.PassComp, team.PassAtt)) + "%";
}

void deriveTexts(TeamGameStats& team, const TeamGameStats& other) {
    team.ShootingPct = shootingText(team);
    team.FaceWinPct = faceoffText(team, other);
    team.PassAcc = passingText(team);
    team.AttackZoneText = clockText(team.AttackZone);
}

GamePlayerRow playerRow(const TeamSheet& team, RosterIndex row, const std::string& name) {
    return {name, team.G[row], team.A[row], team.G[row] + team.A[row], team.SOG[row], team.PIM[row]};
}

GameSide gameSide(const TeamSheet& team, const Roster& roster) {
    GameSide side;
    side.team = team.team;
    static_cast<TeamFigures&>(side.stats) = static_cast<const TeamFigures&>(team);
    for (const RosterIndex row : AllRosterRows)
        side.players[row] = playerRow(team, row, roster[row].Name);
    return side;
}

/// The last period that the summaries show: that of the last goal, or a later one of a penalty. A game
/// without goals begins from `former`, and with neither goals nor penalties stays there.
int lastPeriod(const std::vector<ScoringEntry>& goals, const std::vector<PenaltyEntry>& penalties,
               int former) {
    int period = goals.empty() ? former : goals.back().period;
    for (const PenaltyEntry& penalty : penalties)
        period = std::max(period, penalty.period);
    return period;
}

} // namespace

GameReport gameReport(const PlayedGame& game, int formerPeriod) {
    GameReport report;
    report.home = gameSide(game.sheet.home, game.rosters.home);
    report.away = gameSide(game.sheet.away, game.rosters.away);
    deriveTexts(report.away.stats, report.home.stats);
    deriveTexts(report.home.stats, report.away.stats);
    report.goals = game.sheet.goals;
    report.penalties = game.sheet.penalties;
    report.GameLastPeriod = lastPeriod(report.goals, report.penalties, formerPeriod);
    report.FinalMark = report.GameLastPeriod < OvertimePeriod ? "F" : "F/OT";
    return report;
}

} // namespace iceline
