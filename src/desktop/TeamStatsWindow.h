#pragma once

#include "desktop/LeagueWindow.h"
#include "teams/TeamStats.h"

class QComboBox;
class QLabel;

namespace iceline::desktop {

class TeamFiguresPanel;

/// All that the league knows of the team chosen, in the season or in the play-offs.
class TeamStatsWindow : public LeagueWindow {
    Q_OBJECT

public:
    TeamStatsWindow(Application& application, WindowId id, TeamStats& object);

protected:
    void refresh() override;

private:
    TeamStats& object_;
    QComboBox* teams_;
    QLabel* name_;
    QLabel* logo_;
    TeamFiguresPanel* figures_;
};

} // namespace iceline::desktop
