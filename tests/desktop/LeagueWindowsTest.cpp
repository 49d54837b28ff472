#include "app/Catalogue.h"
#include "app/SplashScreen.h"
#include "desktop/DesktopTest.h"
#include "desktop/QtPlatform.h"
#include "desktop/User.h"
#include "season/Options.h"
#include "site/SiteSettings.h"
#include "support/NumberedRecord.h"

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>

namespace iceline::desktop {

namespace {

constexpr TeamIndex Boston{0};

class LeagueWindowsTest : public DesktopTest {
protected:
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

TEST_F(LeagueWindowsTest, OptionsStoresWhatTheSiteTellsOnceItsAddressIsOne) {
    LeagueWindow& window = open(WindowId::Options);
    int pressed = 0;
    std::string problem;
    const User user([&] {
        auto* dialog = qobject_cast<QDialog*>(shownWindow("SiteSettings"));
        if (!dialog)
            return;
        if (pressed > 0)
            problem = text(*dialog, "Problem");
        type(*dialog, "name", "Lake League");
        type(*dialog, "address", pressed++ == 0 ? "lake" : "https://lake.test/");
        dialog->accept();
    });
    click(window, "WebSite");
    EXPECT_NE(problem.find("must begin with https://"), std::string::npos) << problem;
    const SiteSettings settings = readSiteSettings(league.files);
    EXPECT_EQ(settings.name + settings.address, "Lake Leaguehttps://lake.test/");
}

TEST_F(LeagueWindowsTest, ShowsEveryTeamFigureInTheLabelOfItsField) {
    auto record = test::numberedRecord<TeamRecord>();
    record.GameCount = 0;
    league.setRecord(Boston, PartOfYear::Playoffs, record);
    league.setResults(Boston, PartOfYear::Playoffs, "WWWLLT");
    LeagueWindow& window = open(WindowId::PlayoffTeamStats);
    choose(window, "TeamSelect", Boston.number());
    int place = 0;
    int shown = 0;
    for (const Field<TeamRecord>& field : fieldsOf<TeamRecord>()) {
        ++place;
        const bool isWhole = std::holds_alternative<int TeamRecord::*>(field.member);
        const bool isReal = std::holds_alternative<double TeamRecord::*>(field.member);
        const auto* label = window.findChild<QLabel*>(toQt(field.name));
        if (!label || field.name.starts_with("L10") || !(isWhole || isReal))
            continue;
        EXPECT_EQ(label->text().toStdString(), std::to_string(place) + (isReal ? ".5" : "")) << field.name;
        ++shown;
    }
    EXPECT_EQ(shown, 75);
    EXPECT_EQ(text(window, "AttZonePG"), "0");
    EXPECT_EQ(text(window, "L10W") + text(window, "L10L") + text(window, "L10T"), "321");
    EXPECT_EQ(text(window, "LeagueMeter"), "80");
    for (const char* caption : {"Text2", "Text7"})
        EXPECT_EQ(text(window, caption), "(Averages Per Game)");
    for (const char* caption : {"Text13", "Text14"})
        EXPECT_EQ(text(window, caption), "(Totals)");
    EXPECT_EQ(text(window, "Text16"), "Crowd Meter Records:");
    EXPECT_EQ(text(window, "Text42"), "Power Ranking:");
}

TEST_F(LeagueWindowsTest, ShowsEveryFigureOfAPlayerInItsLabel) {
    Roster roster;
    roster[0] = {"Gil Keeper", 31, 80, "G"};
    roster[1] = {"Ann First", 99, 70, "F"};
    league.setRoster(Boston, roster);
    league.setPlayerStats(Boston, PartOfYear::Season, 0, test::numberedRecord<GoalieStats>());
    league.setPlayerStats(Boston, PartOfYear::Season, 1, test::numberedRecord<SkaterStats>());
    const auto shown = [](QWidget& window, std::initializer_list<const char*> names) {
        std::string texts;
        for (const char* name : names)
            texts += text(window, name) + " ";
        return texts;
    };
    LeagueWindow& table = open(WindowId::PlayerStats);
    choose(table, "PlayersTeamSelect", Boston.number());
    EXPECT_EQ(shown(table, {"PlayerStatsPos(0)", "PlayerStatsNumber(0)", "PlayerStatsName(0)",
                            "PlayerStatsPR(0)", "PlayerStatsG(0)", "PlayerStatsA(0)", "PlayerStatsPts(0)",
                            "PlayerStatsPPG(0)", "PlayerStatsSPct(0)", "PlayerStatsSOG(0)",
                            "PlayerStatsPP(0)", "PlayerStatsSH(0)", "PlayerStatsPIM(0)", "PlayerStatsGP(0)"}),
              "F 99 Ann First 15.5 2 4 6 7.5 10.5 8 12 13 11 1 ");
    EXPECT_EQ(
        shown(table, {"GPlayerStatsPos(0)", "GPlayerStatsNumber(0)", "GPlayerStatsName(0)",
                      "GPlayerStatsPR(0)", "GPlayerStatsW(0)", "GPlayerStatsL(0)", "GPlayerStatsT(0)",
                      "GPlayerStatsGAA(0)", "GPlayerStatsSVPct(0)", "GPlayerStatsSHO(0)", "GPlayerStatsSF(0)",
                      "GPlayerStatsGA(0)", "GPlayerStatsA(0)", "GPlayerStatsGP(0)"}),
        "G 31 Gil Keeper 1.55 5 6 7 9.5 10.5 3 8 2 4 1 ");
    EXPECT_EQ(text(table, "Text3"), "1\n2\n3\n4");

    LeagueWindow& profile = open(WindowId::PlayerProfiles);
    choose(profile, "PlayersTeamSelect", Boston.number());
    choose(profile, "PlayersNameSelect", 1);
    EXPECT_EQ(shown(profile, {"PlyrNum", "PlyrOverall", "Label1", "PlyrGP", "PlyrG", "PlyrGPG", "PlyrA",
                              "PlyrAPG", "PlyrPts", "PlyrPPG", "PlyrSOG", "PlyrSOGPG", "PlyrSPct", "PlyrPIM",
                              "PlyrPP", "PlyrSH", "PlyrPIMPG", "PlyrPowRanking", "Plyr3Star"}),
              "99 70 F 1 2 3.5 4 5.5 6 7.5 8 9.5 10.5 11 12 13 14.5 15.5 16 ");
    choose(profile, "PlayersNameSelect", 0);
    EXPECT_EQ(shown(profile, {"GoalieGP", "GoalieW", "Text4", "GoalieL", "Text5", "GoalieT", "GoalieGAA",
                              "GoalieSavePct", "GoalieShutouts", "ShotsFaced", "GoalsAgainst", "GoalieA",
                              "Goalie3Star", "GoaliePowRanking"}),
              "1 5 - 6 - 7 9.5 10.5 3 8 2 4 16 1.55 ");
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
    EXPECT_EQ(window.focusWidget(), &name);
    type(window, "NewC", "Ann Lee");
    Q_EMIT name.returnPressed();
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
