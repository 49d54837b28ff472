#include "books/TeamRecordUpdate.h"

#include "support/NumberedRecord.h"
#include "support/Test.h"

#include <limits>

namespace iceline {
namespace {

using namespace test;

GameSheet game(TeamIndex home, int homeGoals, TeamIndex away, int awayGoals) {
    GameSheet sheet(home, away);
    sheet.home.Goals = homeGoals;
    sheet.away.Goals = awayGoals;
    return sheet;
}

/// A game whose figures all differ.
GameSheet busyGame(TeamIndex home, int homeGoals, TeamIndex away) {
    GameSheet sheet(home, away);
    const auto set = [](TeamSheet& team, const TeamFigures& figures, const std::array<int, 8>& secondBlock) {
        static_cast<TeamFigures&>(team) = figures;
        constexpr std::array Fields{&TeamSheet::PPAux,     &TeamSheet::AuxFor,   &TeamSheet::PairAAtt,
                                    &TeamSheet::PairAMade, &TeamSheet::PairBAtt, &TeamSheet::PairBMade,
                                    &TeamSheet::PairCAtt,  &TeamSheet::PairCMade};
        for (std::size_t field = 0; field < Fields.size(); ++field)
            team.*Fields[field] = secondBlock[field];
    };
    set(sheet.home, {31, 2, 5, 8, 9, 605, homeGoals, 20, 11, 90, 61}, {4, 6, 8, 7, 12, 10, 14, 13});
    set(sheet.away, {25, 1, 16, 18, 18, 300, 1, 21, 22, 88, 23}, {24, 26, 28, 27, 31, 29, 33, 32});
    sheet.awayPPTime = 131;
    sheet.crowdMeter = 97;
    return sheet;
}

TeamRecord after(const GameSheet& sheet, Side side, TeamRecord record = {}, bool overtime = false,
                 RecordHolder holder = RecordHolder::Team) {
    updateTeamRecord(record, sheet, side, overtime, holder);
    return record;
}

/// A game on top of a line in which every field holds its own place, 1 to 113, and a real number a half more.
/// All that the game does not move stays, and hardly a quotient is even.
TEST(TeamRecordUpdate, AGameMovesTheseFieldsOfTheLine) {
    auto before = numberedRecord<TeamRecord>();
    before.ArenaMeter = CrowdMeterAtStart;
    EXPECT_EQ(lineOf("", after(busyGame(Boston, 3, Montreal), Side::Home, before)),
              R"(2,2,3,6,0.286,7,10,9,1.43,1.29,0.14,2.06,14,"",16,16,17,19,0.842,23,22,1.21,1.16,)"
              R"(0.05,16.06,26,27,28,29,30.5,31,32,33.5,34.5,-1,24.62,37,38,39,40,41,42,43.5,44,76,)"
              R"(10.9,72,10.3,13.2,52,7.4,57,8.1,91.2,55,56.5,0,62,8.9,68,10,71.5,10.2,82.5,11.8,)"
              R"(84.5,12.1,69,9.9,86,12.3,19.8,79,11.3,101.5,14.5,84,12,87,12.4,96.6,92,13.1,96,13.7,)"
              R"(95.8,100,14.3,103,14.7,97.1,697,99.5714285714286,"1:40",115,16.4,138,19.7,83.3,111,)"
              R"(15.9,163,23.3,194,27.7,84,97,109.5,109.5,110.5,111.5,112.5,113.5)"
              "\r\n")
        << "a team wins at home within its conference";
    EXPECT_EQ(
        lineOf("", after(busyGame(Calgary, 3, Montreal), Side::Away, before, true, RecordHolder::Coach)),
        R"(1,3,3,4,0.143,7,8,11,1.14,1.57,-0.43,0.88,14,"L",15,16,17,18,19.5,20,21,22.5,23.5,)"
        R"(-1,13.69,26,28,28,30,0.867,32,35,1.07,1.17,-0.1,25.87,37,38,39,40,42,42,0.889,45,70,)"
        R"(10,78,11.1,11.4,51,7.3,68,9.7,75,186,26.6,"0:27",82,11.7,78,11.1,80.5,11.5,72.5,)"
        R"(10.4,75.5,10.8,70,10,75,10.7,6.7,99,14.1,75.5,76.5,104,14.9,107,15.3,97.2,111,15.9,)"
        R"(115,16.4,96.5,119,17,122,17.4,97.5,392,56,"0:56",116,16.6,138,19.7,84.1,122,17.4,)"
        R"(125,17.9,192,27.4,65.1,80,108.5,109.5,110.5,111.5,113.5,113.5)"
        "\r\n")
        << "a coach loses away, in overtime, against the other conference";
    EXPECT_EQ(lineOf("", after(busyGame(Boston, 1, Calgary), Side::Home, before, true)),
              R"(1,2,4,5,0.143,7,8,9,1.14,1.29,-0.15,0.95,14,"",15,16,18,19,0.789,21,22,1.11,1.16,)"
              R"(-0.05,14.94,26,27,28,29,30.5,31,32,33.5,34.5,-1,24.62,37,38,39,40,41,43,0.889,45,76,)"
              R"(10.9,72,10.3,10.5,52,7.4,57,8.1,91.2,55,56.5,0,62,8.9,68,10,71.5,10.2,82.5,11.8,)"
              R"(84.5,12.1,69,9.9,86,12.3,19.8,79,11.3,101.5,14.5,84,12,87,12.4,96.6,92,13.1,96,13.7,)"
              R"(95.8,100,14.3,103,14.7,97.1,697,99.5714285714286,"1:40",115,16.4,138,19.7,83.3,111,)"
              R"(15.9,163,23.3,194,27.7,84,97,108.5,109.5,110.5,111.5,112.5,114.5)"
              "\r\n")
        << "a team ties at home, in overtime, against the other conference";
}

TEST(TeamRecordUpdate, APowerRankingRoundsATieToTheEvenDigit) {
    // In four games a win, a tie, two goals for and six against: 1 + 3 / 8 x -1 = 0.625.
    TeamRecord before;
    before.GP = 3;
    before.Wins = before.Ties = 1;
    before.Points = 3;
    before.GF = 2;
    before.GA = 5;
    const TeamRecord record = after(game(Boston, 0, Montreal, 1), Side::Home, before);
    EXPECT_EQ(record.Diff, -1);
    EXPECT_EQ(record.PowerRanking, 0.62);
    EXPECT_EQ(record.WinPercent, 0.25);
}

TEST(TeamRecordUpdate, NothingTriedGivesZeroPercent) {
    TeamRecord before;
    before.AGFA = 4.5; // without an away game
    before.ArenaMeter = 104;
    GameSheet sheet = game(Boston, 0, Montreal, 0);
    sheet.home.PPG = 1; // though no goal is counted
    sheet.crowdMeter = 97;
    const TeamRecord record = after(sheet, Side::Home, before);
    EXPECT_EQ(record.SOGPct, 0);
    EXPECT_EQ(record.PPGPG, 0);
    EXPECT_EQ(record.PPPct, 0);
    EXPECT_EQ(record.PKPct, 0);
    EXPECT_EQ(record.FOWPct, 0);
    EXPECT_EQ(record.PassAcc, 0);
    EXPECT_EQ(record.AwayDiff, 0);
    EXPECT_EQ(record.AwayPowerRanking, 0);
    EXPECT_EQ(record.AttZonePG, "0:00");
    EXPECT_EQ(record.PPTimePGText, RawItem()) << "only the away side has power-play time";
    EXPECT_EQ(record.OTGP, 0);
    EXPECT_EQ(record.ArenaMeter, 104);
    EXPECT_EQ(after(sheet, Side::Home, before, false, RecordHolder::Coach).SOGPct, 0);
}

TEST(TeamRecordUpdate, ASumThatTheFileCannotHoldIsAnError) {
    TeamRecord full;
    full.SOG = std::numeric_limits<int>::max() - 30;
    updateTeamRecord(full, busyGame(Boston, 3, Montreal), Side::Home, false, RecordHolder::Team);
    EXPECT_EQ(
        errorMessage([&] { lineOf("Boston Bruins/Records.txt", full); }),
        "Boston Bruins/Records.txt, line 1, item 45 (SOG): 2147483647 is more than the league's files can "
        "hold");
}

TEST(StreakUpdate, ARunLengthensWithItsLetterAndBeginsAgainWithAnother) {
    Streak streak;
    updateStreak(streak, "W");
    EXPECT_EQ(streak, (Streak{"W", 1}));
    updateStreak(streak, "W");
    EXPECT_EQ(streak, (Streak{"W", 2}));
    updateStreak(streak, "T");
    EXPECT_EQ(streak, (Streak{"T", 1}));
    updateStreak(streak, "T");
    EXPECT_EQ(streak, (Streak{"T", 2}));
}

} // namespace
} // namespace iceline
