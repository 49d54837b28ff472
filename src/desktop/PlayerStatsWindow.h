#pragma once

#include "desktop/Controls.h"
#include "desktop/LeagueWindow.h"
#include "players/PlayerStats.h"

#include <vector>

class QComboBox;
class QGridLayout;
class QGroupBox;

namespace iceline::desktop {

/// A team's skaters and goalies in any order, and the team's leaders.
class PlayerStatsWindow : public LeagueWindow {
    Q_OBJECT

public:
    PlayerStatsWindow(Application& application, WindowId id, PlayerStats& object);

protected:
    void refresh() override;

private:
    /// A table of the window: its heads, and its labels by column, the name last.
    struct Table {
        std::vector<SortHead*> heads;
        std::vector<std::vector<QLabel*>> columns;
    };

    QLayout* makeHead();
    QGroupBox* makeTable(Table& table, const char* frameName, const QString& caption, const char* arrayStem,
                         std::span<const PlayerColumn> columns, int rows, void (PlayerStats::*click)(int));
    QGroupBox* makeLeaders();
    void showRows(const Table& table, const std::vector<PlayerTableRow>& rows);
    void markHeads(const Table& table, int column, bool ascending);
    void showLeaders();

    PlayerStats& object_;
    QComboBox* teams_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* logo_ = nullptr;
    QLabel* logo2_ = nullptr;
    Table skaters_;
    Table goalies_;
};

} // namespace iceline::desktop
