#include "app/Startup.h"
#include "history/HistoryLeague.h"

namespace iceline {
namespace {

using test::HistoryLeague;
using testing::Contains;
using testing::HasSubstr;
using testing::StartsWith;

bool begins(HistoryLeague& league, const std::string& name) {
    Options& window = league.options();
    window.SeasonName = name;
    return window.NewSeason_Click();
}

TEST(NewSeasonTest, KeepsTheOldOneWholeAndClearsWhatIsTheSeasons) {
    HistoryLeague league;
    auto& files = league.files().files;
    files["IcelineWebPages/Headers/Standings.gif"] = "GIF";
    league.files().folders.insert("IcelineWebPages/Headers");
    league.addCoach("Ann");
    league.setSeasonLength("60");
    league.import(0, false, "Ann");
    const TeamIndex home = sampleSchedule(1, 1).front().home;
    const std::string records = paths::teamFolder(home) + "/Records.txt";
    league.goToPlayoffs();
    const auto before = league.books();
    ASSERT_TRUE(begins(league, "1993 & 94"));

    EXPECT_EQ(files["Seasons/1993 & 94/" + records], before.at(records));
    EXPECT_TRUE(files.contains("Seasons/1993 & 94/History/Log.jsonl"));
    EXPECT_THAT(files["IcelineWebPages/Seasons/1993 & 94/Standings.htm"] +
                    files["IcelineWebPages/Seasons.htm"],
                HasSubstr("Seasons/1993%20%26%2094/index.htm"));
    EXPECT_THAT(files["IcelineWebPages/Seasons/1993 & 94/DivisionStandings.htm"],
                HasSubstr("\"./../../Headers/DivisionStandings.gif\""));
    EXPECT_FALSE(files.contains("IcelineWebPages/Seasons/1993 & 94/Headers/Standings.gif"));
    EXPECT_NE(files[records], before.at(records));
    EXPECT_EQ(files[paths::OverallGameNumber], "0\r\n");
    EXPECT_EQ(files[paths::GamesUntilPlayoffs], "60\r\n");
    EXPECT_FALSE(league.app().state.PlayoffMode);
    for (const std::string kept : {"All-Time Player Records.txt", "Coaches/Ann/Records.txt"})
        EXPECT_EQ(files[kept], before.at(kept));
    EXPECT_THAT(league.files().filesIn("History/Backups"), Contains(StartsWith("Automatic ")));

    EXPECT_FALSE(begins(league, "1993 & 94"));
    EXPECT_FALSE(begins(league, "a/b"));
    league.import(0);
    EXPECT_THAT(league.platform().said(), Contains(HasSubstr("as game 1 of season 1993 & 94: ")));

    undo(league.app(), std::nullopt);
    undo(league.app(), std::nullopt);
    for (const auto& [path, content] : before)
        if (!path.starts_with(paths::WebRoot)) {
            EXPECT_EQ(files[path], content) << path;
        }
    EXPECT_TRUE(league.app().state.PlayoffMode);
    EXPECT_FALSE(league.files().isFolder("Seasons/1993 & 94"));
    redo(league.app());
    EXPECT_TRUE(files.contains("IcelineWebPages/Seasons/1993 & 94/index.htm"));
    EXPECT_EQ(files[paths::OverallGameNumber], "0\r\n");
}

TEST(NewSeasonTest, WhatIsLeftOfABrokenCopyGoesAtTheNextStart) {
    HistoryLeague league;
    league.import(0);
    const auto whole = league.files().files;
    for (const std::string folder :
         {"Seasons/1993", "Seasons/1993/Coaches", "IcelineWebPages/Seasons/1993"}) {
        league.files().makeFolder(folder);
        league.files().files[folder + "/a"] = "a";
    }
    league.files().files["Season Copy.txt"] = "1993\r\n";
    startUp(league.app());
    EXPECT_EQ(league.files().files, whole);
    EXPECT_THAT(league.platform().said(), Contains(HasSubstr("1993 was broken off")));
}

} // namespace
} // namespace iceline
