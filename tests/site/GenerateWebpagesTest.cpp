#include "app/Catalogue.h"
#include "app/WelcomeWindow.h"
#include "files/FileError.h"
#include "players/PlayerStats.h"
#include "support/TestLeague.h"

#include <gmock/gmock.h>

#include <fmt/core.h>

namespace iceline {
namespace {

using test::MemoryFiles;
using test::TestLeague;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr TeamIndex BOS{0};
constexpr TeamIndex BUF{1};

constexpr const char* Published =
    "All Webpages have been generated and are located in the IcelineWebpages directory.";

void publish(Application& app) {
    WelcomeWindow(app).Command1_Click();
}

/// The message of the error that publishing ends with.
std::string failureOf(Application& app) {
    try {
        publish(app);
    } catch (const FileError& error) {
        return error.what();
    }
    return "";
}

/// The site's files with their contents.
std::map<std::string, std::string> siteOf(const MemoryFiles& files) {
    std::map<std::string, std::string> site;
    for (const auto& [path, content] : files.files)
        if (path.starts_with(paths::WebRoot + "/"))
            site[path.substr(paths::WebRoot.size() + 1)] = content;
    return site;
}

std::size_t filesIn(TestLeague& league, const std::string& folder) {
    return league.files.filesIn(paths::page(folder)).size();
}

TEST(GenerateWebpages, NoNameBecomesMarkupOrCodeOnAnyPage) {
    TestLeague league;
    const std::string name = "<?=`id`?> & #1";
    Roster roster = league.roster(BOS);
    roster[RosterIndex(5)].Name = name;
    league.setRoster(BOS, roster);
    SkaterStats stats;
    stats.GP = stats.G = stats.Pts = stats.StarPoints = 9;
    league.setPlayerStats(BOS, PartOfYear::Season, 5, stats);
    AllTimePlayerRecords records;
    records.front().Name = name;
    const std::string recordsFile = paths::allTimePlayerRecords(PartOfYear::Season);
    league.files.files[recordsFile] = textOf(recordsFile, records);
    league.addCoach("A&B");

    publish(league.app);

    std::map<std::string, std::string> site = siteOf(league.files);
    std::erase_if(site, [](const auto& file) { return file.first.starts_with("data/"); }); // no markup
    for (const auto& [path, content] : site)
        EXPECT_THAT(content, Not(HasSubstr("<?="))) << path;
    for (const char* page : {"index.htm", "AllTimeRecords.htm", "Rankings/Normal0.php", "Rankings/Star1.php",
                             "PStats/BOS_N0.php", "PStats/BOS_leaders.php", "Profiles/BOS/index.htm"})
        EXPECT_THAT(site[page], HasSubstr("&lt;?=`id`?&gt; &amp; #1")) << page;
    EXPECT_THAT(site["Profiles/BOS/index.htm"], HasSubstr("<a href=\"./__=`id`__ &amp; %231.htm\">"));
    EXPECT_TRUE(site.contains("Profiles/BOS/__=`id`__ & #1.htm"));
    EXPECT_THAT(site["CoachingStats.htm"], HasSubstr("<a href=\"./CStats/A&amp;B.htm\" ><b>A&amp;B</b>"));
}

TEST(GenerateWebpages, WritesTheWholeSiteAndSaysSo) {
    TestLeague league;

    publish(league.app);

    EXPECT_THAT(league.said(), ElementsAre(Published));
    EXPECT_TRUE(league.app.state.ShowWindows);
    EXPECT_EQ(league.platform.busyDepth, 0);
    EXPECT_THAT(league.files.filesIn("IcelineWebPages"),
                ElementsAre(".delivered-versions", "AllTimeRecords.htm", "BoxScores.htm", "CoachingStats.htm",
                            "ConferenceStandings.htm", "DivisionStandings.htm", "HomeAwayStandings.htm",
                            "index.htm", "PlayoffAllTimeRecords.htm", "Playoffs.htm", "PlayoffTree.htm",
                            "Seasons.htm", "styles.css", "vsConfStandings.htm"));
    EXPECT_EQ(filesIn(league, "Rankings"), 70u);
    EXPECT_EQ(filesIn(league, "PlayoffRankings"), 70u);
    EXPECT_EQ(filesIn(league, "PStats"), 24u * 58 + 1);
    EXPECT_EQ(filesIn(league, "PlayoffPStats"), 24u * 58);
    EXPECT_EQ(filesIn(league, "TStats"), 24u);
    EXPECT_EQ(filesIn(league, "PlayoffTStats"), 24u);
    for (const TeamIndex team : AllLeagueTeams) {
        std::size_t players = 0;
        for (const RosterRow& row : league.roster(team))
            players += row.isEmpty() ? 0u : 1u;
        EXPECT_EQ(filesIn(league, "Profiles/" + std::string(TeamAbbr[team])), players + 1);
        EXPECT_EQ(filesIn(league, "PlayoffProfiles/" + std::string(TeamAbbr[team])), players + 1);
    }
}

TEST(GenerateWebpages, TheProgressNamesEveryStep) {
    TestLeague league;

    publish(league.app);

    const auto& shown = league.platform.progressShown;
    ASSERT_THAT(shown, Not(IsEmpty()));
    EXPECT_EQ(shown.front().title, "Generating webpages");
    EXPECT_EQ(shown.front().item, "Rankings");
    EXPECT_EQ(shown.back().item, "data/");
    EXPECT_EQ(shown.back().done + 1, shown.back().total);
    EXPECT_EQ(shown.size(), static_cast<std::size_t>(shown.back().total));
    EXPECT_FALSE(shown.front().cancellable);
}

TEST(GenerateWebpages, StandingsBearTheMarksOfTheirFirstTurn) {
    TestLeague league;
    league.app.state.SeasonLength = 11;
    for (const TeamIndex team : AllLeagueTeams) {
        TeamRecord record;
        record.GP = 10;
        record.Wins = team == BOS ? 10 : 0;
        record.Points = 2 * record.Wins;
        league.setRecord(team, PartOfYear::Season, record);
    }

    publish(league.app);

    EXPECT_THAT(league.page("DivisionStandings.htm"),
                HasSubstr("<tr><td><b>z</b></td><td><center><img src=\"./LogoMinis/BOS.gif\">"));
    EXPECT_THAT(league.page("ConferenceStandings.htm"), HasSubstr("<b>z</b>"));
}

TEST(GenerateWebpages, WritesEveryPageAndLeavesOpenWindowsAsTheyWere) {
    TestLeague league;
    Windows& windows = league.app.windows();
    for (const WindowId id : {WindowId::StatExtractor, WindowId::Rankings, WindowId::PlayerStats,
                              WindowId::Standings, WindowId::PlayerProfiles})
        windows.open(id);
    auto& players = static_cast<PlayerStats&>(windows.use(WindowId::PlayerStats));
    players.PlayersTeamSelect = BOS;
    players.PlayersTeamSelect_Click();
    windows.onUnload = [](WindowId id) { ADD_FAILURE() << static_cast<int>(id) << " closed"; };

    publish(league.app);

    windows.onUnload = nullptr;
    EXPECT_EQ(&windows.use(WindowId::PlayerStats), &players);
    EXPECT_TRUE(windows.isOpen(WindowId::PlayerStats));
    EXPECT_FALSE(players.content().skaters.empty());
    EXPECT_FALSE(windows.isLoaded(WindowId::TeamStats)) << "a window of the run is gone";
    EXPECT_GT(filesIn(league, "PStats"), 24u);
}

TEST(GenerateWebpages, LeavesPlayoffGamesInTheTeamTable) {
    TestLeague league;
    TeamRecord record;
    record.GP = 40;
    league.setRecord(BOS, PartOfYear::Season, record);
    record.GP = 3;
    league.setRecord(BOS, PartOfYear::Playoffs, record);

    publish(league.app);

    EXPECT_EQ(league.app.state.TeamLeaderTable[BOS].GP(), 3);
}

TEST(GenerateWebpages, LeavesEveryPageAloneWhenNothingHasChanged) {
    TestLeague league;
    league.files.files["Site Settings.json"] = R"({"name": "A", "address": "http://a.example/b/"})";
    publish(league.app);
    const auto before = siteOf(league.files);
    const int writes = league.files.writes;
    EXPECT_EQ(before.count("feed.xml"), 0u); // no games to tell of
    EXPECT_THAT(before.at("sitemap.xml"),
                HasSubstr("<url><loc>http://a.example/b/TStats/BOS.htm</loc></url>"));

    publish(league.app);
    EXPECT_EQ(league.files.writes, writes);
    EXPECT_EQ(siteOf(league.files), before);

    league.platform.randomNumber = 0.9; // the other default card
    publish(league.app);
    EXPECT_EQ(league.files.writes, writes);

    Roster roster = league.roster(BOS);
    roster[3].Number += 1;
    league.setRoster(BOS, roster);
    publish(league.app);
    const std::string page = "Profiles/BOS/" + roster[3].Name + ".htm";
    EXPECT_NE(siteOf(league.files).at(page), before.at(page));
    EXPECT_THAT(league.page("Profiles/BOS/index.htm"), HasSubstr(roster[3].Name));
}

TEST(GenerateWebpages, SeasonPagesShowAPlayersCardOrADefaultAndPlayoffPagesAlwaysHisOwn) {
    TestLeague league;
    Roster roster = league.roster(BOS);
    roster[2].Name = "Has Card";
    roster[3].Name = "Who/Knows: \"*\"";
    roster[3].Position = "F";
    std::erase(roster[3].Name, '"'); // the league's files cannot hold a double quote
    league.setRoster(BOS, roster);
    league.files.files[paths::page("PlayerCards/Has Card.gif")] = "GIF";
    league.platform.randomNumber = 0.7;

    publish(league.app);

    const auto site = siteOf(league.files);
    EXPECT_THAT(site.at("Profiles/BOS/Has Card.htm"), HasSubstr("PlayerCards/Has Card.gif\""));
    EXPECT_THAT(site.at("Profiles/BOS/" + roster[0].Name + ".htm"), HasSubstr("PlayerCards/Goalie1.gif\""));
    EXPECT_THAT(site.at("Profiles/BOS/Who_Knows_ _.htm"),
                testing::AllOf(HasSubstr("PlayerCards/Skater2.gif\""), HasSubstr("Who/Knows: *")));
    EXPECT_THAT(site.at("PlayoffProfiles/BOS/" + roster[0].Name + ".htm"),
                HasSubstr("PlayerCards/" + roster[0].Name + ".gif\""));
}

TEST(GenerateWebpages, WritesTheGamesAndWhereNamesLeadAsData) {
    TestLeague league;
    const auto row = [](int number, char kind) {
        return fmt::format(
            "<tr><td><b> {} </b></td><td><b>{}</b></td><td><img src=\"./BannerMinis/BOS.gif\"><b>"
            "<font size = 5> 3 , <img src=\"./BannerMinis/ASW.gif\"> 12 </font>"
            "<a href=\"./BoxScores/a%2C b.htm\" > Box Score </b></a></td></tr>\r\n",
            number, kind);
    };
    league.files.append(paths::page("BoxScores.htm"), row(7, 'S') + "<tr><td><b>by hand\r\n" + row(9, 'E'));
    league.files.files["Site Settings.json"] = R"({"name": "A & B", "address": "http://a.example/"})";
    league.files.files[paths::page("feed.xml")] =
        "<id>http://a.example/</id><entry>\n<id>http://a.example/BoxScores/a%2C b.htm#7</id>\n"
        "<updated>2020-01-02T03:04:05Z</updated>";
    TeamRecord record;
    record.GP = 1;
    league.setRecord(BOS, PartOfYear::Season, record);
    league.setRecord(BUF, PartOfYear::Season, record);
    Roster roster = league.roster(BOS);
    roster[0].Name = "Jean \\ de \xc3\xa9t\xc3\xa9";
    league.setRoster(BOS, roster);

    publish(league.app);

    EXPECT_EQ(
        league.page("data/games.json"),
        "{\"columns\": [\"number\", \"kind\", \"part\", \"away\", \"away goals\", \"home\", \"home goals\", "
        "\"page\", \"date\"],\n\"rows\": [\n"
        "[7, \"S\", \"season\", \"BOS\", 3, \"ASW\", 12, \"BoxScores/a%2C b.htm\", null],\n"
        "[9, \"E\", \"\", \"BOS\", 3, \"ASW\", 12, \"BoxScores/a%2C b.htm\", null]\n]}\n");
    EXPECT_THAT(league.page("data/games.csv"), HasSubstr("\r\n9,E,,BOS,3,ASW,12,BoxScores/a%2C b.htm,\r\n"));
    EXPECT_THAT(
        league.page("feed.xml"),
        HasSubstr(
            "#7</id>\n<updated>2020-01-02T03:04:05Z</updated>\n<title>Boston Bruins 3, All-Stars West 12<"));
    EXPECT_THAT(league.page("data/search.json"),
                HasSubstr("[\"Jean \\\\ de \xc3\xa9t\xc3\xa9\", \"player\", \"BOS\", "
                          "\"Profiles/BOS/Jean%20_%20de%20%C3%A9t%C3%A9.htm\"]"));
}

TEST(GenerateWebpages, MakesAMissingTeamFolder) {
    TestLeague league;
    league.files.folders.erase("IcelineWebPages/Profiles/BOS");
    league.files.folders.erase("IcelineWebPages/PlayoffProfiles/BOS");

    publish(league.app);

    EXPECT_THAT(league.files.filesIn("IcelineWebPages/Profiles/BOS"), Contains("index.htm"));
    EXPECT_THAT(league.files.filesIn("IcelineWebPages/PlayoffProfiles/BOS"), Contains("index.htm"));
}

TEST(MissingTemplateFolders, AreNamedBeforeAnythingIsWritten) {
    TestLeague league;
    league.files.folders.erase("IcelineWebPages/Rankings");
    league.files.folders.erase("IcelineWebPages/PlayoffPStats");
    const auto before = siteOf(league.files);

    EXPECT_EQ(failureOf(league.app), "IcelineWebPages: folders of the site's template are missing: Rankings, "
                                     "PlayoffPStats (no page has been written)");

    EXPECT_EQ(siteOf(league.files), before);
    EXPECT_TRUE(league.app.state.ShowWindows);
    EXPECT_THAT(league.said(), IsEmpty());
}

TEST(MissingTemplateFolders, ComeWithTheTemplateWhenThereIsNoSiteAtAll) {
    TestLeague league;
    std::erase_if(league.files.files,
                  [](const auto& file) { return file.first.starts_with(paths::WebRoot); });
    std::erase_if(league.files.folders, [](const auto& name) { return name.starts_with(paths::WebRoot); });

    // What start-up makes of the site is missing, too: it is named as it is needed.
    EXPECT_THAT(failureOf(league.app), HasSubstr("TStats"));
    EXPECT_TRUE(league.files.isFile("IcelineWebPages/styles.css"));
    EXPECT_TRUE(league.files.isFile("IcelineWebPages/index.htm"));
}

/// Files that cannot write one of them, and count how often each is read.
class OneBadFile : public MemoryFiles {
public:
    explicit OneBadFile(const MemoryFiles& files) : MemoryFiles(files) {}

