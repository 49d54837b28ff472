#include "books/RecordsUpdate.h"

#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

Roster rosterOf(const std::string& team) {
    Roster roster;
    for (std::size_t row = 0; row < roster.size(); ++row) {
        roster[row].Name = team + std::to_string(row);
        roster[row].Position = row < 2 ? "G" : "F";
    }
    return roster;
}

const GameRosters Rosters{rosterOf("Boston "), rosterOf("Montreal ")};

std::string shown(const PlayerRecord& record) {
    return std::to_string(record.Team) + " " + record.Name + " " + std::to_string(record.Value);
}

template <class Records, class Kind>
std::string shown(const Records& records, Kind kind) {
    return shown(records[static_cast<std::size_t>(kind)]);
}

/// The records after a game, the home team's players first.
AllTimePlayerRecords after(const GameSheet& game, AllTimePlayerRecords records = {}) {
    updatePlayerRecords(records, game, Side::Home, Rosters);
    updatePlayerRecords(records, game, Side::Away, Rosters);
    return records;
}

AllTimeGoalieRecords goaliesAfter(const GameSheet& game) {
    AllTimeGoalieRecords records;
    updateGoalieRecords(records, game, Side::Home, Rosters);
    updateGoalieRecords(records, game, Side::Away, Rosters);
    return records;
}

TEST(PlayerRecords, FallToTheFirstWhoIsStrictlyGreater) {
    GameSheet game(Boston, Montreal);
    game.home.G[3] = game.home.G[7] = 4;
    game.away.G[2] = 4;
    game.away.A[9] = 5;
    AllTimePlayerRecords records;
    records[0] = {TeamIndex(7), "holder", 3};
    records[5] = {TeamIndex(7), "holder", 0};
    records = after(game, records);
    EXPECT_EQ(shown(records, PlayerRecordOf::Goals), "0 Boston 3 4");
    EXPECT_EQ(shown(records, PlayerRecordOf::Assists), "10 Montreal 9 5");
    EXPECT_EQ(shown(records, PlayerRecordOf::Points), "10 Montreal 9 5");
    EXPECT_EQ(shown(records, PlayerRecordOf::Shots), "7 holder 0") << "0 is not above 0";
}

TEST(PlayerRecords, AreNotTheGoalies) {
    GameSheet game(Boston, Montreal);
    game.home.G[0] = 9;
    game.home.PIM[1] = 10;
    const AllTimePlayerRecords records = after(game);
    EXPECT_EQ(shown(records, PlayerRecordOf::Goals), "0  0");
    EXPECT_EQ(shown(records, PlayerRecordOf::PenaltyMinutes), "0  0");
}

TEST(PlayerRecords, OfSpecialGoalsAreMetRowByRowTheAwayTeamFirst) {
    GameSheet game(Boston, Montreal);
    game.addGoal(1, 10, Side::Home, Strength::PowerPlay, 3);
    game.addGoal(1, 20, Side::Away, Strength::PowerPlay, 3);
    game.addGoal(1, 30, Side::Home, Strength::OneManShort, 5);
    game.addGoal(1, 40, Side::Away, Strength::OneManShort, 6);
    AllTimePlayerRecords records;
    updateSpecialGoalRecords(records, game, Rosters);
    EXPECT_EQ(shown(records, PlayerRecordOf::PowerPlayGoals), "10 Montreal 3 1");
    EXPECT_EQ(shown(records, PlayerRecordOf::ShorthandedGoals), "0 Boston 5 1");
}

TEST(GoalieRecords, CountSavesAndAskTheTeamForAShutout) {
    GameSheet game(Boston, Montreal);
    game.home.Goals = 3;
    game.home.SOG[0] = 30;
    game.away.SOG[1] = 40;
    game.away.G[1] = 3;
    game.away.A[1] = 1;
    const AllTimeGoalieRecords records = goaliesAfter(game);
    EXPECT_EQ(shown(records, GoalieRecordOf::Saves), "10 Montreal 1 37");
    EXPECT_EQ(shown(records, GoalieRecordOf::ShutoutSaves), "0 Boston 0 30");
    EXPECT_EQ(shown(records, GoalieRecordOf::GoalsAllowed), "10 Montreal 1 3");
    EXPECT_EQ(shown(records, GoalieRecordOf::ShotsFaced), "10 Montreal 1 40");
    EXPECT_EQ(shown(records, GoalieRecordOf::Assists), "10 Montreal 1 1");
}

