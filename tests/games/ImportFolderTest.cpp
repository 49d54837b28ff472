#include "app/Startup.h"
#include "files/FileError.h"
#include "games/FolderRunNote.h"
#include "games/ImportLeague.h"
#include "standings/Standings.h"
#include "support/FailingFiles.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

class ImportFolder : public ImportLeague {
protected:
    ImportFolder() {
        choose(GameKind::Season);
        window().Force = true;
    }

    void run(const std::string& folder = "Games") {
        files().makeFolder(folder);
        league.platform.chosen.push_back(folder);
        window().ImportFolder_Click();
    }

    std::string lastSaid() { return league.said().back(); }
};

TEST_F(ImportFolder, TakesAllFilesInTheOrderOfTheirNames) {
    GameSheet lost(Montreal, Boston);
    lost.addGoal(1, 5, Side::Home, Strength::Even, 4);
    save("Games/b second.gs1", lovelyGame());
    save("Games/A first", lost);
    save("Games/c.third.gs2", lost);
    run();
    EXPECT_THAT(league.said(),
                ElementsAre("Are you sure you want import all files in Games?", "3 Files imported"));
    EXPECT_EQ(league.platform.messages[0].title, "Import");
    EXPECT_EQ(league.platform.messages[0].buttons, Buttons::YesNo);
    EXPECT_EQ(content("Boston Bruins/Last 10 Games.txt"), "\"L\"\r\n\"W\"\r\n\"L\"\r\n");
    EXPECT_TRUE(files().isFile(paths::page("BoxScores/c.third.htm")));
    EXPECT_EQ(gameNumber(), 3);
    EXPECT_EQ(window().ImportMode, 0);
    EXPECT_EQ(league.platform.busyDepth, 0);
    EXPECT_FALSE(files().isFile(Journal::FileName));

    ASSERT_EQ(league.platform.progressShown.size(), 3u);
    EXPECT_EQ(league.platform.progressShown[1].item, "b second.gs1");
    EXPECT_EQ(league.platform.progressShown[1].done, 1);
    EXPECT_EQ(league.platform.progressShown[1].total, 3);
    EXPECT_TRUE(league.platform.progressShown[1].cancellable);
}

TEST_F(ImportFolder, LeavesTheSameLeagueAsSingleImports) {
    save("Games/1.gs0", lovelyGame());
    save("Games/2.gs0", GameSheet(Montreal, Boston));
    TestLeague other(files());
    StatExtractor& single = StatExtractor::in(other.app);
    single.Force = true;
    single.Exhibition = false;
    single.Season = true;
    for (const char* path : {"Games/1.gs0", "Games/2.gs0"}) {
        other.platform.chosen.push_back(path);
        single.LoadStats_Click();
        single.ImportStats_Click();
    }
    run();
    EXPECT_EQ(files().files, other.files.files);
}

TEST_F(ImportFolder, AnEmptyFolderImportsNothing) {
    run();
    EXPECT_EQ(lastSaid(), "0 Files imported");
    EXPECT_EQ(gameNumber(), 0);
}

TEST_F(ImportFolder, NothingHappensWithoutAFolderOrOnNo) {
    save("Games/1.gs0", lovelyGame());
    window().ImportFolder_Click();
    EXPECT_TRUE(league.said().empty());
    league.platform.answers.push_back(Answer::No);
    run();
    EXPECT_EQ(league.said().size(), 1u);
    EXPECT_EQ(gameNumber(), 0);
}

TEST_F(ImportFolder, ExhibitionGamesNeedACoach) {
    league.addCoach("Ann");
    league.app.windows().unloadAll();
    choose(GameKind::Exhibition);
    save("Games/1.gs0", lovelyGame());
    save("Games/2.gs0", lovelyGame());
    run();
    EXPECT_THAT(league.said(),
                ElementsAre("Please select at least one coach first to import exhibition game to"));
    league.platform.chosen.clear();
    window().T2Coach = 1;
    window().Force = true;
    run();
    EXPECT_EQ(lastSaid(), "2 Files imported");
    EXPECT_EQ(league.coachRecord("Ann").Losses, 2);
    EXPECT_EQ(league.record(Boston).GP, 0);
}

TEST_F(ImportFolder, ARefusedGameIsPassedOverOnOk) {
    save("Games/1.gs0", GameSheet(TeamIndex(25), Boston));
    save("Games/2.gs0", lovelyGame());
    run();
    EXPECT_EQ(league.platform.messages[1].buttons, Buttons::OkCancel);
    EXPECT_THAT(league.said()[1], HasSubstr("1.gs0"));
    EXPECT_EQ(lastSaid(), "1 Files imported");
    EXPECT_EQ(gameNumber(), 2);
}

