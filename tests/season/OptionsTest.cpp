#include "season/Options.h"

#include "app/Catalogue.h"
#include "files/FileError.h"
#include "games/StatExtractor.h"
#include "page/BoxScoreList.h"
#include "support/FailingFiles.h"
#include "support/Test.h"
#include "support/TestLeague.h"

#include <array>
#include <functional>
#include <map>

namespace iceline::test {

namespace {

constexpr int AllTeamsEntry = 24;

/// Of the uses of the disk by a deed, about so many are made to fail, the last ones among them.
constexpr int UsesTried = 40;

class OptionsTest : public testing::Test {
protected:
    Options& window() { return static_cast<Options&>(league.app.windows().use(WindowId::Options)); }

    void playSomeGames() {
        TeamRecord record;
        record.GP = 5;
        for (const PartOfYear part : {PartOfYear::Season, PartOfYear::Playoffs})
            for (const TeamIndex team : {Boston, Buffalo})
                league.setRecord(team, part, record);
        league.files.files[paths::OverallGameNumber] = "12\r\n";
        league.files.files[paths::GamesUntilPlayoffs] = "20\r\n";
        league.files.files["IcelineWebPages/BoxScores.htm"] += "<tr></tr>\r\n";
        league.addCoach("Ann", record);
    }

