#include "books/TeamRecordUpdate.h"

#include "support/ErrorMessage.h"

#include <gmock/gmock.h>

#include <limits>
#include <vector>

namespace iceline {
namespace {

constexpr TeamIndex Boston{0};    // Wales
constexpr TeamIndex Montreal{10}; // Wales
constexpr TeamIndex Calgary{2};   // Campbell

GameSheet game(TeamIndex home, int homeGoals, TeamIndex away, int awayGoals) {
    GameSheet sheet(home, away);
    sheet.home.Goals = homeGoals;
    sheet.away.Goals = awayGoals;
    return sheet;
}

TeamRecord after(const GameSheet& sheet, Side side, TeamRecord record = {}, bool overtime = false,
                 RecordHolder holder = RecordHolder::Team) {
    updateTeamRecord(record, sheet, side, overtime, holder);
    return record;
}

TEST(TeamRecordUpdate, AHomeWinMovesTheHomeFieldsOfTheOneAndTheAwayFieldsOfTheOther) {
    const GameSheet sheet = game(Boston, 3, Montreal, 2);
    const TeamRecord home = after(sheet, Side::Home);
    EXPECT_EQ(home.Wins, 1);
    EXPECT_EQ(home.HW, 1);
    EXPECT_EQ(home.Points, 2);
    EXPECT_EQ(home.GP, 1);
    EXPECT_EQ(home.HGP, 1);
    EXPECT_EQ(home.GameCount, 1);
    EXPECT_EQ(home.GF, 3);
    EXPECT_EQ(home.HGF, 3);
    EXPECT_EQ(home.HGA, 2);
    EXPECT_EQ(home.AGP, 0);
    EXPECT_EQ(home.AGF, 0);
    EXPECT_EQ(home.SameConfW, 1);
    EXPECT_EQ(home.OTGP, 0);
    EXPECT_EQ(home.HWinPercent, 1);
    EXPECT_EQ(home.PowerRanking, 2);     // 1 + 2/2 x 1
    EXPECT_EQ(home.HomePowerRanking, 2); // the same at home
    EXPECT_EQ(home.AwayPowerRanking, 0);

    const TeamRecord away = after(sheet, Side::Away);
    EXPECT_EQ(away.Losses, 1);
    EXPECT_EQ(away.AL, 1);
    EXPECT_EQ(away.HL, 0);
    EXPECT_EQ(away.Points, 0);
    EXPECT_EQ(away.GA, 3);
    EXPECT_EQ(away.AGA, 3);
    EXPECT_EQ(away.AGP, 1);
    EXPECT_EQ(away.HGP, 0);
    EXPECT_EQ(away.SameConfL, 1);
    EXPECT_EQ(away.AwayDiff, -1);
    EXPECT_EQ(away.HomeDiff, 0);
    EXPECT_EQ(away.PowerRanking, 0);
}

TEST(TeamRecordUpdate, AnOvertimeTieCountsInPointsAndInOvertime) {
    TeamRecord before;
    before.GP = before.Wins = before.OTGP = before.OTW = 1;
    before.Points = 2;
    before.OTWPct = 1;
    const GameSheet sheet = game(Boston, 2, Calgary, 2);
    for (const Side side : {Side::Home, Side::Away}) {
        const TeamRecord record = after(sheet, side, before, true);
        EXPECT_EQ(record.Ties, 1);
        EXPECT_EQ(record.Points, 3);
        EXPECT_EQ(record.OTGP, 2);
        EXPECT_EQ(record.OTT, 1);
        EXPECT_EQ(record.OTWPct, 0.5);
        EXPECT_EQ(record.WinPercent, 0.5);
        EXPECT_EQ(record.OtherConfT, 1);
        EXPECT_EQ(record.SameConfT, 0);
    }
    EXPECT_EQ(after(sheet, Side::Home, before).OTGP, 1) << "a game without overtime moves no overtime field";
}

TEST(TeamRecordUpdate, AnOvertimeLossBringsNoPoint) {
    const TeamRecord record = after(game(Boston, 1, Calgary, 2), Side::Home, {}, true);
    EXPECT_EQ(record.OTL, 1);
    EXPECT_EQ(record.Losses, 1);
    EXPECT_EQ(record.Points, 0);
    EXPECT_EQ(record.OtherConfL, 1);
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

TEST(TeamRecordUpdate, TheFieldsOfTheOtherLocationAreRenewedFromTheirOwnGames) {
    TeamRecord before;
    before.GP = before.AGP = 2;
    before.AW = before.AT = 1;
    before.AGFA = 4.5;
    before.AGAA = 2.25;
    const TeamRecord record = after(game(Boston, 1, Montreal, 1), Side::Home, before);
    EXPECT_EQ(record.AwayDiff, 2.25);
    EXPECT_EQ(record.AwayPowerRanking, 2.69); // 1 + 3 / 4 x 2.25 = 2.6875
    EXPECT_EQ(record.AGP, 2);
}

GameSheet busyGame() {
    GameSheet sheet = game(Boston, 3, Montreal, 1);
    sheet.home.Shots = 30;
    sheet.home.PPG = 1;
    sheet.home.PPA = 3;
    sheet.home.Penalties = 3;
    sheet.home.PenM = 9;
    sheet.home.AttackZone = 605;
    sheet.home.FaceoffsWon = 20;
    sheet.home.BodyChecks = 11;
    sheet.home.PassAtt = 90;
    sheet.home.PassComp = 61;
    sheet.home.PPAux = 4;
    sheet.home.AuxFor = 5;
    sheet.home.PairAAtt = 3;
    sheet.home.PairAMade = 2;
    sheet.away.Shots = 25;
    sheet.away.PPG = 1;
    sheet.away.PPA = 6;
    sheet.away.Penalties = 4;
    sheet.away.PenM = 8;
    sheet.away.FaceoffsWon = 21;
    sheet.away.AuxFor = 7;
    sheet.awayPPTime = 131;
    return sheet;
}

TEST(TeamRecordUpdate, EveryFigureOfTheGameIsSummedAndAveraged) {
    TeamRecord before;
    before.GP = 1;
    before.GF = 1;
    before.SOG = 21;
    before.Pen = 2;
    before.AttZone = 95;
    const TeamRecord record = after(busyGame(), Side::Home, before);
    EXPECT_EQ(record.SOG, 51);
    EXPECT_EQ(record.SOGPG, 25.5);
    EXPECT_EQ(record.SOGA, 25);
    EXPECT_EQ(record.SOGAPG, 12.5);
    EXPECT_EQ(record.SOGPct, 7.8); // 4 of 51
    EXPECT_EQ(record.PPGPG, 0.5);
    EXPECT_NEAR(record.PPPct, 33.3, 1e-9);
    EXPECT_EQ(record.PPAux, 4);
    EXPECT_EQ(record.Pen, 5);
    EXPECT_EQ(record.PenPG, 2) << "2.5, held as a whole number";
    EXPECT_EQ(record.PIM, 9);
    EXPECT_EQ(record.PIMPG, 4.5);
    EXPECT_EQ(record.PenA, 4);
    EXPECT_EQ(record.PIMA, 8);
    EXPECT_EQ(record.PKG, 1);
    EXPECT_EQ(record.PKO, 6);
    EXPECT_EQ(record.PKOPG, 3);
    EXPECT_NEAR(record.PKPct, 83.3, 1e-9);
    EXPECT_EQ(record.AuxFor, 5);
    EXPECT_EQ(record.AuxAgainst, 7);
    EXPECT_EQ(record.AuxAgainstPG, 3.5);
    EXPECT_NEAR(record.PairAPct, 66.7, 1e-9);
    EXPECT_EQ(record.PairBPct, 0);
    EXPECT_EQ(record.AttZone, 700);
    EXPECT_EQ(record.AttZoneSecPG, 350);
    EXPECT_EQ(record.AttZonePG, "5:50");
    EXPECT_EQ(record.FOW, 20);
    EXPECT_EQ(record.FOT, 41);
    EXPECT_NEAR(record.FOWPct, 48.8, 1e-9);
    EXPECT_EQ(record.ByCksPG, 5.5);
    EXPECT_NEAR(record.PassAcc, 67.8, 1e-9);
    EXPECT_EQ(record.LastResult, "");
    EXPECT_EQ(record.ArenaMeter, 80);
}

TEST(TeamRecordUpdate, UnevenAveragesAreRoundedEachToItsOwnDecimals) {
    TeamRecord before;
    before.GP = before.AGP = 2;
    before.Wins = before.AW = 1;
    before.GF = before.AGF = 4;
    GameSheet sheet = busyGame();
    sheet.away.Goals = 4;
    sheet.away.AttackZone = 200;
    const TeamRecord away = after(sheet, Side::Away, before, true);
    EXPECT_EQ(away.GFA, 2.67);
    EXPECT_EQ(away.AGFA, 2.67);
    EXPECT_EQ(away.GAA, 1);
    EXPECT_EQ(away.Diff, 1.67);
    EXPECT_EQ(away.WinPercent, 0.667);
    EXPECT_EQ(away.AWinPercent, 0.667);
    EXPECT_EQ(away.SOGPG, 8.3);
    EXPECT_EQ(away.SOGAPG, 10);
    EXPECT_EQ(away.PPTimePG, 43.7);
    EXPECT_EQ(away.PPTimePGText, RawItem::text("0:44"));
    EXPECT_NEAR(away.AttZoneSecPG, 66.6667, 1e-4) << "not rounded";
    EXPECT_EQ(away.AttZonePG, "1:07");
    EXPECT_EQ(away.PenPG, 1) << "1.3, held as a whole number";
    EXPECT_NEAR(away.PKPct, 66.7, 1e-9);
    EXPECT_EQ(away.FOWPG, 7);
    EXPECT_EQ(away.FOTPG, 13.7);
}

TEST(TeamRecordUpdate, EachPairOfTheSecondBlockGoesToItsOwnFields) {
    GameSheet sheet = game(Boston, 3, Montreal, 1);
    sheet.home.PairAMade = 1;
    sheet.home.PairAAtt = 2;
    sheet.home.PairBMade = 3;
    sheet.home.PairBAtt = 7;
    sheet.home.PairCMade = 4;
    sheet.home.PairCAtt = 9;
    TeamRecord before;
    before.GP = 2;
    const TeamRecord record = after(sheet, Side::Home, before);
    EXPECT_THAT((std::vector{record.PairAMade, record.PairAAtt, record.PairBMade, record.PairBAtt,
                             record.PairCMade, record.PairCAtt}),
                testing::ElementsAre(1, 2, 3, 7, 4, 9));
    EXPECT_THAT((std::vector{record.PairAMadePG, record.PairAAttPG, record.PairBMadePG, record.PairBAttPG,
                             record.PairCMadePG, record.PairCAttPG}),
                testing::ElementsAre(0.3, 0.7, 1, 2.3, 1.3, 3));
    EXPECT_NEAR(record.PairBPct, 42.9, 1e-9);
    EXPECT_NEAR(record.PairCPct, 44.4, 1e-9);
}

TEST(TeamRecordUpdate, OnlyTheAwaySideHasPowerPlayTime) {
    const TeamRecord away = after(busyGame(), Side::Away);
    EXPECT_EQ(away.PPTime, 131);
    EXPECT_EQ(away.PPTimePG, 131);
    EXPECT_EQ(away.PPTimePGText, RawItem::text("2:11"));
    EXPECT_EQ(after(busyGame(), Side::Home).PPTimePGText, RawItem());
}

TEST(TeamRecordUpdate, ACoachsLineDiffersInFourFields) {
    const TeamRecord team = after(busyGame(), Side::Home);
    TeamRecord coach = after(busyGame(), Side::Home, {}, false, RecordHolder::Coach);
    EXPECT_EQ(coach.LastResult, "W");
    EXPECT_EQ(coach.SOGPct, 10);
    EXPECT_EQ(coach.PenPG, 3);
    EXPECT_EQ(coach.AuxAgainst, 0);
    EXPECT_EQ(coach.AuxAgainstPG, 0);

    TeamRecord before;
    before.GP = 1;
    EXPECT_EQ(after(busyGame(), Side::Home, before, false, RecordHolder::Coach).PenPG, 1.5);

    coach.LastResult = "";
    coach.AuxAgainst = team.AuxAgainst;
    coach.AuxAgainstPG = team.AuxAgainstPG;
    EXPECT_EQ(coach, team) << "every other field follows the rules of a team";
}

TEST(TeamRecordUpdate, NothingTriedGivesZeroPercent) {
    const TeamRecord record = after(game(Boston, 0, Montreal, 0), Side::Home);
    EXPECT_EQ(record.SOGPct, 0);
    EXPECT_EQ(record.PPGPG, 0);
    EXPECT_EQ(record.PPPct, 0);
    EXPECT_EQ(record.PKPct, 0);
    EXPECT_EQ(record.FOWPct, 0);
    EXPECT_EQ(record.PassAcc, 0);
    EXPECT_EQ(record.AttZonePG, "0:00");
}

TEST(TeamRecordUpdate, ASumThatTheFileCannotHoldIsAnError) {
    TeamRecord full;
    full.SOG = std::numeric_limits<int>::max() - 29;
    updateTeamRecord(full, busyGame(), Side::Home, false, RecordHolder::Team);
    EXPECT_EQ(
        test::errorMessage([&] { lineOf("Boston Bruins/Records.txt", full); }),
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
