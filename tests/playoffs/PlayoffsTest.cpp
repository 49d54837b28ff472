#include "playoffs/Playoffs.h"

#include "app/Catalogue.h"
#include "app/Startup.h"
#include "app/WelcomeWindow.h"
#include "files/FileError.h"
#include "playoffs/SeasonEnd.h"
#include "standings/StandingsSupport.h"
#include "support/Test.h"
#include "support/TestLeague.h"

namespace iceline::test {
namespace {

constexpr const char* SeasonIsOver = "Regular Season COMPLETE, Playoff Mode now active for the Postseason.";

/// A league whose teams rank in the order of the team table: Wales is seeded BOS LI BUF HFD MTL NJ NYR OTA,
/// Campbell CGY CHI DET EDM LA MIN SJ STL.
class SeasonEnd : public testing::Test {
protected:
    SeasonEnd() { setSeasonLength(10); }

    void setSeasonLength(int games) {
        league.files.files[paths::GamesUntilPlayoffs] = std::to_string(games) + "\r\n";
        league.app.state.SeasonLength = games;
    }

    void play(TeamIndex team, int games) {
        TeamRecord record;
        record.GP = games;
        record.Points = 2 * LeagueTeams - 2 * team.number();
        record.PowerRanking = games;
        league.setRecord(team, PartOfYear::Season, record);
    }

    void playSeason(int games = 10) {
        for (const TeamIndex team : AllLeagueTeams)
            play(team, games);
    }

    TestLeague league;
    ApplicationState& state = league.app.state;
};

TEST_F(SeasonEnd, WaitsForTheLastTeamAndHappensOnce) {
    playSeason();
    play(team("WPG"), 9);
    checkSeason(league.app);
    EXPECT_FALSE(state.PlayoffMode);
    EXPECT_EQ(state.SeasonFolder, "");
    play(team("WPG"), 10);
    checkSeason(league.app);
    checkSeason(league.app);
    EXPECT_TRUE(state.PlayoffMode);
    EXPECT_EQ(state.SeasonFolder, "/Post Season");
    EXPECT_EQ(state.PlayoffSeries[6], (PlayoffSeriesRecord{0, 0, team("DET"), team("MIN")}));
    EXPECT_THAT(league.said(), ElementsAre(SeasonIsOver));
}

TEST_F(SeasonEnd, EndedByHandItTakesTheSeedsOfTheMoment) {
    play(team("BUF"), 3);
    setSeasonLength(-1);
    checkSeason(league.app);
    EXPECT_TRUE(state.PlayoffMode);
    EXPECT_EQ(state.PlayoffSeries[0].TeamA, team("BUF"));
}

TEST_F(SeasonEnd, NextRunFindsItOutWithoutAMessageHoweverLongTheSeason) {
    setSeasonLength(32767);
    playSeason(32767);
    MemoryFiles siteTemplate;
    TestPlatform platform;
    Application nextRun(league.files, siteTemplate, platform, windowCatalogue());
    ASSERT_TRUE(startUp(nextRun));
    EXPECT_TRUE(nextRun.state.PlayoffMode);
    EXPECT_EQ(nextRun.state.PlayoffSeries[0].TeamA, team("BOS"));
    EXPECT_THAT(platform.said(), IsEmpty());
}

TEST_F(SeasonEnd, RecordThatCannotBeReadLeavesTheRegularSeason) {
    setSeasonLength(-1);
    // Whole up to the games played, cut after them.
    league.files.files["Winnipeg Jets/Records.txt"] = "0,0,0,0,0,10\r\n";
    EXPECT_THROW(checkSeason(league.app), FileError);
    EXPECT_FALSE(state.PlayoffMode);
    EXPECT_EQ(state.SeasonFolder, "");
    EXPECT_EQ(state.PlayoffSeries[0].TeamA, BlankTeam);
    EXPECT_THAT(league.said(), IsEmpty());
}

class PlayoffsWindow : public SeasonEnd {
protected:
    const Playoffs::Content& open(TestLeague& on) {
        on.app.windows().unload(WindowId::Playoffs);
        return static_cast<Playoffs&>(WelcomeWindow(on.app).List1_Click(WindowId::Playoffs)).content();
    }
    const Playoffs::Content& open() { return open(league); }

    /// Gives games of a series to its first or second team, as the import does.
    void win(int number, SeriesTeam winner, int games) {
        PlayoffSeriesTable& table = state.PlayoffSeries;
        readPlayoffRecords(league.files, table);
        for (int i = 0; i < games; ++i)
            recordResult(table, {SeriesIndex(number), winner}, {.home = 2, .away = 1});
        league.files.files[paths::PlayoffRecords] = textOf(table);
    }

