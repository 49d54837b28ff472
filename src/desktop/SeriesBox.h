#pragma once

#include "playoffs/Bracket.h"

#include <QFrame>

#include <array>

class QGraphicsOpacityEffect;
class QLabel;

namespace iceline::desktop {

/// A series of the play-offs: its two teams one above the other, the wins of each beside its banner.
class SeriesBox : public QFrame {
    Q_OBJECT

public:
    /// Object names of the controls, the first team's first.
    struct Names {
        std::array<QString, 2> banners;
        std::array<QString, 2> wins;
        QString dash;
        std::array<QString, 2> seeds; ///< empty after the first round
    };

    /// What a box shows. A count that is not shown is empty.
    struct Series {
        std::array<TeamIndex, 2> teams{BlankTeam, BlankTeam};
        std::array<QString, 2> wins;
        TeamIndex winner = BlankTeam;
    };

    SeriesBox(const Names& names, QWidget* parent);

    /// Gives the first round its seeds.
    void setSeeds(const std::array<QString, 2>& seeds);

    void show(const Series& series);

    bool isDecided() const { return decided_; }

    /// Height of a team's row in the middle, in the parent's coordinates.
    int middleOf(SeriesTeam team) const;

private:
    /// The controls of one of the two teams.
    struct Row {
        QLabel* seed = nullptr; ///< in the first round
        QLabel* banner = nullptr;
        QGraphicsOpacityEffect* fading = nullptr; ///< the banner's
        QLabel* wins = nullptr;
    };

    Row makeRow(const Names& names, std::size_t team);

    std::array<Row, 2> rows_;
    QLabel* dash_ = nullptr;
    bool decided_ = false;
};

} // namespace iceline::desktop
