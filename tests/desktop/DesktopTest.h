#pragma once

#include "desktop/WindowManager.h"
#include "support/TestLeague.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>

#include <gmock/gmock.h>

namespace iceline::desktop {

/// The real windows, drawn offscreen, on a league in memory.
class DesktopTest : public testing::Test {
protected:
    LeagueWindow& open(WindowId id) {
        windows.open(id);
        return *windows.window(id);
    }

    /// The control of that object name; the test fails when there is none of the kind.
    template <class Control>
    static Control& control(QWidget& window, const QString& name) {
        auto* found = window.findChild<Control*>(name);
        if (!found)
            throw std::logic_error("no control " + name.toStdString());
        return *found;
    }

    static std::string text(QWidget& window, const char* name) {
        return control<QLabel>(window, QLatin1String(name)).text().toStdString();
    }

    /// The team whose banner a label shows.
    static std::string banner(QWidget& window, const char* name) {
        const auto& label = control<QLabel>(window, QLatin1String(name));
        EXPECT_FALSE(label.pixmap(Qt::ReturnByValue).isNull()) << name;
        return label.accessibleName().toStdString();
    }

    /// The user chooses an entry of a list.
    static void choose(QWidget& window, const char* list, int index) {
        Q_EMIT control<QComboBox>(window, QLatin1String(list)).activated(index);
    }

    /// Opens a window and chooses the first team or coach, and a player, where there is such a choice.
    LeagueWindow& openWithChoices(WindowId id) {
        LeagueWindow& window = open(id);
        for (const auto& [list, index] :
             {std::pair{"PlayersTeamSelect", 0}, {"PlayersNameSelect", 4}, {"TeamSelect", 0}})
            if (window.findChild<QComboBox*>(QLatin1String(list)))
                choose(window, list, index);
        return window;
    }

    static void click(QWidget& window, const char* name) {
        control<QAbstractButton>(window, QLatin1String(name)).click();
    }

    test::TestLeague league;
    WindowManager windows{league.app};
};

} // namespace iceline::desktop
