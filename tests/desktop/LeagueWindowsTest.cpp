#include "app/Catalogue.h"
#include "app/SplashScreen.h"
#include "desktop/DesktopTest.h"
#include "season/Options.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>

namespace iceline::desktop {

namespace {

constexpr TeamIndex Boston{0};

class LeagueWindowsTest : public DesktopTest {
protected:
    static void choose(QWidget& window, const char* list, int index) {
        auto& box = control<QComboBox>(window, QLatin1String(list));
        box.setCurrentIndex(index);
        Q_EMIT box.activated(index);
    }

    static void type(QWidget& window, const char* field, const char* text) {
        auto& edit = control<QLineEdit>(window, QLatin1String(field));
        edit.setText(QLatin1String(text));
        Q_EMIT edit.textEdited(edit.text());
    }
};

TEST_F(LeagueWindowsTest, EveryRowOfTheCatalogueOpensAndClosesItsWindow) {
    for (const CatalogueRow& row : windowCatalogue()) {
        LeagueWindow& window = open(row.id);
        EXPECT_EQ(window.objectName().toStdString(), row.name);
        EXPECT_TRUE(window.isVisible()) << row.entry;
        window.close();
        EXPECT_FALSE(league.app.windows().isLoaded(row.id)) << row.entry;
        EXPECT_EQ(windows.window(row.id), nullptr) << row.entry;
    }
}

TEST_F(LeagueWindowsTest, ShowsTheTeamChosen) {
    TeamRecord record;
    record.Wins = 4;
    record.PIMPG = 12.5;
    league.setRecord(Boston, PartOfYear::Playoffs, record);
    LeagueWindow& window = open(WindowId::PlayoffTeamStats);
    choose(window, "TeamSelect", Boston);
    EXPECT_EQ(text(window, "Wins"), "4");
    EXPECT_EQ(text(window, "PIMPG"), "12.5");
    EXPECT_EQ(text(window, "ArenaMeter"), "80");
}

TEST_F(LeagueWindowsTest, SortsATeamsPlayersByAClickOnAHead) {
    SkaterStats stats;
    stats.GP = 1;
    stats.G = 3;
    league.setPlayerStats(Boston, PartOfYear::Season, 10, stats);
    const std::string scorer = league.roster(Boston)[10].Name;
    LeagueWindow& window = open(WindowId::PlayerStats);
    choose(window, "PlayersTeamSelect", Boston);
    EXPECT_EQ(text(window, "PlayerLeaderGName"), scorer);
    click(window, "PlayerStatsN(3)");
    EXPECT_EQ(text(window, "PlayerStatsName(0)"), scorer);
    EXPECT_EQ(text(window, "PlayerStatsG(0)"), "3");
    EXPECT_EQ(control<QAbstractButton>(window, QStringLiteral("PlayerStatsN(3)"))
                  .property("sort")
                  .toString()
                  .toStdString(),
              "descending");
}

TEST_F(LeagueWindowsTest, ShowsASkaterAndAGoalieInTheirOwnFrames) {
    LeagueWindow& window = open(WindowId::PlayerProfiles);
    choose(window, "PlayersTeamSelect", Boston);
    choose(window, "PlayersNameSelect", 5);
    EXPECT_EQ(text(window, "PlyrName"), league.roster(Boston)[5].Name);
    EXPECT_TRUE(control<QGroupBox>(window, QStringLiteral("RegularFrame")).isVisible());
    choose(window, "PlayersNameSelect", 0);
    EXPECT_TRUE(control<QGroupBox>(window, QStringLiteral("GoalieFrame")).isVisible());
    EXPECT_FALSE(control<QGroupBox>(window, QStringLiteral("RegularFrame")).isVisible());
}

TEST_F(LeagueWindowsTest, RanksCoachesAndShowsTheOneChosen) {
    TeamRecord record;
    record.GP = record.Points = 2;
    league.addCoach("Ann", record);
    league.addCoach("New");
    LeagueWindow& window = open(WindowId::CoachStats);
    EXPECT_EQ(text(window, "LeagueLeaderTeam3(0)"), "Ann");
    EXPECT_EQ(text(window, "LLTeamPts(0)"), "2");
    EXPECT_EQ(text(window, "LeagueLeaderTeam3(1)"), "") << "a coach without games is not ranked";
    choose(window, "TeamSelect", 1);
    EXPECT_EQ(control<QLineEdit>(window, QStringLiteral("CoachName")).text().toStdString(), "New");
    EXPECT_TRUE(league.files.isFile("IcelineWebPages/CStats/New.htm"));
}

TEST_F(LeagueWindowsTest, ShowsRecordsWithTheirHolders) {
    AllTimePlayerRecords records;
    records[0] = {TeamIndex(10), "Ann First", 6};
    league.files.files[paths::allTimePlayerRecords(PartOfYear::Season)] = textOf("records", records);
    LeagueWindow& window = open(WindowId::AllTimeRecords);
    EXPECT_EQ(text(window, "PlyrGRecName"), "Ann First");
    EXPECT_EQ(text(window, "PlyrGinGame"), "6");
}

TEST_F(LeagueWindowsTest, LooksAfterCoachesAndTheSeason) {
    LeagueWindow& window = open(WindowId::Options);
    auto& name = control<QLineEdit>(window, QStringLiteral("NewC"));
    EXPECT_FALSE(name.isVisible());
    EXPECT_EQ(name.maxLength(), 20);
    click(window, "NewCoach");
    EXPECT_TRUE(name.isVisible());
    type(window, "NewC", "Ann Lee");
    click(window, "Command1");
    EXPECT_EQ(control<QComboBox>(window, QStringLiteral("Combo1")).itemText(0).toStdString(), "Ann_Lee");
    type(window, "SeasonLength", "20");
    click(window, "EnterSeasonLength");
    EXPECT_EQ(control<QLineEdit>(window, QStringLiteral("CurrentSeasonLength")).text().toStdString(), "20");
    EXPECT_EQ(league.app.state.SeasonLength, 20);
}

TEST(Credits, HoldAtTwoPlacesAndEndTheSplashWindow) {
    ApplicationState state;
    iceline::SplashScreen credits(state);
    std::map<int, int> ticksAt;
    int ticks = 0;
    for (; !state.SplashDone && ticks < 1000; ++ticks) {
        credits.Timer2_Timer();
        ++ticksAt[credits.top()];
    }
    EXPECT_EQ(ticksAt[0], 11);
    EXPECT_EQ(ticksAt[-1680], 11);
    EXPECT_EQ(ticksAt[-40], 1);
    EXPECT_EQ(credits.top(), 1200) << "they start again";
    EXPECT_EQ(ticks, 111);
}

} // namespace

} // namespace iceline::desktop