TEST(GoalieRecords, AScorelessTieIsAShutoutForBoth) {
    GameSheet game(Boston, Montreal);
    game.home.SOG[0] = 20;
    game.away.SOG[0] = 21;
    const AllTimeGoalieRecords records = goaliesAfter(game);
    EXPECT_EQ(shown(records, GoalieRecordOf::ShutoutSaves), "10 Montreal 0 21");
}

class LeagueRecords : public testing::Test {
protected:
    void import(const GameCoaches& coaches) { updateLeagueRecords(teams, coachPairs, game, coaches); }

    GameSheet game{Boston, Montreal};
    AllTimeLeagueRecords teams = initialLeagueRecords();
    CoachesLeagueRecords coachPairs;
};

TEST_F(LeagueRecords, EachIsContestedByItsOwnFigure) {
    int figure = 100;
    for (int TeamSheet::*member :
         {&TeamSheet::PPAux, &TeamSheet::AuxFor, &TeamSheet::PairAMade, &TeamSheet::PairAAtt,
          &TeamSheet::PairBMade, &TeamSheet::PairBAtt, &TeamSheet::PairCAtt})
        game.away.*member = ++figure;
    for (int TeamFigures::*member :
         {&TeamFigures::Goals, &TeamFigures::Shots, &TeamFigures::BodyChecks, &TeamFigures::Penalties,
          &TeamFigures::PPG, &TeamFigures::PPA, &TeamFigures::PenM})
        game.away.*member = ++figure;
    import({});
    std::vector<int> values;
    for (const LeagueRecord& record : teams)
        values.push_back(record.Value);
    EXPECT_THAT(values, ElementsAre(108, 109, 110, 111, 112, 113, 101, 102, 103, 104, 105, 106, 80));
}

TEST_F(LeagueRecords, FallToTheAwayTeamWhereBothReachThem) {
    game.home.Shots = game.away.Shots = 30;
    game.home.PairBAtt = 4;
    import({});
    EXPECT_EQ(teams[1].Team, Montreal);
    EXPECT_EQ(teams[1].Value, 30);
    EXPECT_EQ(teams[11].Team, Boston);
    EXPECT_EQ(teams[11].Value, 4);
    EXPECT_EQ(coachPairs.pairs[1].Name, std::nullopt);
}

TEST_F(LeagueRecords, ACoachEntersWhenHisTeamBreaksOneAndStaysWhenAnotherTeamDoes) {
    game.home.Goals = 7;
    import({.home = "Ann", .away = "Bert"});
    EXPECT_EQ(coachPairs.pairs[0].Name, "Ann");
    EXPECT_EQ(coachPairs.pairs[0].Value, 7);

    game.away.Goals = 9;
    import({.home = "Ann", .away = std::nullopt});
    EXPECT_EQ(teams[0].Team, Montreal);
    EXPECT_EQ(teams[0].Value, 9);
    EXPECT_EQ(coachPairs.pairs[0].Name, "Ann");
    EXPECT_EQ(coachPairs.pairs[0].Value, 7);
}

TEST_F(LeagueRecords, TheCrowdIsTheHomeTeamsAndStartsAt80) {
    game.crowdMeter = 80;
    import({.home = "Ann", .away = "Bert"});
    EXPECT_EQ(coachPairs.pairs[12].Name, std::nullopt);
    game.crowdMeter = 81;
    import({.home = "Ann", .away = "Bert"});
    EXPECT_EQ(teams[12].Value, 81);
    EXPECT_EQ(teams[12].Team, Boston);
    EXPECT_EQ(coachPairs.pairs[12].Name, "Ann");
}

} // namespace
} // namespace iceline
