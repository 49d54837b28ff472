#include "games/GameReport.h"

#include "games/GameSheetReader.h"
#include "league/Numbers.h"

#include <algorithm>

namespace iceline {

namespace {

std::string shootingPct(const TeamGameStats& team) {
    if (team.Shots == 0)
        return "0.0%";
    return numberText(r1(static_cast<double>(team.Goals) / team.Shots * 100)) + "%";
}

std::string faceWinPct(const TeamGameStats& team, const TeamGameStats& other) {
    const int faceoffs = team.FaceoffsWon + other.FaceoffsWon;
    return faceoffs == 0 ? "0.000%" : numberText(pct(team.FaceoffsWon, faceoffs)) + "%";
}

std::string passAcc(const TeamGameStats& team) {
    return team.PassAtt == 0 ? "0.000" : numberText(pct(team.PassComp, team.PassAtt)) + "%";
}

void deriveTexts(TeamGameStats& team, const TeamGameStats& other) {
    team.ShootingPct = shootingPct(team);
    team.FaceWinPct = faceWinPct(team, other);
    team.PassAcc = passAcc(team);
    team.AttackZoneText = clockText(team.AttackZone);
}

GamePlayerRow playerRow(const TeamSheet& team, int row, const std::string& name) {
    return {name, team.G[row], team.A[row], team.G[row] + team.A[row], team.SOG[row], team.PIM[row]};
}

GameSide gameSide(const TeamSheet& team, const Roster& roster) {
    const TeamFigures& figures = team;
    GameSide side;
    side.team = team.team;
    static_cast<TeamFigures&>(side.stats) = figures;
    for (int row = 0; row < RosterRows; ++row)
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

GameRosters readRosters(Files& files, const SaveState& save) {
    return {readRoster(files, paths::playersList(save.team(Side::Home))),
            readRoster(files, paths::playersList(save.team(Side::Away)))};
}

GameReport gameReport(const SaveState& save, const GameRosters& rosters, int formerPeriod) {
    const GameSheet sheet = readGameSheet(save);
    GameReport report;
    report.home = gameSide(sheet.home, rosters.home);
    report.away = gameSide(sheet.away, rosters.away);
    deriveTexts(report.away.stats, report.home.stats);
    deriveTexts(report.home.stats, report.away.stats);
    report.goals = sheet.goals;
    report.penalties = sheet.penalties;
    report.GameLastPeriod = lastPeriod(report.goals, report.penalties, formerPeriod);
    report.FinalMark = report.GameLastPeriod < OvertimePeriod ? "F" : "F/OT";
    return report;
}

} // namespace iceline
