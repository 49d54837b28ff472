#include "app/Startup.h"

#include "app/Catalogue.h"
#include "files/Change.h"
#include "files/Journal.h"
#include "files/JournalFormat.h"
#include "store/LeagueFiles.h"
#include "support/Test.h"
#include "support/TestLeague.h"

#include <fmt/core.h>

namespace iceline {
namespace {

using namespace test;

constexpr const char* Question =
    "Some or all of the required data files are not present,\n"
    "would you like the missing ones to be created?\n"
    "\n"
    "(There are several files, so make sure the .EXE is in a separate folder first!)";

/// One run of the program up to the main window.
struct ProgramRun {
    explicit ProgramRun(MemoryFiles& files, std::deque<Answer> answers = {})
        : app(files, siteTemplate, platform, windowCatalogue()) {
        platform.answers = std::move(answers);
    }

    MemoryFiles siteTemplate = smallSiteTemplate();
    TestPlatform platform;
    Application app;
};

std::string repeated(int times, const std::string& line) {
    std::string text;
    for (int i = 0; i < times; ++i)
        text += line;
    return text;
}

TEST(FirstRun, AsksOnceAndMakesEveryFolderAndFile) {
    MemoryFiles files;
    ProgramRun run(files, {Answer::Ok});

    ASSERT_TRUE(startUp(run.app));

    ASSERT_THAT(run.platform.messages, SizeIs(1));
    const Message& question = run.platform.messages.front();
    EXPECT_EQ(question.title, "Data files missing");
    EXPECT_EQ(question.text, Question);
    EXPECT_EQ(question.buttons, Buttons::OkCancel);
    // Nine files a team, sixteen of the league, the template's three and the list of them.
    EXPECT_THAT(files.files, SizeIs(24 * 9 + 16 + 4));
    EXPECT_EQ(files.foldersIn("IcelineWebPages/Profiles").size(), 24u);
    EXPECT_EQ(files.foldersIn("IcelineWebPages/PlayoffProfiles").size(), 24u);
    for (const char* folder : {"BoxScores", "CStats", "PlayoffTStats", "TStats"})
        EXPECT_TRUE(files.isFolder(paths::page(folder))) << folder;
    EXPECT_TRUE(files.isFolder("Coaches"));
    EXPECT_FALSE(files.isFolder("All-Stars East"));
    EXPECT_EQ(run.platform.busyDepth, 0);
}

TEST(FirstRun, FilesBeginWithTheirInitialContent) {
    const TestLeague league;
    const auto& files = league.files.files;
    const std::string zeros = repeated(25, "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n");
    for (const std::string team : {"Boston Bruins", "St. Louis Blues/Post Season", "Winnipeg Jets"}) {
        EXPECT_EQ(files.at(team + "/Last 10 Games.txt"), "");
        EXPECT_EQ(files.at(team + "/Streak.txt"), "\"\",0\r\n");
        EXPECT_EQ(files.at(team + "/Player Stats.txt"), zeros);
        const std::string records = files.at(team + "/Records.txt");
        EXPECT_EQ(records, repeated(13, "0,") + "\"\"," + repeated(79, "0,") + "\"0\"," + repeated(12, "0,") +
                               "80,0,0,0,0,0,0\r\n");
    }
    EXPECT_THAT(files.at("Quebec Nordiques/Players List.txt"), testing::EndsWith("-----------,0,0,D\r\n"));

    EXPECT_EQ(files.at("Last 10 Box.txt"), "");
    EXPECT_EQ(files.at("Games Until Playoffs.txt"), "82\r\n");
    EXPECT_EQ(files.at("Overall Game Number.txt"), "0\r\n");
    EXPECT_EQ(files.at("Playoff Records.txt"), repeated(8, "0,0\r\n") + repeated(7, "0,0,30,30\r\n"));
    for (const std::string twin : {"", "Playoff "}) {
        const std::string zerosAnd80 = repeated(25, "0,") + "80\r\n";
        EXPECT_EQ(files.at(twin + "League Record Crowd Meter.txt"), "80\r\n");
        EXPECT_EQ(files.at(twin + "League Records.txt"), zerosAnd80);
        EXPECT_EQ(files.at(twin + "All-Time League Records.txt"), zerosAnd80);
        EXPECT_EQ(files.at(twin + "All-Time Goalie Records.txt"), repeated(4, "0,\"\",0,") + "0,\"\",0\r\n");
        EXPECT_EQ(files.at(twin + "All-Time Player Records.txt"), repeated(6, "0,\"\",0,") + "0,\"\",0\r\n");
        EXPECT_EQ(files.at(twin + "Coaches League Records.txt"),
                  repeated(25, ",") + "80" + repeated(12, ",,\"\",0") + "\r\n");
    }
}

TEST(FirstRun, TheSiteBeginsAsACopyOfTheTemplate) {
    MemoryFiles files;
    ProgramRun run(files);
    run.siteTemplate.files["Rankings/.gitkeep"] = "";
    run.siteTemplate.files[".htaccess"] = "ErrorDocument 404 /404.html";
    ASSERT_TRUE(startUp(run.app));
    EXPECT_EQ(files.read("IcelineWebPages/styles.css"), run.siteTemplate.files["styles.css"]);
    EXPECT_EQ(files.read("IcelineWebPages/PStats/index.php"), run.siteTemplate.files["PStats/index.php"]);
    EXPECT_TRUE(files.isFolder("IcelineWebPages/PlayoffRankings"));
    EXPECT_EQ(files.read("IcelineWebPages/.htaccess"), run.siteTemplate.files[".htaccess"]);
    EXPECT_FALSE(files.isFile("IcelineWebPages/Rankings/.gitkeep"));
}

TEST(FirstRun, CancelTouchesNothing) {
    MemoryFiles files;
    ProgramRun run(files, {Answer::Cancel});
    EXPECT_FALSE(startUp(run.app));
    EXPECT_THAT(files.files, IsEmpty());
    EXPECT_THAT(files.folders, IsEmpty());
    EXPECT_THAT(run.platform.messages, SizeIs(1));
    EXPECT_FALSE(run.app.state.StartupDone);
    EXPECT_EQ(run.platform.busyDepth, 0);
}

TEST(LaterRun, PassesInSilenceAndChangesNothing) {
    TestLeague league;
    league.addCoach("Gus");
    const auto before = league.files.files;
    ProgramRun run(league.files);
    ASSERT_TRUE(startUp(run.app));
    EXPECT_THAT(run.platform.messages, IsEmpty());
    EXPECT_EQ(league.files.files, before);
    EXPECT_TRUE(run.app.state.ShowWindows);
    EXPECT_TRUE(run.app.state.StartupDone);
    EXPECT_EQ(run.app.state.SeasonLength, 82);
    EXPECT_FALSE(run.app.state.PlayoffMode);
}

/// A file that is missing from a league in use is asked for and made; every other file stays as it is.
void expectRepairOf(const std::string& path, const std::string& content) {
    TestLeague league;
    league.addCoach("Gus");
    for (auto& [name, text] : league.files.files)
        if (name != "Games Until Playoffs.txt" && !name.ends_with("Records.txt"))
            text += "kept";
    auto expected = league.files.files;
    expected[path] = content;
    league.files.remove(path);

    ProgramRun run(league.files, {Answer::Ok});
    ASSERT_TRUE(startUp(run.app)) << path;
    EXPECT_THAT(run.platform.said(), ElementsAre(Question)) << path;
    EXPECT_EQ(league.files.files, expected) << path;
}

TEST(LaterRun, MakesAMissingFileAlone) {
    expectRepairOf("Boston Bruins/Streak.txt", "\"\",0\r\n");
    expectRepairOf("Playoff League Record Crowd Meter.txt", "80\r\n");
    expectRepairOf("Coaches/Gus/Last 10 Games.txt", "");
    expectRepairOf("Tampa Bay Lightning/Players List.txt",
                   TestLeague().files.read("Tampa Bay Lightning/Players List.txt"));
}

TEST(LaterRun, FilesOfTheTemplateThatTheLeagueHasRemovedStayAway) {
    TestLeague league;
    league.files.remove("IcelineWebPages/styles.css");
    league.files.removeFolder("IcelineWebPages/CStats");
    ProgramRun run(league.files);
    ASSERT_TRUE(startUp(run.app));
    EXPECT_THAT(run.platform.said(), ElementsAre(Question));
    EXPECT_TRUE(league.files.isFolder("IcelineWebPages/CStats"));
    EXPECT_FALSE(league.files.isFile("IcelineWebPages/styles.css"));
}

TEST(LaterRun, BringsTheSiteUpToDateButForWhatTheLeagueHasChanged) {
    MemoryFiles files;
    ProgramRun first(files);
    first.siteTemplate.files["base.css"] = "a {}";
    first.siteTemplate.files["tables.js"] = "one();";
    ASSERT_TRUE(startUp(first.app));
    files.files["IcelineWebPages/base.css"] = "a { color: teal }";
    // As if the site were from before it noted what it was delivered; the template knows that version.
    files.remove("IcelineWebPages/.delivered-versions");

    ProgramRun later(files);
    later.siteTemplate.files["base.css"] = "b {}";
    later.siteTemplate.files["tables.js"] = "two();";
    later.siteTemplate.files["search.js"] = "find();";
    later.siteTemplate.files[".earlier-versions"] = fmt::format("{:016x}  tables.js\n", checksum("one();"));
    ASSERT_TRUE(startUp(later.app));
    EXPECT_EQ(files.read("IcelineWebPages/base.css"), "a { color: teal }");
    EXPECT_EQ(files.read("IcelineWebPages/tables.js"), "two();");
    EXPECT_EQ(files.read("IcelineWebPages/search.js"), "find();");
    EXPECT_FALSE(files.isFile("IcelineWebPages/.earlier-versions"));

    later.siteTemplate.files["tables.js"] = "three();";
    ASSERT_TRUE(startUp(later.app));
    EXPECT_EQ(files.read("IcelineWebPages/tables.js"), "three();");
    const int writes = files.writes;
    ASSERT_TRUE(startUp(later.app));
    EXPECT_EQ(files.writes, writes);
}

TEST(UnfinishedChange, IsFinishedAtTheNextStartWhenItsJournalIsWhole) {
    TestLeague league;
    const std::string length = league.files.read(paths::GamesUntilPlayoffs);
    league.files.files[Journal::FileName] =
        std::string(JournalHeading) +
        journalEntry({{Change::Kind::Write, paths::GamesUntilPlayoffs, 0, "60\r\n"}},
                     {{true, length.size(), checksum(length)}});
    ProgramRun next(league.files);
    ASSERT_TRUE(startUp(next.app));
    EXPECT_THAT(next.platform.said(),
                ElementsAre("The last change to the league was interrupted. It has now been finished."));
    EXPECT_EQ(next.app.state.SeasonLength, 60);
    EXPECT_FALSE(league.files.isFile(Journal::FileName));
}

TEST(UnfinishedChange, IsDroppedAtTheNextStartWhenItsJournalIsTorn) {
    TestLeague league;
    const auto before = league.files.files;
    league.files.write(Journal::FileName, "torn", Durability::Now);
    ProgramRun run(league.files);
    ASSERT_TRUE(startUp(run.app));
    EXPECT_THAT(run.platform.said(),
                ElementsAre("The last change to the league was interrupted before it could be saved. "
                            "The league is as it was before that change."));
    EXPECT_EQ(league.files.files, before);
}

} // namespace
} // namespace iceline
