#include "files/FileError.h"
#include "games/ImportLeague.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

constexpr const char* Imported = "The game has been imported and stats have been saved.";
constexpr const char* NoCoach = "Please select at least one coach first to import exhibition game to";
constexpr const char* LengthHint =
    "\nTo change the season length check the options window from the welcome screen";

using Paths = std::set<std::string>;

Paths operator+(Paths a, const Paths& b) {
    a.insert(b.begin(), b.end());
    return a;
}

Paths teamFiles(PartOfYear part) {
    Paths files;
    for (const TeamIndex team : {Boston, Montreal})
        for (const auto& name : {paths::Records, paths::Streak, paths::Last10Games, paths::PlayerStats})
            files.insert(paths::teamFile(team, part, name));
    return files;
}

Paths coachFiles(const std::string& coach) {
    return {paths::coachFile(coach, paths::Records), paths::coachFile(coach, paths::Streak),
            paths::coachFile(coach, paths::Last10Games)};
}

Paths singleGameRecords(PartOfYear part) {
    return {paths::allTimePlayerRecords(part), paths::allTimeGoalieRecords(part)};
}

const Paths OfEveryGame{paths::OverallGameNumber, paths::Last10Box};

class GameImport : public ImportLeague {
protected:
    /// The data files that a game of a kind changes; Ann coaches Boston, Bert Montreal.
    Paths changedBy(GameKind kind, bool homeCoach, bool awayCoach) {
        league.addCoach("Ann");
        league.addCoach("Bert");
        choose(kind);
        window().T1Coach = homeCoach ? 1 : 0;
        window().T2Coach = awayCoach ? 2 : 0;
        const auto before = files().files;
        import(lovelyGame());
        EXPECT_THAT(league.said(), ElementsAre(Imported));
        return changedSince(before);
    }
};

TEST_F(GameImport, ASeasonGameReachesTeamsCoachRecordsAndCrowd) {
    const Paths expected = OfEveryGame + teamFiles(PartOfYear::Season) +
                           singleGameRecords(PartOfYear::Season) + coachFiles("Bert") +
                           Paths{paths::allTimeLeagueRecords(PartOfYear::Season), paths::CrowdMeter,
                                 paths::coachesLeagueRecords(PartOfYear::Season)};
    EXPECT_EQ(changedBy(GameKind::Season, false, true), expected);
    EXPECT_TRUE(files().isFile(paths::page("BoxScores/game.htm")));
    EXPECT_THAT(content(paths::page("BoxScores.htm")), HasSubstr("game.htm"));
}

TEST_F(GameImport, APlayoffGameReachesTheTwinsAndTheBracket) {
    openSeries(3);
    const Paths expected = OfEveryGame + teamFiles(PartOfYear::Playoffs) +
                           singleGameRecords(PartOfYear::Playoffs) + coachFiles("Ann") +
                           Paths{paths::allTimeLeagueRecords(PartOfYear::Playoffs), paths::CrowdMeter,
                                 paths::coachesLeagueRecords(PartOfYear::Playoffs), paths::PlayoffRecords};
    EXPECT_EQ(changedBy(GameKind::Playoff, true, false), expected);
    EXPECT_EQ(state().PlayoffSeries[3].WinsA, 1);
}

TEST_F(GameImport, AnExhibitionGameReachesItsCoachAndAFewRecords) {
    const Paths expected = OfEveryGame + singleGameRecords(PartOfYear::Season) + coachFiles("Bert") +
                           Paths{paths::coachesLeagueRecords(PartOfYear::Season)};
    EXPECT_EQ(changedBy(GameKind::Exhibition, false, true), expected);
    const auto players = readAllTimePlayerRecords(files(), paths::allTimePlayerRecords(PartOfYear::Season));
    EXPECT_EQ(players[0].Value, 2);
    EXPECT_EQ(players[3].Value, 0) << "special goals are left out";
    EXPECT_EQ(players[4].Value, 0);
    const auto goalies = readAllTimeGoalieRecords(files(), paths::allTimeGoalieRecords(PartOfYear::Season));
    EXPECT_EQ(goalies[3].Team, Boston) << "the goalies of the home team alone";
    EXPECT_EQ(league.coachRecord("Bert").Losses, 1);
    EXPECT_EQ(league.coachRecord("Bert").LastResult, "L");
}