    TestLeague league;
};

TEST_F(OptionsTest, CreatesCoachesWithFreeNamesOnly) {
    window().NewCoach_Click();
    EXPECT_TRUE(window().content().Command1Visible);
    window().NewC = "Ann Lee";
    window().Command1_Click();
    EXPECT_THAT(window().content().coaches, ElementsAre("Ann_Lee"));
    EXPECT_EQ(league.files.files["Coaches/Ann_Lee/Streak.txt"], "\"\",0\r\n");
    EXPECT_EQ(league.files.files["Coaches/Ann_Lee/Last 10 Games.txt"], "");
    EXPECT_TRUE(window().content().Command1Visible) << "the input row stays open";
    EXPECT_THAT(league.said(), IsEmpty());

    std::vector<std::string> shownBeforeRefusal;
    window().onChange = [&] {
        if (league.said().empty())
            shownBeforeRefusal.push_back(window().NewC);
    };
    for (const char* name : {"ann lee", "", "CON", "../x"}) {
        window().NewC = name;
        window().Command1_Click();
        EXPECT_EQ(window().NewC, "");
    }
    EXPECT_THAT(shownBeforeRefusal, ElementsAre("ann_lee"));
    EXPECT_THAT(league.said(), ElementsAre("ann_lee already exists", " already exists",
                                           HasSubstr("Windows keeps"), HasSubstr("signs other than")));
    EXPECT_THAT(league.files.foldersIn("Coaches"), ElementsAre("Ann_Lee"));
}

TEST_F(OptionsTest, RenamesACoachWithHisFiles) {
    TeamRecord record;
    record.Wins = 9;
    league.addCoach("Ann", record);
    league.addCoach("Bob");
    window().EditCoach_Click();
    EXPECT_THAT(league.said(), ElementsAre("Please select coach first!"));

    window().Combo1 = 0;
    window().EditCoach_Click();
    EXPECT_EQ(window().NewC, "Ann");
    window().NewC = "BOB";
    window().Command2_Click();
    EXPECT_EQ(league.said().back(), "BOB already exists");
    EXPECT_TRUE(window().content().Command2Visible);
    window().NewC = "ann";
    window().Command2_Click();
    EXPECT_THAT(window().content().coaches, ElementsAre("ann", "Bob"));
    window().Combo1 = 0;
    window().EditCoach_Click();
    window().NewC = "Zoe Q";
    window().Command2_Click();
    EXPECT_FALSE(window().content().inputRowVisible());
    EXPECT_THAT(window().content().coaches, ElementsAre("Bob", "Zoe_Q"));
    EXPECT_EQ(league.coachRecord("Zoe_Q").Wins, 9);
    EXPECT_FALSE(league.files.isFolder("Coaches/ann"));
}

TEST_F(OptionsTest, DeletesAndClearsACoachAfterAQuestion) {
    TeamRecord record;
    record.Wins = 9;
    league.addCoach("Ann", record);
    window().Combo1 = 0;
    league.platform.answers = {Answer::No, Answer::No};
    window().CoachTeam_Click();
    window().DeleteCoach_Click();
    EXPECT_EQ(league.coachRecord("Ann").Wins, 9);
    window().CoachTeam_Click();
    EXPECT_EQ(league.coachRecord("Ann").Wins, 0);
    EXPECT_EQ(league.said().back(), "Ann's Stats have been cleared.");
    window().DeleteCoach_Click();
    EXPECT_THAT(league.said().back(), "Are you sure you want to delete coach Ann?");
    EXPECT_FALSE(league.files.isFolder("Coaches/Ann"));
    EXPECT_THAT(window().content().coaches, IsEmpty());
}

TEST_F(OptionsTest, TakesWholeSeasonLengthsInRange) {
    for (const auto& [typed, stored] : {std::pair("20", "20\r\n"),
                                        {" 41.5 ", "42\r\n"},
                                        {"40.5", "40\r\n"},
                                        {"-1", "-1\r\n"},
                                        {"32767", "32767\r\n"}}) {
        window().SeasonLength = typed;
        window().EnterSeasonLength_Click();
        EXPECT_EQ(league.files.files[paths::GamesUntilPlayoffs], stored) << typed;
        EXPECT_EQ(league.said().back(), "The Season Length has been updated.");
    }
    for (const char* typed : {"", " ", "ten", "-2", "-1.6", "32767.5", "1e3", "12x", "nan", "inf"}) {
        window().SeasonLength = typed;
        window().EnterSeasonLength_Click();
        EXPECT_THAT(league.said().back(), HasSubstr("from -1 to 32767")) << typed;
    }
    EXPECT_EQ(league.app.state.SeasonLength, 32767);
    EXPECT_EQ(window().content().CurrentSeasonLength, "32767");
}

TEST_F(OptionsTest, GoesToThePlayoffsByHandForGood) {
    league.platform.answers = {Answer::No};
    window().GoToPlayoffs_Click();
    EXPECT_FALSE(league.app.state.PlayoffMode);
    window().GoToPlayoffs_Click();
    EXPECT_TRUE(league.app.state.PlayoffMode);
    EXPECT_EQ(window().content().CurrentSeasonLength, "82") << "until the window is opened again";
    EXPECT_THAT(league.said(),
                ElementsAre(testing::_, testing::_,
                            "Regular Season COMPLETE, Playoff Mode now active for the Postseason.",
                            "The Regular Season is now over, proceed with the Playoffs."));
    TestLeague nextRun(league.files);
    EXPECT_TRUE(nextRun.app.state.PlayoffMode);
}

TEST_F(OptionsTest, ClearsOneTeamAndLeavesTheRest) {
    playSomeGames();
    league.app.state.PlayoffMode = true;
    league.app.state.SeasonFolder = "/Post Season";
    window().Command8_Click();
    EXPECT_EQ(league.said().back(), "Please select a team or [ALL] first!");
    window().ClearTeamSelect = Boston;
    std::vector<std::string> captions;
    StatExtractor& game = StatExtractor::in(league.app);
    game.onChange = [&] { captions.push_back(game.caption()); };
    window().Command8_Click();
    EXPECT_THAT(captions, ElementsAre("Stat Extractor")) << "an open game window loses its mark at once";
    EXPECT_EQ(league.said().back(), "Boston Bruins stats cleared");
    EXPECT_EQ(league.record(Boston).GP, 0);
    EXPECT_EQ(league.record(Boston, PartOfYear::Playoffs).GP, 0);
    EXPECT_EQ(league.record(Buffalo).GP, 5);
    EXPECT_FALSE(league.app.state.PlayoffMode);
    EXPECT_EQ(league.app.state.SeasonFolder, "");
    EXPECT_EQ(league.app.state.TeamLeaderTable[Boston + 1].GP(), 5)
        << "the import's season test reads the new table";
    EXPECT_EQ(league.files.files[paths::OverallGameNumber], "12\r\n");
}

TEST_F(OptionsTest, ClearsTheWholeLeagueButCoachesAndRosters) {
    playSomeGames();
    const std::string roster = league.files.files[paths::playersList(Boston)];
    league.files.files["League Records.txt"] = "kept\r\n";
    league.app.state.SeasonLength = -1;
    window().ClearTeamSelect = AllTeamsEntry;
    league.platform.answers = {Answer::No};
    window().Command8_Click();
    EXPECT_EQ(league.record(Boston).GP, 5);
    window().Command8_Click();
    EXPECT_EQ(league.said().back(), "All stats have been cleared.");
    EXPECT_EQ(league.record(Buffalo).GP, 0);
    EXPECT_EQ(league.files.files[paths::OverallGameNumber], "0\r\n");
    EXPECT_EQ(league.files.files[paths::GamesUntilPlayoffs], "82\r\n");
    EXPECT_EQ(league.app.state.SeasonLength, -1) << "until the next start";
    EXPECT_EQ(window().content().CurrentSeasonLength, "82");
    EXPECT_EQ(league.page("BoxScores.htm"), boxScoreListHead());
    EXPECT_EQ(league.coachRecord("Ann").GP, 5);
    EXPECT_EQ(league.files.files[paths::playersList(Boston)], roster);
    EXPECT_EQ(league.files.files["League Records.txt"], "kept\r\n");
}

/// Something that the window does to the league.
struct Deed {
    const char* name;
    std::function<void(Options&)> done;
};

const std::array Deeds{
    Deed{"rename",
         [](Options& window) {
             window.Combo1 = 0;
             window.NewC = "Bea";
             window.Command2_Click();
         }},
    Deed{"go to the play-offs", [](Options& window) { window.GoToPlayoffs_Click(); }},
    Deed{"clear league",
         [](Options& window) {
             window.ClearTeamSelect = AllTeamsEntry;
             window.Command8_Click();
         }},
};

/// A deed that fails has not been done, unless it says that it is noted; one that has been done fails no
/// more.
TEST_F(OptionsTest, WhatEndsWithAnErrorHasChangedNothing) {
    playSomeGames();
    const auto before = withoutHistory(league.files.files);
    for (const Deed& deed : Deeds) {
        std::map<std::string, std::string> after;
        int uses = 0;
        const auto failAt = [&](int n) {
            MemoryFiles files = league.files;
            FailingFiles failing(files);
            TestPlatform platform;
            Application app(failing, league.siteTemplate, platform, windowCatalogue());
            app.state.ShowWindows = true;
            auto& options = static_cast<Options&>(app.windows().use(WindowId::Options));
            failing.failAt(n, FailingFiles::Failure::Once);
            const std::string message = errorMessage([&] { deed.done(options); });
            uses = failing.uses();
            Journal(files).recover();
            after = withoutHistory(files.files);
            return message;
        };
        ASSERT_EQ(failAt(0), "no error") << deed.name;
        const auto done = after;
        ASSERT_NE(done, before) << deed.name;
        const int last = uses;
        for (int n = last; n > 0; n -= 1 + last / UsesTried) {
            const std::string message = failAt(n);
            ASSERT_NE(message, "no error") << deed.name << ", use " << n << " failed unseen";
            const bool isNoted = message.find("The change is noted") != std::string::npos;
            EXPECT_EQ(after, isNoted ? done : before) << deed.name << ", use " << n << ": " << message;
        }
    }
}

} // namespace

} // namespace iceline::test
