#pragma once

#include "teams/TeamView.h"

#include <QWidget>

class QGridLayout;

namespace iceline::desktop {

/// All figures of a team or a coach: the record, home and away, overtime and last ten, season totals,
/// averages a game, and the crowd meters. Each figure's label bears the name of its field.
class TeamFiguresPanel : public QWidget {
    Q_OBJECT

public:
    /// `crowdCaption` names whose two crowd records stand at the end.
    TeamFiguresPanel(const QString& crowdCaption, QWidget* parent);

    void show(const TeamView& view);

private:
    void addRecords();
    void addForm();
    void addTotals();
    void addAverages();
    void addCrowd(const QString& caption);

    QGridLayout* grid_;
};

} // namespace iceline::desktop
