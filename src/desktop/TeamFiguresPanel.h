#pragma once

#include "teams/TeamFigures.h"

#include <QWidget>

#include <utility>
#include <vector>

class QGridLayout;
class QGroupBox;
class QLabel;

namespace iceline::desktop {

/// All figures of a team or a coach: the record, home and away, overtime and last ten, season totals,
/// averages per game, and the crowd meters. Each figure's label has the name of its field.
class TeamFiguresPanel : public QWidget {
    Q_OBJECT

public:
    /// `crowdCaption` names whose two crowd records are shown at the end.
    TeamFiguresPanel(const QString& crowdCaption, QWidget* parent);

    void show(const TeamView& view);

private:
    /// A row of figures under their heads, or under those of the row above it.
    struct Line {
        TeamColumns columns;
        QString caption;          ///< in front of it; none when empty
        QString captionName = {}; ///< object name of the caption
    };
    enum class Heads { Once, OnEveryLine };

    QGroupBox* makeBox(const char* name, const QString& caption, const std::vector<Line>& lines, Heads heads);
    QWidget* makeFigures(const TeamColumn& column, QWidget* parent);
    QGroupBox* makeCrowd(const QString& caption);

    std::vector<std::pair<QLabel*, TeamFigure>> figures_;
};

} // namespace iceline::desktop
