#include "app/Catalogue.h"
#include "desktop/DesktopTest.h"
#include "samples/SaveStateWriter.h"
#include "support/NumberedRecord.h"

#include <QApplication>
#include <QGroupBox>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>

namespace iceline::desktop {
namespace {

constexpr TeamIndex Boston{0};

/// Windows on a league of long records, in any font.
class WindowSizeTest : public DesktopTest, public testing::WithParamInterface<int> {
protected:
    WindowSizeTest() {
        setFontSize(GetParam());
        auto record = test::numberedRecord<TeamRecord>();
        record.GameCount = 0;
        record.Wins = record.HW = record.AW = 201;
        record.Losses = record.HL = record.AL = 186;
        record.Ties = record.HT = record.AT = record.OTW = 137;
        for (const TeamIndex team : AllLeagueTeams)
            league.setRecord(team, PartOfYear::Season, record);
        league.addCoach("Bartholomew_Longname", record);
        GameSheet sheet(Boston, TeamIndex(10));
        sheet.addGoal(1, 60, Side::Home, Strength::PowerPlay, 4, 6);
        league.files.files["game.gs0"] = saveStateBytes(sheet);
        league.platform.chosen.push_back("game.gs0");
    }
    ~WindowSizeTest() override { setFontSize(DefaultSize); }

    static void setFontSize(int points) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }

    /// What is cut, laid over something else, or out of reach in what the window shows now.
    static std::string faults(const LeagueWindow& window) {
        std::string found;
        QList<const QWidget*> controls;
        for (const QWidget* widget : window.findChildren<QWidget*>())
            if (isControl(*widget) && widget->isVisible())
                controls << widget;
        for (const QWidget* widget : controls) {
            const QSize least = widget->minimumSizeHint();
            if (widget->width() < least.width() || widget->height() < least.height())
                found += "cut: " + nameOf(*widget);
            for (const QWidget* other : controls)
                if (other < widget && other->parent() == widget->parent() &&
                    !qobject_cast<const QGroupBox*>(other) &&
                    other->geometry().intersects(widget->geometry()))
                    found += "overlapping: " + nameOf(*widget) + " and " + nameOf(*other);
        }
        return found;
    }

    static constexpr int DefaultSize = 9;

private:
    static bool isControl(const QWidget& widget) {
        if (const auto* label = qobject_cast<const QLabel*>(&widget))
            return !label->text().isEmpty();
        return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
               qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QTabBar*>(&widget);
    }

    static std::string nameOf(const QWidget& widget) {
        const auto* label = qobject_cast<const QLabel*>(&widget);
        return (widget.objectName() + u' ' + (label ? label->text() : QString())).toStdString() + "\n";
    }
};

TEST_P(WindowSizeTest, NothingIsCutAndNoWindowLeavesTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const CatalogueRow& row : windowCatalogue()) {
        LeagueWindow& window = openWithChoices(row.id);
        if (row.id == WindowId::StatExtractor)
            click(window, "LoadStats");
        QApplication::processEvents();
        EXPECT_TRUE(screen.contains(window.frameGeometry())) << row.name;
        for (const QSize size : {window.size(), QSize(500, 350), QSize(1600, 1200)}) {
            window.resize(size);
            for (auto* tabs : window.findChildren<QTabWidget*>())
                for (int tab = tabs->count() - 1; tab >= 0; --tab) {
                    tabs->setCurrentIndex(tab);
                    QApplication::processEvents();
                    EXPECT_EQ(faults(window), "") << row.name << ", tab " << tab;
                }
            QApplication::processEvents();
            EXPECT_EQ(faults(window), "") << row.name;
        }
        window.close();
    }
}

INSTANTIATE_TEST_SUITE_P(Fonts, WindowSizeTest, testing::Values(9, 16));

} // namespace
} // namespace iceline::desktop