TEST_F(ImportFolder, CancelAtARefusalEndsTheRun) {
    state().TeamLeaderTable[Boston].GP() = state().SeasonLength;
    save("Games/1.gs0", GameSheet(Montreal, TeamIndex(3)));
    save("Games/2.gs0", lovelyGame());
    save("Games/3.gs0", GameSheet(Montreal, TeamIndex(3)));
    league.platform.answers = {Answer::Yes, Answer::Cancel};
    run();
    EXPECT_THAT(league.said()[1], HasSubstr("Boston Bruins has completed the regular season"));
    EXPECT_EQ(league.platform.messages[1].buttons, Buttons::OkCancel);
    EXPECT_EQ(lastSaid(), "1 Files imported");
    EXPECT_EQ(gameNumber(), 2);

    state().TeamLeaderTable[Boston].GP() = 0;
    run();
    EXPECT_EQ(lastSaid(), "3 Files imported") << "the answer speaks of its run alone";
}

TEST_F(ImportFolder, StoppingEndsTheRunAfterTheGameInHand) {
    save("Games/1.gs0", lovelyGame());
    save("Games/2.gs0", lovelyGame());
    save("Games/3.gs0", lovelyGame());
    league.platform.stopAfter = 2;
    run();
    EXPECT_EQ(lastSaid(), "2 Files imported\nThe run was stopped. The last file imported was 2.gs0.");
    EXPECT_EQ(league.record(Boston).GP, 2);
}

TEST_F(ImportFolder, ASeasonThatEndsInTheRunTurnsTheNextFileToThePlayoffs) {
    finishSeasonOfTheOthers();
    save("Games/1.gs0", lovelyGame());
    save("Games/2.gs0", GameSheet(Boston, TeamIndex(4))); // teams of two conferences
    run();
    EXPECT_THAT(league.said(), ElementsAre(testing::_,
                                           "Regular Season COMPLETE, Playoff Mode now active for the "
                                           "Postseason.",
                                           "Cannot import file because this is not a valid post season game.",
                                           "1 Files imported"));
}

TEST_F(ImportFolder, AFileErrorEndsTheRunAndKeepsWhatWasImported) {
    save("Games/1.gs0", lovelyGame());
    save("Games/2.gs0", GameSheet(TeamIndex(3), TeamIndex(4)));
    save("Games/3.gs0", lovelyGame());
    files().files["Chicago Blackhawks/Player Stats.txt"] = "torn";
    EXPECT_THROW(run(), FileError);
    EXPECT_EQ(lastSaid(), "1 Files imported");
    EXPECT_EQ(league.record(Boston).GP, 1);
    EXPECT_EQ(gameNumber(), 2);
    EXPECT_EQ(window().ImportMode, 0);
    EXPECT_FALSE(files().isFile(Journal::FileName)) << "the run was brought to its end";
    int games = 0;
    for (const DivisionRows& division : Standings::in(league.app).content().divisions)
        for (const PointsRow& row : division)
            games += row.figures.GP;
    EXPECT_EQ(games, 2) << "one for each of two teams";
}

/// Whatever use of the disk the program dies at.
TEST_F(ImportFolder, TheNextStartTellsWhatOfABrokenRunIsIn) {
    GameSheet second = lovelyGame();
    ++second.crowdMeter;
    save("Games/1.gs0", lovelyGame());
    save("Games/2.gs0", second);
    files().makeFolder("Games");
    std::set<std::string> told;
    bool failed = true;
    for (int use = 1; failed; use += 5) {
        MemoryFiles broken = files();
        FailingFiles failing(broken);
        TestPlatform platform;
        platform.chosen.push_back("Games");
        Application app(failing, league.siteTemplate, platform, windowCatalogue());
        startUp(app);
        StatExtractor::in(app).Exhibition = false;
        StatExtractor::in(app).Season = true;
        failing.failAt(use, FailingFiles::Failure::Crash);
        try {
            StatExtractor::in(app).ImportFolder_Click();
        } catch (const FileError&) {
        }
        failed = failing.hasFailed();
        TestPlatform next;
        Application restarted(broken, league.siteTemplate, next, windowCatalogue());
        ASSERT_TRUE(startUp(restarted));
        const int games = readTeamRecord(broken, paths::teamFolder(Boston)).GP;
        const std::string last = next.messages.empty() ? "" : next.said().back();
        if (!last.starts_with("The import of the folder Games was broken off. "))
            continue;
        told.insert(last);
        EXPECT_THAT(last, HasSubstr(games == 0 ? "No file of it was imported."
                                    : games == 1
                                        ? "1 Files of it were imported. The last file imported was 1.gs0."
                                        : "2 Files of it were imported. The last file imported was 2.gs0."))
            << use;
        EXPECT_FALSE(broken.isFile(paths::FolderRun)) << "it is told once";
    }
    EXPECT_EQ(told.size(), 3u);
}

TEST_F(ImportFolder, AGameWhosePageCannotBeNamedOnEverySystemIsRefused) {
    std::vector<std::string> names{"1 \"final\".gs0", "2?.gs0", "CON.gs0"};
#ifndef _WIN32 // where no name can be anything but Unicode
    names.emplace_back("M\xfcller.gs0");
#endif
    for (const std::string& name : names)
        save("Games/" + name, lovelyGame());
    save("Games/3.gs0", lovelyGame());
    run();
    EXPECT_THAT(league.said()[1], HasSubstr("the name of a page can hold letters, digits and signs other"));
    EXPECT_EQ(lastSaid(), "1 Files imported");
}

} // namespace
} // namespace iceline
