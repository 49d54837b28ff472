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
    /// What sets a table of the window apart: its frame, the label of its row numbers, its arrays and rows.
    struct TableForm {
        const char* frame;
        const char* caption;
        const char* numbers;
        const char* arrays; ///< what the names of its arrays begin with
        int rows;
        void (PlayerStats::*click)(int);
    };

    template <class Stats>
    QGroupBox* makeTable(Table& table, const TableForm& form, std::span<const PlayerColumn<Stats>> columns);
    void addNumbers(QGridLayout* grid, const TableForm& form);
    void addColumn(Table& table, QGridLayout* grid, const TableForm& form, const QString& caption,
                   const QString& labels, int place);
    QGroupBox* makeLeaders();
    void showRows(const Table& table, const std::vector<PlayerTableRow>& rows);
    void markHeads(const Table& table, int column, bool ascending);
    void showLeaders();

    PlayerStats& object_;
    NamedLabels leaders_;
    QComboBox* teams_ = nullptr;
    QLabel* name_ = nullptr;
    QLabel* logo_ = nullptr;
    QLabel* logo2_ = nullptr;
    Table skaters_;
    Table goalies_;
};

} // namespace iceline::desktop