TEST_F(GameImport, AnExhibitionGameInThePlayoffsReachesTheTwinRecords) {
    openSeries(0, 4, 0);
    const Paths expected = OfEveryGame + singleGameRecords(PartOfYear::Playoffs) + coachFiles("Ann") +
                           Paths{paths::coachesLeagueRecords(PartOfYear::Playoffs)};
    EXPECT_EQ(changedBy(GameKind::Exhibition, true, false), expected);
    EXPECT_EQ(league.coachRecord("Ann").ArenaMeter, 95);
}

TEST_F(GameImport, FiguresOfAGameStandInTheFilesOfTheTeams) {
    choose(GameKind::Season);
    import(lovelyGame());
    EXPECT_THAT(content("Boston Bruins/Records.txt"), StartsWith("1,0,0,2,1,1,3,1,"));
    EXPECT_THAT(content("Montreal Canadiens/Records.txt"), StartsWith("0,1,0,0,0,1,1,3,"));
    EXPECT_EQ(league.record(Boston).ArenaMeter, 95);
    EXPECT_EQ(league.record(Montreal).ArenaMeter, 80) << "it is the home team's arena";
    EXPECT_EQ(league.streak(Boston), (Streak{"W", 1}));
    EXPECT_EQ(content("Montreal Canadiens/Last 10 Games.txt"), "\"L\"\r\n");
    EXPECT_EQ(content(paths::CrowdMeter), "95\r\n");
    EXPECT_EQ(gameNumber(), 1);

    const auto scorer = std::get<SkaterStats>(league.playerStats(Boston, PartOfYear::Season, 4));
    EXPECT_EQ(scorer.G, 2);
    EXPECT_EQ(scorer.PPG, 1);
    const auto starPoints = [&](int row) {
        return std::get<SkaterStats>(league.playerStats(Boston, PartOfYear::Season, row)).StarPoints;
    };
    EXPECT_THAT((std::vector{starPoints(4), starPoints(6), starPoints(7)}), ElementsAre(30, 20, 10));
    const auto goalie = std::get<GoalieStats>(league.playerStats(Montreal, PartOfYear::Season, 0));
    EXPECT_EQ(goalie.GL, 1);
    EXPECT_EQ(goalie.GA, 3);
    EXPECT_EQ(goalie.SA, 4);

    const auto teams = readAllTimeLeagueRecords(files(), paths::allTimeLeagueRecords(PartOfYear::Season));
    EXPECT_EQ(teams[0].Value, 3);
    EXPECT_EQ(teams[12].Value, 95);
    EXPECT_FALSE(files().isFile("Boston Bruins/Player Stats New.txt"));
}

TEST_F(GameImport, TheRecordsOfPlayersAndGoaliesAreThoseOfBothTeams) {
    choose(GameKind::Season);
    import(lovelyGame());
    const auto shown = [](const auto& records) {
        std::vector<std::string> texts;
        for (const PlayerRecord& record : records)
            texts.push_back(std::string(TeamAbbr[record.Team]) + " " + record.Name + " " +
                            std::to_string(record.Value));
        return texts;
    };
    const auto player = [&](TeamIndex team, int row, int value) {
        return std::string(TeamAbbr[team]) + " " + league.roster(team)[RosterIndex(row)].Name + " " +
               std::to_string(value);
    };
    EXPECT_THAT(shown(readAllTimePlayerRecords(files(), paths::allTimePlayerRecords(PartOfYear::Season))),
                ElementsAre(player(Boston, 4, 2), player(Boston, 6, 2), player(Boston, 4, 2),
                            player(Boston, 4, 1), player(Boston, 7, 1), player(Boston, 4, 2),
                            player(Montreal, 5, 2)));
    EXPECT_THAT(shown(readAllTimeGoalieRecords(files(), paths::allTimeGoalieRecords(PartOfYear::Season))),
                ElementsAre(player(Montreal, 0, 1), "BOS  0", player(Montreal, 0, 3), player(Montreal, 0, 4),
                            "BOS  0"));
}

