#pragma once

#include "coaches/CoachStats.h"
#include "desktop/LeagueWindow.h"

class QComboBox;
class QLineEdit;

namespace iceline::desktop {

class LeaderGrid;
class TeamFiguresPanel;

/// The coaches: the statistics of the one chosen, and the ranking of all.
class CoachStatsWindow : public LeagueWindow {
    Q_OBJECT

public:
    CoachStatsWindow(Application& application, WindowId id, CoachStats& object);

protected:
    void refresh() override;

private:
    QWidget* makeStats();
    QWidget* makeRanking();
    QWidget* makeLeaders(QWidget* parent);

    CoachStats& object_;
    QComboBox* coaches_ = nullptr;
    QLineEdit* name_ = nullptr;
    TeamFiguresPanel* figures_ = nullptr;
    LeaderGrid* ranking_ = nullptr;
};

} // namespace iceline::desktop
