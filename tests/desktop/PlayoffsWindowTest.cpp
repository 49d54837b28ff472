#include "desktop/DesktopTest.h"
#include "playoffs/Bracket.h"

#include <QGroupBox>

namespace iceline::desktop {
namespace {

/// Teams rank in the order of the team table: BOS LI BUF HFD MTL NJ NYR OTA, CGY CHI DET EDM LA MIN SJ STL.
class PlayoffsWindowTest : public DesktopTest {
protected:
    PlayoffsWindowTest() {
        league.app.state.SeasonLength = 1;
        TeamRecord record;
        for (const TeamIndex team : AllLeagueTeams) {
            record.Points = LeagueTeams - team.number();
            league.setRecord(team, PartOfYear::Season, record);
        }
    }

    void startPlayoffs() {
        league.app.state.SeasonLength = -1;
        open(WindowId::Playoffs).close();
    }

    void win(int series, SeriesTeam winner, int games) {
        for (int i = 0; i < games; ++i)
            recordResult(league.app.state.PlayoffSeries, {SeriesIndex(series), winner},
                         {.home = 2, .away = 1});
        league.files.files[paths::PlayoffRecords] = textOf(league.app.state.PlayoffSeries);
    }

    static bool isShown(QWidget& window, const char* name) {
        return control<QLabel>(window, QLatin1String(name)).isVisible();
    }
};

TEST_F(PlayoffsWindowTest, BracketOfTheMomentFitsTheScreen) {
    LeagueWindow& window = open(WindowId::Playoffs);
    EXPECT_EQ(window.windowTitle().toStdString(), "Playoff Tree");
    EXPECT_LE(window.width(), 1280);
    EXPECT_LE(window.height(), 770);
    EXPECT_EQ(control<QGroupBox>(window, QStringLiteral("Frame5")).title().toStdString(), "Playoff Tree");
    EXPECT_EQ(text(window, "Text23"), "EASTERN CONFERENCE");
    EXPECT_EQ(text(window, "Text24"), "WESTERN CONFERENCE");
    std::string seeds;
    for (int i = 1; i <= 16; ++i)
        seeds += text(window, ("Text" + std::to_string(i)).c_str());
    EXPECT_EQ(seeds, "1845362718453627");
    EXPECT_EQ(banner(window, "EastFirstRound(0)"), "Boston Bruins");
    EXPECT_EQ(banner(window, "EastFirstRound(7)"), "Ottawa Senators");
    EXPECT_EQ(banner(window, "WestFirstRound(3)"), "Edmonton Oilers");
    EXPECT_EQ(banner(window, "T1(6)"), "");
    EXPECT_EQ(text(window, "W1(0)"), "");
    EXPECT_EQ(text(window, "Label15"), "-");
    EXPECT_FALSE(isShown(window, "Label1"));
    EXPECT_FALSE(control<QLabel>(window, QStringLiteral("Picture2")).pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(PlayoffsWindowTest, WinsAndWinnersMoveTowardsTheMiddle) {
    startPlayoffs();
    win(0, SeriesTeam::A, 4);
    win(1, SeriesTeam::B, 3);
    LeagueWindow& window = open(WindowId::Playoffs);
    EXPECT_EQ(text(window, "W1(0)") + text(window, "W2(0)"), "40");
    EXPECT_EQ(text(window, "W2(1)"), "3");
    EXPECT_TRUE(isShown(window, "Label1"));
    EXPECT_EQ(banner(window, "T1(0)"), "Boston Bruins");
    EXPECT_EQ(text(window, "W1(8)"), "");
    EXPECT_FALSE(isShown(window, "Label9"));
    EXPECT_EQ(control<QLabel>(window, QStringLiteral("W1(0)")).property("result").toString().toStdString(),
              "won");
    EXPECT_EQ(control<QLabel>(window, QStringLiteral("W2(0)")).property("result").toString().toStdString(),
              "lost");
}

TEST_F(PlayoffsWindowTest, ChampionIsFramed) {
    startPlayoffs();
    for (int series = 0; series < SeriesCount; ++series)
        win(series, series == FinalSeries.number() ? SeriesTeam::B : SeriesTeam::A, 4);
    LeagueWindow& window = open(WindowId::Playoffs);
    EXPECT_EQ(banner(window, "StanleyCup"), "Calgary Flames");
    EXPECT_TRUE(control<QLabel>(window, QStringLiteral("StanleyCup")).property("champion").toBool());
    EXPECT_EQ(banner(window, "T1(6)"), "Boston Bruins");
    EXPECT_EQ(text(window, "W1(14)") + "-" + text(window, "W2(14)"), "0-4");
}

} // namespace
} // namespace iceline::desktop
