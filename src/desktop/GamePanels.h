#pragma once

#include "games/ReportTables.h"

#include <QWidget>

#include <array>
#include <vector>

class QGridLayout;
class QGroupBox;
class QLabel;

/// The parts of the game window that it has once for each team. `team` is the name of the team in the
/// controls' names: "Team1" the home team, "Team2" the away team.
namespace iceline::desktop {

/// A team's roster with each player's figures in the game: 25 rows.
class GameRosterPanel : public QWidget {
    Q_OBJECT

public:
    GameRosterPanel(const QString& team, const char* bannerName, QGroupBox* frame);

    void show(const GameSide& side);

private:
    struct Row {
        QLabel* name = nullptr;
        std::array<QLabel*, PlayerFigures.size()> figures{};
    };

    void addColumn(QGridLayout& grid, int column, const QString& caption);
    void addRow(QGridLayout& grid, RosterIndex row, const QString& team);

    QGroupBox* frame_;
    QLabel* banner_;
    std::array<Row, RosterRows> rows_;
};

/// A team's figures in the game, one below the other, in step with GameFigureCaptions.
class GameFiguresPanel : public QWidget {
    Q_OBJECT

public:
    GameFiguresPanel(const QString& team, QGroupBox* frame);

    void show(const GameSide& side);

private:
    QLabel* add(const GameFigure& figure, const QString& team);

    QGroupBox* frame_;
    std::vector<std::pair<GameFigure, QLabel*>> figures_;
};

/// The captions between the two teams' figures.
class GameFigureCaptions : public QWidget {
    Q_OBJECT

public:
    explicit GameFigureCaptions(QWidget* parent);
};

} // namespace iceline::desktop