TEST_F(GameImport, TheSameGameCountsTwice) {
    choose(GameKind::Season);
    import(lovelyGame());
    import(lovelyGame());
    EXPECT_EQ(league.record(Boston).Wins, 2);
    EXPECT_EQ(league.streak(Montreal), (Streak{"L", 2}));
    EXPECT_EQ(content("Boston Bruins/Last 10 Games.txt"), "\"W\"\r\n\"W\"\r\n");
    EXPECT_EQ(std::get<SkaterStats>(league.playerStats(Boston, PartOfYear::Season, 4)).StarPoints, 60);
    EXPECT_EQ(gameNumber(), 2);
}

TEST_F(GameImport, OfATeamAgainstItselfTheHomeLineStands) {
    choose(GameKind::Season);
    GameSheet game(Boston, Boston);
    game.addGoal(1, 1, Side::Home, Strength::Even, 5);
    import(game);
    EXPECT_EQ(league.record(Boston).GP, 1);
    EXPECT_EQ(league.record(Boston).HW, 1);
    EXPECT_EQ(league.record(Boston).AGP, 0);
    EXPECT_EQ(league.streak(Boston), (Streak{"W", 1}));
    EXPECT_EQ(content("Boston Bruins/Last 10 Games.txt"), "\"L\"\r\n\"W\"\r\n");
    const auto goalie = std::get<GoalieStats>(league.playerStats(Boston, PartOfYear::Season, 0));
    EXPECT_EQ(goalie.GL, 1) << "the players of both sides are the same";
}

TEST_F(GameImport, ACoachsLineGoesOnFromTeamToTeam) {
    league.addCoach("Ann");
    choose(GameKind::Season);
    window().T1Coach = 1;
    import(lovelyGame());
    choose(GameKind::Exhibition);
    window().T1Coach = 0;
    window().T2Coach = 1;
    import(lovelyGame());
    EXPECT_EQ(league.coachRecord("Ann").HW, 1);
    EXPECT_EQ(league.coachRecord("Ann").AL, 1);
    EXPECT_EQ(content("Coaches/Ann/Last 10 Games.txt"), "\"W\"\r\n\"L\"\r\n");
    EXPECT_EQ(league.record(Boston).GP, 1);
}

TEST_F(GameImport, AnExhibitionWithoutCoachKeepsTheGameInHand) {
    league.addCoach("Ann");
    choose(GameKind::Exhibition);
    const auto before = files().files;
    import(lovelyGame());
    EXPECT_THAT(league.said(), ElementsAre(NoCoach));
    EXPECT_EQ(changedSince(before), Paths{paths::OverallGameNumber});
    EXPECT_TRUE(window().GameLoaded);
    window().T2Coach = 1;
    window().ImportStats_Click();
    EXPECT_THAT(league.said(), ElementsAre(NoCoach, Imported));
    EXPECT_EQ(league.coachRecord("Ann").GP, 1);
    EXPECT_EQ(gameNumber(), 2);
}

TEST_F(GameImport, AskesForAFileFirst) {
    choose(GameKind::Season);
    window().ImportStats_Click();
    EXPECT_THAT(league.said(), ElementsAre("Please load a file first!"));
    import(lovelyGame());
    window().ImportStats_Click();
    EXPECT_THAT(league.said(),
                ElementsAre("Please load a file first!", Imported, "Please load a file first!"));
    EXPECT_EQ(gameNumber(), 3);
    EXPECT_EQ(league.record(Boston).GP, 1);
}

