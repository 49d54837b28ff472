#pragma once

#include "games/GameReport.h"

#include <QWidget>

#include <array>
#include <vector>

class QGroupBox;
class QLabel;

/// The parts of the game window that stand there once for each team. `team` is the name of the team in the
/// controls' names: "Team1" the home team, "Team2" the away team.
namespace iceline::desktop {

/// A team's roster with each player's figures in the game: 25 rows.
class GameRosterPanel : public QWidget {
    Q_OBJECT

public:
    GameRosterPanel(const QString& team, const char* bannerName, QGroupBox* frame);

    void show(const GameSide& side);

private:
    QGroupBox* frame_;
    QLabel* banner_;
    std::array<std::vector<QLabel*>, 6> columns_; ///< names, goals, assists, points, shots, penalty minutes
};

/// A team's figures in the game, one below the other, in step with GameFigureCaptions.
class GameFiguresPanel : public QWidget {
    Q_OBJECT

public:
    GameFiguresPanel(const QString& team, QGroupBox* frame);

    void show(const GameSide& side);

private:
    QLabel* add(const QString& name);

    QGroupBox* frame_;
    QString team_;
};

/// The captions between the two teams' figures.
class GameFigureCaptions : public QWidget {
    Q_OBJECT

public:
    explicit GameFigureCaptions(QWidget* parent);
};

} // namespace iceline::desktop
