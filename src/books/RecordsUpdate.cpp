#include "books/RecordsUpdate.h"

#include "books/PlayerStatsUpdate.h"

namespace iceline {

namespace {

template <class Records, class Kind>
auto& recordOf(Records& records, Kind kind) {
    return records[static_cast<std::size_t>(kind)];
}

/// A player of the game who may take records.
struct Contender {
    TeamIndex team;
    const std::string& name;

    void contest(PlayerRecord& record, int figure) const {
        if (figure > record.Value)
            record = {team, name, figure};
    }
};

/// The figures of the first twelve league records, in file order.
constexpr std::array<int TeamSheet::*, LeagueRecordCount - 1> LeagueRecordFigures{
    &TeamSheet::Goals,     &TeamSheet::Shots,    &TeamSheet::BodyChecks, &TeamSheet::Penalties,
    &TeamSheet::PPG,       &TeamSheet::PPA,      &TeamSheet::PPAux,      &TeamSheet::AuxFor,
    &TeamSheet::PairAMade, &TeamSheet::PairAAtt, &TeamSheet::PairBMade,  &TeamSheet::PairBAtt};

void contest(LeagueRecord& record, CoachRecord& coachRecord, TeamIndex team,
             const std::optional<std::string>& coach, int figure) {
    if (figure <= record.Value)
        return;
    record = {team, figure};
    if (coach)
        coachRecord = {coach, figure};
}

} // namespace

void updateSpecialGoalRecords(AllTimePlayerRecords& records, const GameSheet& game,
                              const GameRosters& rosters) {
    const SpecialGoals homeGoals = specialGoals(game, Side::Home);
    const SpecialGoals awayGoals = specialGoals(game, Side::Away);
    PlayerRecord& shorthanded = recordOf(records, PlayerRecordOf::ShorthandedGoals);
    PlayerRecord& powerPlay = recordOf(records, PlayerRecordOf::PowerPlayGoals);
    for (int row = 0; row < RosterRows; ++row) {
        const Contender homePlayer{game.home.team, rosters.home[row].Name};
        const Contender awayPlayer{game.away.team, rosters.away[row].Name};
        awayPlayer.contest(shorthanded, awayGoals.shorthanded[row]);
        homePlayer.contest(shorthanded, homeGoals.shorthanded[row]);
        awayPlayer.contest(powerPlay, awayGoals.powerPlay[row]);
        homePlayer.contest(powerPlay, homeGoals.powerPlay[row]);
    }
}

void updatePlayerRecords(AllTimePlayerRecords& records, const GameSheet& game, Side side,
                         const GameRosters& rosters) {
    const TeamSheet& team = game.of(side);
    const Roster& roster = rosters.of(side);
    for (int row = 0; row < RosterRows; ++row) {
        if (roster[row].isGoalie())
            continue;
        const Contender skater{team.team, roster[row].Name};
        skater.contest(recordOf(records, PlayerRecordOf::Goals), team.G[row]);
        skater.contest(recordOf(records, PlayerRecordOf::Assists), team.A[row]);
        skater.contest(recordOf(records, PlayerRecordOf::Points), team.G[row] + team.A[row]);
        skater.contest(recordOf(records, PlayerRecordOf::Shots), team.SOG[row]);
        skater.contest(recordOf(records, PlayerRecordOf::PenaltyMinutes), team.PIM[row]);
    }
}

void updateGoalieRecords(AllTimeGoalieRecords& records, const GameSheet& game, Side side,
                         const GameRosters& rosters) {
    const TeamSheet& team = game.of(side);
    const Roster& roster = rosters.of(side);
    const bool shutout = game.of(otherSide(side)).Goals == 0;
    for (int row = 0; row < RosterRows; ++row) {
        if (!roster[row].isGoalie())
            continue;
        const Contender goalie{team.team, roster[row].Name};
        const int saves = team.SOG[row] - team.G[row];
        goalie.contest(recordOf(records, GoalieRecordOf::Saves), saves);
        if (shutout)
            goalie.contest(recordOf(records, GoalieRecordOf::ShutoutSaves), saves);
        goalie.contest(recordOf(records, GoalieRecordOf::GoalsAllowed), team.G[row]);
        goalie.contest(recordOf(records, GoalieRecordOf::ShotsFaced), team.SOG[row]);
        goalie.contest(recordOf(records, GoalieRecordOf::Assists), team.A[row]);
    }
}

void updateLeagueRecords(AllTimeLeagueRecords& records, CoachesLeagueRecords& coachRecords,
                         const GameSheet& game, const GameCoaches& coaches) {
    for (std::size_t i = 0; i < LeagueRecordFigures.size(); ++i)
        for (const Side side : {Side::Away, Side::Home})
            contest(records[i], coachRecords.pairs[i], game.of(side).team, coaches.of(side),
                    game.of(side).*LeagueRecordFigures[i]);
    contest(recordOf(records, LeagueRecordOf::CrowdMeter),
            recordOf(coachRecords.pairs, LeagueRecordOf::CrowdMeter), game.home.team, coaches.home,
            game.crowdMeter);
}

} // namespace iceline