    void startPlayoffs() {
        playSeason();
        checkSeason(league.app);
    }

    /// A series as the window shows it: "BOS 4, OTA 0".
    static std::string text(const Playoffs::Content& content, int number) {
        const auto side = [&](SeriesTeam team) {
            const SeriesPlace place{SeriesIndex(number), team};
            const std::string wins = content.wins(place);
            return std::string(TeamAbbr[content.team(place)]) + (wins.empty() ? "" : " " + wins);
        };
        return side(SeriesTeam::A) + ", " + side(SeriesTeam::B);
    }

    /// The series from one number to another.
    static std::vector<std::string> texts(const Playoffs::Content& content, int first, int last) {
        std::vector<std::string> texts;
        for (int number = first; number <= last; ++number)
            texts.push_back(text(content, number));
        return texts;
    }

    std::vector<std::string> pageLines() { return linesOf(league.page("PlayoffTree.htm")); }
};

/// What opens a row of the page, by round.
std::string seed(int number) {
    return "<tr><td><b><font size=4>" + std::to_string(number) + "</font></b></td><td>";
}
const std::string SecondRound = "<tr><td></td><td></td><td></td><td></td><td><td></td><td>";
const std::string ConferenceFinal =
    "<tr><td></td><td></td><td></td><td><td></td><td></td><td></td><td></td><td></td><td><td></td><td>";
const std::string Final =
    "<tr><td></td><td></td><td></td><td><td></td><td></td><td></td><td></td><td><td></td><td></td>"
    "<td></td><td></td><td></td><td><td></td><td>";

std::string row(const std::string& opening, const std::string& abbr, const std::string& wins = "") {
    return opening + "<img src=\"./BannerMinis/" + abbr + ".gif\"></img></td><td>&nbsp;" + wins +
           "</td></tr>";
}

/// The teams whose banners a page shows, in its order.
std::string banners(const std::vector<std::string>& lines) {
    const std::string folder = "BannerMinis/";
    std::string abbrs;
    for (const std::string& line : lines)
        if (const auto place = line.find(folder); place != std::string::npos)
            abbrs +=
                line.substr(place + folder.size(), line.find(".gif", place) - place - folder.size()) + " ";
    return abbrs;
}

TEST_F(PlayoffsWindow, DuringTheSeasonTheTreeIsThatOfTheMoment) {
    playSeason();
    play(team("BUF"), 9);
    const Playoffs::Content& content = open();
    EXPECT_THAT(texts(content, 0, 7), ElementsAre("BOS, OTA", "HFD, MTL", "BUF, NJ", "LI, NYR", "CGY, STL",
                                                  "EDM, LA", "DET, MIN", "CHI, SJ"));
    EXPECT_THAT(texts(content, 8, 14), Each("Blank, Blank"));
    EXPECT_EQ(content.champion(), BlankTeam);
    EXPECT_THAT(league.said(), IsEmpty());

    EXPECT_THAT(
        pageLines(),
        ElementsAre(
            StartsWith("<html><head><title>Rinkstar - Playoff Tree</title>"),
            "<body link = BLACK vlink = BLACK alink = RED><font face =arial size=2><center>",
            StartsWith(R"(<p><a href="./index.htm">)"),
            R"(<br/><br/><p><img src="Headers/PlayoffTree.gif"></img></p><br/><br/>)",
            "<table border = 1><tr><th colspan=20><center><b>Eastern Conference</b></center></th></tr>",
            row(seed(1), "BOS"), row(SecondRound, "Blank"), row(seed(8), "OTA"),
            row(ConferenceFinal, "Blank"), row(seed(4), "HFD"), row(SecondRound, "Blank"),
            row(seed(5), "MTL"), row(Final, "Blank"), row(seed(3), "BUF"), row(SecondRound, "Blank"),
            row(seed(6), "NJ"), row(ConferenceFinal, "Blank"), row(seed(2), "LI"), row(SecondRound, "Blank"),
            row(seed(7), "NYR"), "</table><BR><BR>",
            R"(<table border = 1 align =right><tr><th>Stanley Cup Champions</th></tr><tr><td>)"
            R"(<img src="./BannerMinis/Blank.gif"></img></td></tr></table>)",
            "<BR><BR><BR><BR><BR><table border =1><tr><th colspan=20><center><b>Western Conference</b>"
            "</center></th></tr>",
            row(seed(1), "CGY"), row(SecondRound, "Blank"), row(seed(8), "STL"),
            row(ConferenceFinal, "Blank"), row(seed(4), "EDM"), row(SecondRound, "Blank"), row(seed(5), "LA"),
            row(Final, "Blank"), row(seed(3), "DET"), row(SecondRound, "Blank"), row(seed(6), "MIN"),
            row(ConferenceFinal, "Blank"), row(seed(2), "CHI"), row(SecondRound, "Blank"), row(seed(7), "SJ"),
            "</table></font></center></body></html>"));
}

TEST_F(PlayoffsWindow, EndsASeasonThatIsOverAndCountsALaterSeriesOnceBothTeamsAreKnown) {
    playSeason();
    EXPECT_TRUE(open().PlayoffMode);
    EXPECT_THAT(league.said(), ElementsAre(SeasonIsOver));
    EXPECT_EQ(text(open(), 0), "BOS 0, OTA 0");
    win(0, SeriesTeam::A, 4);
    win(6, SeriesTeam::B, 3);
    const Playoffs::Content& content = open();
    EXPECT_EQ(text(content, 0), "BOS 4, OTA 0");
    EXPECT_EQ(text(content, 6), "DET 0, MIN 3");
    EXPECT_EQ(text(content, 8), "BOS, Blank");
    const auto lines = pageLines();
    EXPECT_EQ(lines.at(5), row(seed(1), "BOS", "4"));
    EXPECT_EQ(lines.at(6), row(SecondRound, "BOS"));
    EXPECT_EQ(lines.at(10), row(SecondRound, "Blank"));
    EXPECT_EQ(lines.at(33),
              R"(<tr><td><b><font size=4>6</font></b></td><td><img src="./BannerMinis/MIN.gif"></img></td>)"
              "<td>3</td></tr>");

    win(1, SeriesTeam::B, 4);
    EXPECT_EQ(text(open(), 8), "BOS 0, MTL 0");
}

TEST_F(PlayoffsWindow, AllRoundsAcrossRestartsToTheChampion) {
    startPlayoffs();
    for (int series = 0; series < 8; ++series)
        win(series, series == 2 ? SeriesTeam::B : SeriesTeam::A, 4);
    TestLeague afterFirstRound(league.files);
    EXPECT_THAT(texts(open(afterFirstRound), 8, 12),
                ElementsAre("BOS 0, HFD 0", "NJ 0, LI 0", "CGY 0, EDM 0", "DET 0, CHI 0", "Blank, Blank"));

    for (int series = 8; series < 12; ++series)
        win(series, SeriesTeam::B, 4);
    win(12, SeriesTeam::B, 4);
    win(13, SeriesTeam::A, 4);
    EXPECT_THAT(texts(open(), 12, 14), ElementsAre("HFD 0, LI 4", "EDM 4, CHI 0", "LI 0, EDM 0"));
    EXPECT_EQ(open().champion(), BlankTeam);

    win(14, SeriesTeam::A, 3);
    win(14, SeriesTeam::B, 4);
    TestLeague afterTheFinal(league.files);
    const Playoffs::Content& content = open(afterTheFinal);
    EXPECT_EQ(content.champion(), team("EDM"));
    EXPECT_EQ(text(content, 14), "LI 3, EDM 4");
    const auto lines = linesOf(afterTheFinal.page("PlayoffTree.htm"));
    EXPECT_EQ(lines.at(12), row(Final, "LI", "3"));
    EXPECT_EQ(lines.at(30), row(Final, "EDM", "4"));
    EXPECT_EQ(banners(lines), "BOS BOS OTA HFD HFD HFD MTL LI BUF NJ NJ LI LI LI NYR EDM "
                              "CGY CGY STL EDM EDM EDM LA EDM DET DET MIN CHI CHI CHI SJ ");
}

TEST_F(PlayoffsWindow, DamagedFileIsNamedAndNoPageIsWritten) {
    startPlayoffs();
    league.files.files[paths::PlayoffRecords] = "0,0\r\n0,x\r\n";
    EXPECT_THAT([this] { open(); }, testing::ThrowsMessage<FileError>(
                                        StartsWith("Playoff Records.txt, line 2, item 2 (WinsB): ")));
    EXPECT_FALSE(league.files.isFile(paths::page("PlayoffTree.htm")));
    EXPECT_FALSE(league.app.windows().isLoaded(WindowId::Playoffs));
}

} // namespace
} // namespace iceline::test
