#include "capture/GameReport.h"

#include "store/Numbers.h"

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

TeamGameStats teamFigures(const SaveState& save, Side side) {
    using namespace SaveStateMap;
    TeamGameStats team;
    team.Shots = save.figure(side, Shots);
    team.PPG = save.figure(side, PPG);
    team.PPA = save.figure(side, PPA);
    team.Penalties = save.figure(side, Penalties);
    team.PenM = save.figure(side, PenM);
    team.AttackZone = save.figure(side, AttackZoneHigh) * 256 + save.figure(side, AttackZoneLow);
    team.Goals = save.figure(side, Goals);
    team.FaceoffsWon = save.figure(side, FaceoffsWon);
    team.BodyChecks = save.figure(side, BodyChecks);
    team.PassAtt = save.figure(side, PassAtt);
    team.PassComp = save.figure(side, PassComp);
    return team;
}

void deriveTexts(TeamGameStats& team, const TeamGameStats& other) {
    team.ShootingPct = shootingPct(team);
    team.FaceWinPct = faceWinPct(team, other);
    team.PassAcc = passAcc(team);
    team.AttackZoneText = clockText(team.AttackZone);
}

GamePlayerRow playerRow(const SaveState& save, Side side, int row, const std::string& name) {
    GamePlayerRow player;
    player.Name = name;
    player.G = save.figure(side, SaveStateMap::PlayerGoals + row);
    player.A = save.figure(side, SaveStateMap::PlayerAssists + row);
    player.Pts = player.G + player.A;
    player.SOG = save.figure(side, SaveStateMap::PlayerShots + row);
    player.PIM = save.figure(side, SaveStateMap::PlayerPenM + row);
    return player;
}

GameSide gameSide(const SaveState& save, Side side, const Roster& roster) {
    GameSide team;
    team.team = save.team(side);
    team.stats = teamFigures(save, side);
    for (int row = 0; row < RosterRows; ++row)
        team.players[row] = playerRow(save, side, row, roster[row].Name);
    return team;
}

} // namespace

GameRosters readRosters(Files& files, const SaveState& save) {
    return {readRoster(files, paths::playersList(save.team(Side::Home))),
            readRoster(files, paths::playersList(save.team(Side::Away)))};
}

int lastPeriod(const std::vector<ScoringEntry>& goals, const std::vector<PenaltyEntry>& penalties,
               int former) {
    int period = goals.empty() ? former : goals.back().period;
    for (const PenaltyEntry& penalty : penalties)
        period = std::max(period, penalty.period);
    return period;
}

GameReport gameReport(const SaveState& save, const GameRosters& rosters, int formerPeriod) {
    GameReport report;
    report.home = gameSide(save, Side::Home, rosters.home);
    report.away = gameSide(save, Side::Away, rosters.away);
    deriveTexts(report.away.stats, report.home.stats);
    deriveTexts(report.home.stats, report.away.stats);
    report.goals = save.scoringEntries();
    report.penalties = save.penaltyEntries();
    report.GameLastPeriod = lastPeriod(report.goals, report.penalties, formerPeriod);
    report.FinalMark = report.GameLastPeriod < OvertimePeriod ? "F" : "F/OT";
    return report;
}

} // namespace iceline
