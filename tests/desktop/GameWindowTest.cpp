#include "app/Catalogue.h"
#include "desktop/DesktopTest.h"
#include "desktop/StatExtractorWindow.h"
#include "games/StatExtractor.h"
#include "samples/SaveStateWriter.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace iceline::desktop {

namespace {

constexpr TeamIndex Boston{0};
constexpr TeamIndex Montreal{10};

class GameWindowTest : public DesktopTest {
protected:
    using DesktopTest::choose;

    void choose(const GameSheet& game) {
        league.files.files["game.gs0"] = saveStateBytes(game);
        league.platform.chosen.push_back("game.gs0");
    }

    GameSheet game() {
        GameSheet sheet(Boston, Montreal);
        sheet.addGoal(1, 60, Side::Home, Strength::PowerPlay, 4, 6);
        sheet.addPenalty(1, 50, Side::Away, Infraction::Hooking, 5);
        return sheet;
    }
};

TEST_F(GameWindowTest, ShowsAWholeGame) {
    LeagueWindow& window = open(WindowId::StatExtractor);
    EXPECT_EQ(text(window, "FileName"), "[No File Loaded]");
    choose(game());
    click(window, "LoadStats");
    EXPECT_EQ(text(window, "DisplayHomeScore"), "1");
    EXPECT_EQ(text(window, "DisplayAwayScore"), "0");
    EXPECT_EQ(text(window, "FOTBox"), "F");
    EXPECT_EQ(text(window, "Team1Goals(4)"), "1");
    EXPECT_EQ(text(window, "Team1Names(4)"), league.roster(Boston)[4].Name);
    EXPECT_EQ(text(window, "Team1PPG"), "1");
    EXPECT_EQ(text(window, "Team2Names(24)"), "") << "an empty roster row";
    EXPECT_EQ(text(window, "FirstStar"), league.app.state.Star[0].Name);
    const QString scoring = control<QPlainTextEdit>(window, QStringLiteral("ScoringSummary")).toPlainText();
    EXPECT_TRUE(scoring.contains(QStringLiteral(" 1  1:00  BOS"))) << scoring.toStdString();
}

TEST_F(GameWindowTest, TakesAGameOfTheEmulatorsSlotForOneOfTheSeason) {
    auto& window = static_cast<StatExtractorWindow&>(open(WindowId::StatExtractor));
    league.files.files["slot.gs0"] = saveStateBytes(game());
    window.importSlot("slot.gs0");
    EXPECT_EQ(league.said().back(), "The game has been imported and stats have been saved.");
    EXPECT_EQ(league.record(Boston).Wins, 1);
    EXPECT_TRUE(control<QRadioButton>(window, QStringLiteral("Season")).isChecked());
}

TEST_F(GameWindowTest, ImportsByTheOptionAndKeepsTheCoachesApart) {
    league.addCoach("Ann");
    LeagueWindow& window = open(WindowId::StatExtractor);
    auto& home = control<QComboBox>(window, QStringLiteral("T1Coach"));
    auto& away = control<QComboBox>(window, QStringLiteral("T2Coach"));
    EXPECT_EQ(home.itemText(1).toStdString(), "Ann");
    EXPECT_EQ(home.currentIndex(), -1);
    home.setCurrentIndex(1);
    Q_EMIT home.activated(1);
    away.setCurrentIndex(1);
    Q_EMIT away.activated(1);
    EXPECT_EQ(home.currentIndex(), 0) << "nobody can coach both teams";
    choose(game());
    click(window, "LoadStats");
    click(window, "Season");
    EXPECT_EQ(text(window, "Standing"), "read \u2013 not imported");
    EXPECT_THAT(text(window, "OutlookText"),
                testing::HasSubstr("0-0-0, 0 points, place 6 -> 1-0-0, 2 points, place 1, streak W1\n"));
    click(window, "ImportStats");
    EXPECT_EQ(league.said().back(), "The game has been imported and stats have been saved.");
    EXPECT_EQ(text(window, "Standing"), "imported as game 1");
    EXPECT_EQ(text(window, "OutlookText"), "");
    EXPECT_EQ(league.record(Boston).Wins, 1);
    EXPECT_EQ(league.coachRecord("Ann").Losses, 1);
}

/// All that a window says.
QString textsOf(const QWidget& window) {
    QString texts = window.windowTitle();
    for (const QLabel* label : window.findChildren<QLabel*>())
        texts += label->objectName() + u'=' + label->text() + label->accessibleName() + u'\n';
    return texts;
}

TEST_F(GameWindowTest, WhatItChangesShowsInEveryOpenWindowAsInANewOne) {
    league.addCoach("Ann");
    league.app.state.SeasonLength = 1;
    choose(game());
    for (const CatalogueRow& row : windowCatalogue())
        openWithChoices(row.id);
    LeagueWindow& import = *windows.window(WindowId::StatExtractor);
    click(import, "LoadStats");
    click(import, "Season");
    choose(import, "T1Coach", 1);
    click(import, "ImportStats");

    const auto files = league.files.files;
    const auto teams = league.app.state.TeamLeaderTable;
    league.app.windows().renewOpen();
    EXPECT_EQ(league.files.files, files);
    for (const TeamIndex team : AllLeagueTeams)
        EXPECT_EQ(league.app.state.TeamLeaderTable[team].values, teams[team].values) << "what an import asks";
    for (const CatalogueRow& row : windowCatalogue()) {
        if (row.id == WindowId::StatExtractor)
            continue;
        const QString shown = textsOf(*windows.window(row.id));
        windows.window(row.id)->close();
        EXPECT_EQ(shown.toStdString(), textsOf(openWithChoices(row.id)).toStdString());
    }
    EXPECT_EQ(text(*windows.window(WindowId::TeamStats), "Losses"), "0");
    EXPECT_EQ(text(*windows.window(WindowId::TeamStats), "Wins"), "1");
}

TEST_F(GameWindowTest, LosesItsMarkWhenTheSeasonIsCleared) {
    league.app.state.PlayoffMode = true;
    LeagueWindow& window = open(WindowId::StatExtractor);
    EXPECT_TRUE(window.windowTitle().endsWith(QStringLiteral("PLAYOFF MODE *****")));
    LeagueWindow& options = open(WindowId::Options);
    Q_EMIT control<QComboBox>(options, QStringLiteral("ClearTeamSelect")).activated(Boston.number());
    click(options, "Command8");
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Stat Extractor"));
}

} // namespace

} // namespace iceline::desktop
