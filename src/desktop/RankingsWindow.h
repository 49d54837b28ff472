#pragma once

#include "desktop/LeagueWindow.h"
#include "leaders/Rankings.h"

namespace iceline::desktop {

class LeaderGrid;

/// The leaders of the league in a part of the year, in tabs: players, goalies and three stars under "League
/// Leaders", and the teams.
class RankingsWindow : public LeagueWindow {
    Q_OBJECT

public:
    RankingsWindow(Application& application, WindowId id, Rankings& object);

protected:
    void refresh() override;

private:
    QWidget* makeLeagueLeaders();

    /// Sorts by a head, on the figures as they are now: the tables that a click sorts are shared, and may be
    /// those of the other part of the year.
    template <class Procedure>
    void sort(Procedure procedure) {
        run([&] {
            procedure();
            object_.renew();
        });
    }

    Rankings& object_;
    LeaderGrid* players_ = nullptr;
    LeaderGrid* goalies_ = nullptr;
    LeaderGrid* stars_ = nullptr;
    LeaderGrid* teams_ = nullptr;
};

} // namespace iceline::desktop