    std::string read(const std::string& path) override {
        ++timesRead[path];
        return MemoryFiles::read(path);
    }

    void write(const std::string& path, std::string_view content, Durability durability) override {
        if (path == bad)
            throw FileError::cannotWrite(path, "the disk is full");
        MemoryFiles::write(path, content, durability);
    }

    std::string bad;
    std::map<std::string, int> timesRead;
};

struct RunOn {
    explicit RunOn(OneBadFile& files) : app(files, siteTemplate, platform, windowCatalogue()) {
        app.state.ShowWindows = true;
    }

    MemoryFiles siteTemplate = test::smallSiteTemplate();
    test::TestPlatform platform;
    Application app;
};

TEST(FailingRun, NamesThePageAndLeavesTheProgramAsItWas) {
    TestLeague league;
    for (const std::string page : {"Rankings/Teams3.php", "PStats/BOS_N4.php", "Profiles/BUF/index.htm"}) {
        OneBadFile files(league.files);
        files.bad = paths::page(page);
        RunOn run(files);

        EXPECT_EQ(failureOf(run.app), files.bad + ": cannot be written: the disk is full");

        EXPECT_TRUE(run.app.state.ShowWindows) << page;
        EXPECT_FALSE(files.isFile(files.bad));
        EXPECT_EQ(run.platform.busyDepth, 0);
        EXPECT_THAT(run.platform.said(), IsEmpty());
    }
}

TEST(Run, ReadsEachDataFileOnce) {
    TestLeague league;
    OneBadFile files(league.files);
    RunOn run(files);

    publish(run.app);

    for (const auto& [path, times] : files.timesRead)
        if (!path.starts_with(paths::WebRoot + "/")) {
            EXPECT_EQ(times, 1) << path;
        }
    EXPECT_THAT(files.timesRead, Contains(testing::Key("Boston Bruins/Players List.txt")));

    // What has changed since is read by the next run.
    publish(run.app);
    EXPECT_EQ(files.timesRead.at("Boston Bruins/Players List.txt"), 2);
}

} // namespace
} // namespace iceline
