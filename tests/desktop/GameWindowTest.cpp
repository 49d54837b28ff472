#include "desktop/DesktopTest.h"
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
    click(window, "ImportStats");
    EXPECT_EQ(league.said().back(), "The game has been imported and stats have been saved.");
    EXPECT_EQ(league.record(Boston).Wins, 1);
    EXPECT_EQ(league.coachRecord("Ann").Losses, 1);
}

} // namespace

} // namespace iceline::desktop
