#include "desktop/Controls.h"
#include "desktop/DesktopTest.h"

#include <QGroupBox>
#include <QTabWidget>

namespace iceline::desktop {
namespace {

class StandingsWindowTest : public DesktopTest {
protected:
    void set(std::string_view abbr, const TeamRecord& record) {
        league.setRecord(*teamByAbbr(abbr), PartOfYear::Season, record);
    }
};

TEST_F(StandingsWindowTest, TabsAndHeadings) {
    LeagueWindow& window = open(WindowId::Standings);
    const auto& tabs = control<QTabWidget>(window, QStringLiteral("SSTab1"));
    QStringList captions;
    for (int i = 0; i < tabs.count(); ++i)
        captions << tabs.tabText(i);
    EXPECT_EQ(captions.join(QLatin1Char('|')).toStdString(),
              "Division Standings|Conference Standings|Home / Away Standings|vs. Conference Standings");
    const auto title = [&](const char* name) {
        return control<QGroupBox>(window, QLatin1String(name)).title().toStdString();
    };
    EXPECT_EQ(title("Frame2"), "Division Standings");
    EXPECT_EQ(title("Frame3"), "Conference Standings");
    EXPECT_EQ(title("HomeAwayStandings"), "Home and Away Standings");
    EXPECT_EQ(title("EastVsWestStandings"), "Conference vs. Conference Standings");
    EXPECT_EQ(text(window, "Text30"), "Adams Div.          W      L        T  Pts.   GF    GA   GP         "
                                      "Norris Div.           W      L       T    Pts.   GF    GA   GP");
    EXPECT_EQ(text(window, "Text3"), "           HOME RECORDS                      AWAY RECORDS");
    EXPECT_EQ(text(window, "Text4"), "Click a Box to Sort  --->");
}

TEST_F(StandingsWindowTest, EveryElementOfEveryArrayIsThere) {
    LeagueWindow& window = open(WindowId::Standings);
    const QStringList Figures{QStringLiteral("Wins"),         QStringLiteral("Losses"),
                              QStringLiteral("Ties"),         QStringLiteral("Points"),
                              QStringLiteral("GP"),           QStringLiteral("GoalsFor"),
                              QStringLiteral("GoalsAgainst"), QString()};
    for (const char* prefix : {"Northeast", "Atlantic", "Central", "Pacific"})
        for (const QString& figure : Figures)
            EXPECT_NO_THROW(control<QLabel>(window, QLatin1String(prefix) + figure + QStringLiteral("(5)")));
    for (const char* name :
         {"PACClinch(5)", "EasternConference(11)", "WestGoalsAgainst(11)", "EASTClinch(11)", "WESTClinch(11)",
          "TeamsHome(23)", "HomeTeamWinPct(23)", "HomeTeamsGP(23)", "TeamsAway(23)", "AwayTeamWinPct(23)",
          "AwayTeamsGP(23)", "TeamsEast(11)", "EvsEastWins(11)", "EvsWestGP(11)", "TeamsWest(11)",
          "WVsEastGP(11)", "WVsWestLosses(11)", "WVsWestTies(11)"})
        EXPECT_NO_THROW(control<QLabel>(window, QLatin1String(name))) << name;
}

TEST_F(StandingsWindowTest, ShowsTeamsFiguresAndMarks) {
    league.app.state.SeasonLength = 6;
    TeamRecord record;
    record.GP = 6;
    for (const TeamIndex team : AllLeagueTeams)
        league.setRecord(team, PartOfYear::Season, record);
    record.Wins = 5;
    record.Ties = 1;
    record.Points = 11;
    record.GF = 20;
    record.GA = 15;
    record.HW = record.HGP = 3;
    record.HWinPercent = 1;
    record.AW = 2;
    record.AT = 1;
    record.AGP = 3;
    record.AWinPercent = 0.667;
    set("MTL", record);
    LeagueWindow& window = open(WindowId::Standings);
    for (const std::string array : {"Northeast", "East"}) {
        const auto figure = [&](const char* name) { return text(window, (array + name + "(0)").c_str()); };
        EXPECT_THAT((std::array{figure("Wins"), figure("Losses"), figure("Ties"), figure("Points"),
                                figure("GoalsFor"), figure("GoalsAgainst"), figure("GP")}),
                    testing::ElementsAre("5", "0", "1", "11", "20", "15", "6"));
    }
    EXPECT_EQ(banner(window, "Northeast(0)"), "Montreal Canadiens");
    EXPECT_EQ(banner(window, "EasternConference(0)"), "Montreal Canadiens");
    EXPECT_EQ(banner(window, "Pacific(0)"), "Winnipeg Jets");
    EXPECT_EQ(text(window, "NEClinch(0)"), "z");
    EXPECT_EQ(text(window, "EASTClinch(0)"), "z");
    EXPECT_EQ(text(window, "NEClinch(1)"), "");
    EXPECT_EQ(banner(window, "TeamsHome(0)"), "Montreal Canadiens");
    EXPECT_EQ(text(window, "HomeTeamWinPct(0)"), "1");
    EXPECT_EQ(text(window, "AwayTeamWinPct(0)"), "0.667");
    EXPECT_EQ(text(window, "AwayTies(0)"), "1");
}

TEST_F(StandingsWindowTest, SortLabelsRankAndShowWhichRankingIsOnView) {
    TeamRecord record;
    record.SameConfW = 1;
    set("NYR", record);
    record = {};
    record.OtherConfW = 1;
    record.OtherConfL = 1;
    set("QUE", record);
    LeagueWindow& window = open(WindowId::Standings);
    const auto sort = [&](const char* name) {
        return control<SortHead>(window, QLatin1String(name)).property("sort").toString().toStdString();
    };
    EXPECT_EQ(banner(window, "TeamsEast(0)"), "New York Rangers");
    EXPECT_EQ(sort("EvE"), "descending");
    EXPECT_EQ(sort("EvW"), "");
    click(window, "EvW");
    EXPECT_EQ(banner(window, "TeamsEast(0)"), "Quebec Nordiques");
    EXPECT_EQ(text(window, "EvsWestGP(0)"), "0.5");
    EXPECT_EQ(text(window, "EvsEastGP(0)"), "0");
    EXPECT_EQ(sort("EvE"), "");
    EXPECT_EQ(sort("EvW"), "descending");
    EXPECT_EQ(sort("WvW"), "descending");
    click(window, "WvE");
    EXPECT_EQ(sort("WvE"), "descending");
}

TEST_F(StandingsWindowTest, OpenedAgainItIsUpToDateAndExitUnloadsIt) {
    LeagueWindow& window = open(WindowId::Standings);
    TeamRecord record;
    record.Points = 2;
    set("BOS", record);
    open(WindowId::Standings);
    EXPECT_EQ(banner(window, "Northeast(0)"), "Boston Bruins");
    click(window, "Command2");
    EXPECT_FALSE(league.app.windows().isLoaded(WindowId::Standings));
    EXPECT_EQ(windows.window(WindowId::Standings), nullptr);
}

} // namespace
} // namespace iceline::desktop
