#include "desktop/HistoryWindow.h"

#include "DesktopTest.h"
#include "desktop/CorrectionDialog.h"
#include "desktop/QtPlatform.h"
#include "desktop/WatchBar.h"
#include "games/StatExtractor.h"
#include "samples/SaveStateWriter.h"
#include "support/TemporaryFolder.h"

#include <QLineEdit>
#include <QTableView>

#include <fstream>

namespace iceline::desktop {
namespace {

class HistoryWindowTest : public DesktopTest {
protected:
    void import(const std::string& file, int home, int away) {
        GameSheet game{TeamIndex(home), TeamIndex(away)};
        game.home.Goals = game.home.Shots = 3;
        league.files.files[file] = saveStateBytes(game);
        league.platform.chosen.push_back(file);
        StatExtractor& extractor = StatExtractor::in(league.app);
        extractor.Exhibition = false;
        extractor.Season = true;
        extractor.LoadStats_Click();
        extractor.ImportStats_Click();
    }

    /// What the column "Operation" and that of the states show, row by row.
    std::vector<std::string> rows() {
        const QAbstractItemModel& model = *control<QTableView>(window, QStringLiteral("Operations")).model();
        std::vector<std::string> shown;
        for (int row = 0; row < model.rowCount(); ++row)
            shown.push_back((model.index(row, 2).data().toString() + QLatin1Char('|') +
                             model.index(row, 3).data().toString())
                                .toStdString());
        return shown;
    }

    HistoryWindow window{league.app};
};

TEST_F(HistoryWindowTest, TakesAChosenGameBackAndPutsItInPlaceAgain) {
    import("1.gs0", 0, 1);
    import("2.gs0", 2, 3);
    window.showAgain();
    const std::string first =
        "game 1, " + std::string(TeamName[0]) + " 3, " + std::string(TeamName[1]) + " 0|";
    const std::string second =
        "game 2, " + std::string(TeamName[2]) + " 3, " + std::string(TeamName[3]) + " 0|";
    EXPECT_THAT(rows(), testing::ElementsAre(second, first)) << "newest first";

    control<QTableView>(window, QStringLiteral("Operations")).selectRow(1);
    click(window, "Undo");
    EXPECT_THAT(rows(), testing::ElementsAre(testing::HasSubstr("game 1, " + std::string(TeamName[2])),
                                             testing::EndsWith("|undone")));
    EXPECT_EQ(league.record(TeamIndex(0)).GP, 0);
    EXPECT_EQ(league.record(TeamIndex(2)).GP, 1);
    click(window, "Redo");
    EXPECT_THAT(rows(), testing::ElementsAre(second, first));
    EXPECT_EQ(league.record(TeamIndex(0)).GP, 1);

    control<QLineEdit>(window, QStringLiteral("Search")).setText(toQt(TeamName[3]));
    EXPECT_THAT(rows(), testing::ElementsAre(second));
    control<QLineEdit>(window, QStringLiteral("Search")).clear();
    control<QComboBox>(window, QStringLiteral("Team")).setCurrentIndex(1);
    EXPECT_THAT(rows(), testing::ElementsAre(first));
}

TEST_F(HistoryWindowTest, ShowsTheReportOfAGameAndCorrectsIt) {
    league.addCoach("Ann");
    import("1.gs0", 0, 1);
    import("2.gs0", 2, 3);
    window.showAgain();
    EXPECT_FALSE(control<QAbstractButton>(window, QStringLiteral("Correct")).isEnabled())
        << "no row is chosen";
    control<QTableView>(window, QStringLiteral("Operations")).selectRow(0);
    league.files.files.erase("2.gs0");
    click(window, "Report");
    auto& report = control<QWidget>(window, QStringLiteral("GameReport"));
    EXPECT_EQ(text(report, "DisplayHomeScore"), "3");
    EXPECT_EQ(text(report, "Team1Names(4)"), league.roster(TeamIndex(2))[4].Name);

    GameImported game;
    game.season = true;
    CorrectionDialog dialog(QStringLiteral("game 2"), game, {"Ann"}, nullptr);
    control<QComboBox>(dialog, QStringLiteral("AwayCoach")).setCurrentIndex(1);
    const Correction correction = dialog.correction();
    EXPECT_EQ(correction.awayCoach, std::optional(std::optional<std::string>("Ann")));
    EXPECT_FALSE(correction.homeCoach || correction.exhibition || correction.file) << "they have not changed";
    correct(league.app, 2, correction);
    window.showAgain();
    control<QComboBox>(window, QStringLiteral("Coach")).setCurrentIndex(1);
    EXPECT_EQ(rows().size(), 2u) << "the game and its correction";
    control<QComboBox>(window, QStringLiteral("Part")).setCurrentIndex(2);
    EXPECT_EQ(rows().size(), 0u) << "it was no game of the play-offs";
}

TEST_F(HistoryWindowTest, AWatchedFolderOffersEachGameUntilItIsInTheBooks) {
    const test::TemporaryFolder folder;
    const std::string slot = folder.path().generic_string() + "/slot.gs0";
    const auto save = [&](int home) {
        GameSheet game{TeamIndex(home), TeamIndex(1)};
        game.home.Goals = game.home.Shots = 3;
        league.files.files[slot] = saveStateBytes(game);
        std::ofstream(slot) << league.files.files[slot] << home;
    };
    WatchBar bar(
        league.app, [&](const std::string& path) { import(path, 2, 1); }, &window);
    EXPECT_TRUE(bar.isHidden());
    league.platform.chosen.push_back(folder.path().generic_string());
    bar.chooseFolder();
    EXPECT_EQ(text(bar, "WatchText"), "Watching " + folder.path().generic_string());
    FolderWatch::Time now;
    const auto shown = [&] {
        bar.look(now += std::chrono::seconds(1));
        bar.look(now += std::chrono::seconds(3));
        return text(bar, "WatchText");
    };
    save(0);
    EXPECT_EQ(shown(), std::string(TeamName[0]) + " 3, " + std::string(TeamName[1]) + " 0");
    click(bar, "WatchIgnore");
    EXPECT_THAT(shown(), testing::StartsWith("Watching "));
    save(2);
    EXPECT_EQ(shown(), std::string(TeamName[2]) + " 3, " + std::string(TeamName[1]) + " 0");
    click(bar, "WatchImport");
    EXPECT_THAT(text(bar, "WatchText"), testing::StartsWith("Watching "));
    std::filesystem::last_write_time(slot, std::filesystem::file_time_type::clock::now());
    EXPECT_THAT(shown(), testing::StartsWith("Watching ")) << "it is in the books";
}

} // namespace
} // namespace iceline::desktop