TEST_F(GameImport, TeamsThatHaveCompletedTheSeasonAreNamed) {
    choose(GameKind::Season);
    state().SeasonLength = 2;
    state().TeamLeaderTable[Boston].GP() = 2;
    const auto before = files().files;
    import(lovelyGame());
    state().TeamLeaderTable[Montreal].GP() = 2;
    import(lovelyGame());
    state().TeamLeaderTable[Boston].GP() = 1;
    import(lovelyGame());
    const std::string start = "Cannot import file because ";
    EXPECT_THAT(league.said(),
                ElementsAre(start + "Boston Bruins has completed the regular season" + LengthHint,
                            start + "Boston Bruins and Montreal Canadiens have completed the regular season" +
                                LengthHint,
                            start + "Montreal Canadiens has completed the regular season" + LengthHint));
    EXPECT_EQ(changedSince(before), Paths{paths::OverallGameNumber});
    EXPECT_FALSE(window().GameLoaded);
}

TEST_F(GameImport, TheSeasonTestLooksAtTheLeaderTableAlone) {
    choose(GameKind::Season);
    TeamRecord record;
    record.GP = state().SeasonLength;
    league.setRecord(Boston, PartOfYear::Season, record);
    import(lovelyGame());
    EXPECT_THAT(league.said(), ElementsAre(Imported));
}

TEST_F(GameImport, TheLastGameOfTheSeasonTurnsTheLeagueToThePlayoffs) {
    choose(GameKind::Season);
    finishSeasonOfTheOthers();
    import(lovelyGame());
    EXPECT_THAT(league.said(), ElementsAre(Imported, "Regular Season COMPLETE, Playoff Mode now active for "
                                                     "the Postseason."));
    EXPECT_EQ(window().caption(), "Stat Extractor     ***** PLAYOFF MODE *****");
}

TEST_F(GameImport, AGameWithoutAnOpenSeriesIsNoPostSeasonGame) {
    openSeries(5, 4, 2);
    choose(GameKind::Playoff);
    const auto before = files().files;
    import(lovelyGame());
    EXPECT_THAT(league.said(),
                ElementsAre("Cannot import file because this is not a valid post season game."));
    EXPECT_EQ(changedSince(before), Paths{paths::OverallGameNumber});
}

TEST_F(GameImport, TheFourthWinMovesTheTeamOnInTheFile) {
    openSeries(5, 3, 3);
    choose(GameKind::Playoff);
    import(lovelyGame());
    PlayoffSeriesTable table;
    readPlayoffRecords(files(), table);
    EXPECT_EQ(table[5].WinsA, 4);
    EXPECT_EQ(table[10].TeamB, Boston);
    EXPECT_EQ(table, [&] {
        auto inMemory = state().PlayoffSeries;
        inMemory[5].TeamA = inMemory[5].TeamB = BlankTeam; // the file does not hold the first round's teams
        return inMemory;
    }());
}

TEST_F(GameImport, AnOvertimeIsSeenByItsPeriodAndForgottenAfterwards) {
    choose(GameKind::Season);
    GameSheet game = lovelyGame();
    game.addPenalty(4, 10, Side::Home, Infraction::Holding, 4);
    import(game);
    EXPECT_EQ(league.record(Boston).OTW, 1);
    EXPECT_EQ(state().GameLastPeriod, 0);
    import(GameSheet(Boston, Montreal));
    EXPECT_EQ(league.record(Boston).OTGP, 1);
}

/// A file as a hand or a fault may leave it.
struct Damage {
    std::string path;
    std::string text; ///< empty: the file is missing
    std::string says;
};

class DamagedFile : public ImportLeague, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedFile, StopsTheImportAndNothingButTheNumberChanges) {
    league.addCoach("Ann");
    choose(GameKind::Season);
    window().T1Coach = 1;
    select(lovelyGame());
    if (GetParam().text.empty())
        files().files.erase(GetParam().path);
    else
        files().files[GetParam().path] = GetParam().text;
    const auto before = files().files;
    EXPECT_THAT(errorMessage([&] { window().ImportStats_Click(); }),
                AllOf(HasSubstr(GetParam().path), HasSubstr(GetParam().says)));
    auto expected = before;
    expected[paths::OverallGameNumber] = "1\r\n";
    EXPECT_EQ(withoutHistory(files().files), expected);
    EXPECT_THAT(league.said(), IsEmpty());
    EXPECT_FALSE(window().GameLoaded);
    EXPECT_TRUE(window().FillWindow);
    EXPECT_EQ(state().GameLastPeriod, 0);
    EXPECT_EQ(league.platform.busyDepth, 0);
    EXPECT_FALSE(league.app.operationInHand());
}

