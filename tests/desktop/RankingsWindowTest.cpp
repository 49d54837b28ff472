#include "desktop/DesktopTest.h"
#include "leaders/LeadersSupport.h"

#include <QGroupBox>
#include <QTabWidget>

namespace iceline::desktop {
namespace {

using test::setGoalie;
using test::setSkater;
using test::teamRecord;

constexpr TeamIndex BOS{0};
constexpr TeamIndex MTL{10};

class RankingsWindowTest : public DesktopTest {
protected:
    /// How a head is marked: "descending" is red, "ascending" is blue.
    static std::string markOf(QWidget& window, const char* head) {
        return control<QAbstractButton>(window, QLatin1String(head))
            .property("sort")
            .toString()
            .toStdString();
    }

    static bool isShown(QWidget& window, const char* label) {
        return control<QLabel>(window, QLatin1String(label)).isVisibleTo(&window);
    }
};

TEST_F(RankingsWindowTest, ShowsTheLeadersAndSortsThemByTheirHeads) {
    setSkater(league, BOS, 3, "Jan Stick", {.GP = 2, .G = 1, .Pts = 4});
    setSkater(league, MTL, 3, "Ole Puck", {.GP = 2, .G = 3, .Pts = 3});
    LeagueWindow& window = open(WindowId::Rankings);

    EXPECT_EQ(window.windowTitle(), QStringLiteral("Rankings"));
    EXPECT_EQ(text(window, "LeagueLeaderName(0)"), "JAN STICK");
    EXPECT_EQ(text(window, "LeagueLeaderPoints(0)"), "4");
    EXPECT_EQ(text(window, "LeagueLeaderName(2)"), "");
    EXPECT_EQ(text(window, "Text1"), "1\n2\n");
    EXPECT_TRUE(isShown(window, "LeagueLeaderTeam(1)"));
    EXPECT_FALSE(isShown(window, "LeagueLeaderTeam(2)"));
    EXPECT_EQ(markOf(window, "lColN(2)"), "descending");

    click(window, "lColN(0)");
    EXPECT_EQ(text(window, "LeagueLeaderName(0)"), "OLE PUCK");
    EXPECT_EQ(markOf(window, "lColN(2)"), "");
    EXPECT_EQ(markOf(window, "lColN(0)"), "descending");
    click(window, "lColN(0)");
    EXPECT_EQ(text(window, "LeagueLeaderGoals(0)"), "1");
    EXPECT_EQ(markOf(window, "lColN(0)"), "ascending");
}

TEST_F(RankingsWindowTest, HasItsFourTablesInTabsUnderTheirTitles) {
    GoalieStats goalie{.GP = 3, .GW = 2, .StarPoints = 9};
    goalie.SvPct = 0.912;
    setGoalie(league, MTL, 0, "Al Masque", goalie);
    league.setRecord(MTL, PartOfYear::Season, teamRecord(4, 8));
    LeagueWindow& window = open(WindowId::Rankings);

    const auto& tabs = control<QTabWidget>(window, QStringLiteral("SSTab1"));
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("League Leaders"));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("Team Leaders"));
    const auto& leagueTabs = control<QTabWidget>(window, QStringLiteral("SSTab2"));
    EXPECT_EQ(leagueTabs.tabText(2), QStringLiteral("Three Star Award Rankings"));
    EXPECT_EQ(text(window, "Text9"), "PLAYER LEAGUE LEADERS");
    EXPECT_EQ(text(window, "Text8"), "GOALIE LEAGUE LEADERS");
    EXPECT_EQ(text(window, "Text7"), "THREE STAR AWARD LEADERS");
    EXPECT_EQ(text(window, "Text4"), "Click a Box to Sort  --->");

    EXPECT_EQ(text(window, "LeagueLeaderGName(0)"), "AL MASQUE");
    EXPECT_EQ(text(window, "LeagueLeaderGSPct(0)"), "0.912");
    EXPECT_EQ(markOf(window, "lColG(6)"), "descending");
    EXPECT_EQ(text(window, "LL3StarPts(0)"), "9");
    EXPECT_EQ(text(window, "Text6"), "1\n");
    click(window, "ThreeStarSort");
    EXPECT_EQ(markOf(window, "ThreeStarSort"), "ascending");

    EXPECT_EQ(text(window, "LLTeamPts(0)"), "8");
    EXPECT_EQ(markOf(window, "tmLeadersCol(2)"), "descending");
    click(window, "tmLeadersCol(0)");
    EXPECT_EQ(markOf(window, "tmLeadersCol(0)"), "descending");
    EXPECT_EQ(text(window, "Text3"), "1\n");
}

TEST_F(RankingsWindowTest, OfCoachesHasItsFrameAndThreeWaysOut) {
    league.addCoach("Ann", teamRecord(4, 8));
    for (const char* exit : {"Command2(0)", "Command2(1)", "Command2(2)"}) {
        LeagueWindow& window = open(WindowId::CoachStats);
        EXPECT_EQ(control<QGroupBox>(window, QStringLiteral("Frame3")).title(),
                  QStringLiteral("Coach Leaders"));
        EXPECT_EQ(text(window, "Text44"), "1\n");
        EXPECT_EQ(markOf(window, "tmLeadersCol(2)"), "descending");
        EXPECT_EQ(control<QAbstractButton>(window, QLatin1String(exit)).text(), QStringLiteral("Exit"));
        click(window, exit);
        EXPECT_FALSE(league.app.windows().isLoaded(WindowId::CoachStats)) << exit;
    }
}

TEST_F(RankingsWindowTest, OfThePlayoffsClosesByItsButton) {
    LeagueWindow& window = open(WindowId::PlayoffRankings);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Playoff Rankings"));
    click(window, "Command2");
    EXPECT_FALSE(league.app.windows().isLoaded(WindowId::PlayoffRankings));
}

} // namespace
} // namespace iceline::desktop
