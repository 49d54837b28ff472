#include "books/RecordsUpdate.h"

#include "books/PlayerStatsUpdate.h"

#include <array>

namespace iceline {

namespace {

/// A record of players and the figure of a game that contests it.
template <class Kind>
struct PlayerContest {
    Kind record;
    int (*figure)(const PlayerGame&);
};

using SkaterContest = PlayerContest<PlayerRecordOf>;
using GoalieContest = PlayerContest<GoalieRecordOf>;

template <int PlayerGame::*Figure>
int figureOf(const PlayerGame& game) {
    return game.*Figure;
}

int pointsOf(const PlayerGame& game) {
    return game.goals + game.assists;
}

int savesOf(const PlayerGame& game) {
    return game.shots - game.goals;
}

constexpr std::array SkaterContests{
    SkaterContest{PlayerRecordOf::Goals, figureOf<&PlayerGame::goals>},
    SkaterContest{PlayerRecordOf::Assists, figureOf<&PlayerGame::assists>},
    SkaterContest{PlayerRecordOf::Points, pointsOf},
    SkaterContest{PlayerRecordOf::Shots, figureOf<&PlayerGame::shots>},
    SkaterContest{PlayerRecordOf::PenaltyMinutes, figureOf<&PlayerGame::penaltyMinutes>},
};

constexpr std::array SpecialGoalContests{
    SkaterContest{PlayerRecordOf::ShorthandedGoals, figureOf<&PlayerGame::shorthandedGoals>},
    SkaterContest{PlayerRecordOf::PowerPlayGoals, figureOf<&PlayerGame::powerPlayGoals>},
};

static_assert(SkaterContests.size() + SpecialGoalContests.size() == PlayerRecordCount);

constexpr std::array GoalieContests{
    GoalieContest{GoalieRecordOf::Saves, savesOf},
    GoalieContest{GoalieRecordOf::GoalsAllowed, figureOf<&PlayerGame::goals>},
    GoalieContest{GoalieRecordOf::ShotsFaced, figureOf<&PlayerGame::shots>},
    GoalieContest{GoalieRecordOf::Assists, figureOf<&PlayerGame::assists>},
};

constexpr std::array ShutoutContests{
    GoalieContest{GoalieRecordOf::ShutoutSaves, savesOf},
};

static_assert(GoalieContests.size() + ShutoutContests.size() == GoalieRecordCount);

/// A record of teams and the figure of a game that contests it.
struct TeamContest {
    LeagueRecordOf record;
    int TeamSheet::*figure;
};

constexpr std::array TeamContests{
    TeamContest{LeagueRecordOf::Goals, &TeamSheet::Goals},
    TeamContest{LeagueRecordOf::Shots, &TeamSheet::Shots},
    TeamContest{LeagueRecordOf::BodyChecks, &TeamSheet::BodyChecks},
    TeamContest{LeagueRecordOf::Penalties, &TeamSheet::Penalties},
    TeamContest{LeagueRecordOf::PowerPlayGoals, &TeamSheet::PPG},
    TeamContest{LeagueRecordOf::PowerPlays, &TeamSheet::PPA},
    TeamContest{LeagueRecordOf::PPAux, &TeamSheet::PPAux},
    TeamContest{LeagueRecordOf::AuxFor, &TeamSheet::AuxFor},
    TeamContest{LeagueRecordOf::PairAMade, &TeamSheet::PairAMade},
    TeamContest{LeagueRecordOf::PairAAtt, &TeamSheet::PairAAtt},
    TeamContest{LeagueRecordOf::PairBMade, &TeamSheet::PairBMade},
    TeamContest{LeagueRecordOf::PairBAtt, &TeamSheet::PairBAtt},
};

/// All but the crowd meter, which is no team's figure.
static_assert(TeamContests.size() == LeagueRecordCount - 1);

/// A player of the game who may take records.
struct Contender {
    TeamIndex team;
    const std::string& name;
    PlayerGame game;

    template <class Records, class Contests>
    void contest(Records& records, const Contests& contests) const {
        for (const auto& [kind, figure] : contests) {
            PlayerRecord& record = recordOf(records, kind);
            if (figure(game) > record.Value)
                record = {team, name, figure(game)};
        }
    }
};

/// The players of one side of a game.
class Contenders {
public:
    Contenders(const GameSheet& game, Side side, const GameRosters& rosters)
        : team_(game.of(side)), special_(specialGoals(game, side)), roster_(rosters.of(side)) {}

    Contender operator[](RosterIndex row) const {
        return {team_.team, roster_[row].Name, playerGame(team_, special_, row)};
    }

    bool isGoalie(RosterIndex row) const { return roster_[row].isGoalie(); }

private:
    const TeamSheet& team_;
    SpecialGoals special_;
    const Roster& roster_;
};

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
    const Contenders home(game, Side::Home, rosters);
    const Contenders away(game, Side::Away, rosters);
    for (const RosterIndex row : AllRosterRows) {
        away[row].contest(records, SpecialGoalContests);
        home[row].contest(records, SpecialGoalContests);
    }
}

void updatePlayerRecords(AllTimePlayerRecords& records, const GameSheet& game, Side side,
                         const GameRosters& rosters) {
    const Contenders players(game, side, rosters);
    for (const RosterIndex row : AllRosterRows)
        if (!players.isGoalie(row))
            players[row].contest(records, SkaterContests);
}

void updateGoalieRecords(AllTimeGoalieRecords& records, const GameSheet& game, Side side,
                         const GameRosters& rosters) {
    const Contenders players(game, side, rosters);
    const bool shutout = game.of(otherSide(side)).Goals == 0;
    for (const RosterIndex row : AllRosterRows) {
        if (!players.isGoalie(row))
            continue;
        players[row].contest(records, GoalieContests);
        if (shutout)
            players[row].contest(records, ShutoutContests);
    }
}

void updateLeagueRecords(AllTimeLeagueRecords& records, CoachesLeagueRecords& coachRecords,
                         const GameSheet& game, const GameCoaches& coaches) {
    for (const auto& [kind, figure] : TeamContests)
        for (const Side side : {Side::Away, Side::Home})
            contest(recordOf(records, kind), recordOf(coachRecords.pairs, kind), game.of(side).team,
                    coaches.of(side), game.of(side).*figure);
    contest(recordOf(records, LeagueRecordOf::CrowdMeter),
            recordOf(coachRecords.pairs, LeagueRecordOf::CrowdMeter), game.home.team, coaches.home,
            game.crowdMeter);
}

} // namespace iceline