INSTANTIATE_TEST_SUITE_P(
    GameImport, DamagedFile,
    testing::Values(Damage{"Boston Bruins/Records.txt", "1,2,three\r\n", "item 3 (Ties)"},
                    Damage{"Montreal Canadiens/Records.txt", "1,2", "cut"},
                    Damage{"Montreal Canadiens/Streak.txt", "", "missing"},
                    Damage{"Boston Bruins/Players List.txt", "Ed Even,4,50,G\r\n", "line 2"},
                    Damage{"Montreal Canadiens/Player Stats.txt", "0,0,0\r\n", "line 2, item 1"},
                    Damage{"All-Time Player Records.txt", "25,\"\",0\r\n", "25"},
                    Damage{"All-Time Goalie Records.txt", "0,\"x,0\r\n", "quote"},
                    Damage{"All-Time League Records.txt", "0\r\n", "Value"},
                    Damage{"Coaches League Records.txt", "\r\n", "Coach"},
                    Damage{"Playoff Records.txt", "5,0\r\n", "WinsA"},
                    Damage{"League Record Crowd Meter.txt", "loud\r\n", "loud"},
                    Damage{"Last 10 Box.txt", "0,1\r\n", "goals"},
                    Damage{"Coaches/Ann/Records.txt", "", "missing"},
                    Damage{"Games/game.gs0", "", "missing"}));

TEST_F(GameImport, ADamagedFileOfAThirdTeamStopsTheImportUntilItIsMended) {
    choose(GameKind::Season);
    select(lovelyGame());
    std::string& records = files().files["Winnipeg Jets/Records.txt"];
    const std::string whole = records;
    records = "1,2,three\r\n";
    auto expected = files().files;
    expected[paths::OverallGameNumber] = "1\r\n";
    EXPECT_THROW(window().ImportStats_Click(), FileError);
    EXPECT_EQ(withoutHistory(files().files), withoutHistory(expected));
    EXPECT_THAT(league.said(), IsEmpty());
    EXPECT_EQ(window().ImportCount, 0);

    files().files["Winnipeg Jets/Records.txt"] = whole;
    import(lovelyGame());
    EXPECT_THAT(league.said(), ElementsAre(Imported));
    EXPECT_EQ(league.record(Boston).GP, 1);
    EXPECT_EQ(content("Boston Bruins/Last 10 Games.txt"), "\"W\"\r\n");
    EXPECT_EQ(gameNumber(), 2);
}

TEST_F(GameImport, ADamagedGameNumberStopsTheImportBeforeItBegins) {
    choose(GameKind::Season);
    for (const char* text : {"many\r\n", "2147483647\r\n"}) {
        select(lovelyGame());
        files().files[paths::OverallGameNumber] = text;
        const auto before = files().files;
        EXPECT_THROW(window().ImportStats_Click(), FileError);
        EXPECT_EQ(files().files, before);
        EXPECT_FALSE(window().GameLoaded);
    }
}

TEST_F(GameImport, CountsPointsAndGoalsOfTheLongestSeason) {
    choose(GameKind::Season);
    TeamRecord record;
    record.GP = record.Wins = 32766;
    record.Points = 2 * record.Wins;
    record.GF = 9 * record.GP;
    league.setRecord(Boston, PartOfYear::Season, record);
    SkaterStats skater;
    skater.SOG = skater.GP = 32767;
    league.setPlayerStats(Boston, PartOfYear::Season, 6, skater);
    state().SeasonLength = 32767;
    import(lovelyGame());
    EXPECT_EQ(league.record(Boston).Points, 65534);
    EXPECT_EQ(league.record(Boston).GF, 9 * 32766 + 3);
    EXPECT_EQ(std::get<SkaterStats>(league.playerStats(Boston, PartOfYear::Season, 6)).SOG, 32768);
}

} // namespace
} // namespace iceline
