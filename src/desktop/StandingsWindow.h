#pragma once

#include "desktop/LeagueWindow.h"
#include "standings/Standings.h"

#include <array>

namespace iceline::desktop {

class SortHead;
class TeamRowsPanel;

/// The standings on four tabs.
class StandingsWindow : public LeagueWindow {
    Q_OBJECT

public:
    StandingsWindow(Application& application, WindowId id, Standings& object);

protected:
    void refresh() override;

private:
    QWidget* makeDivisionTab();
    QWidget* makeConferenceTab();
    QWidget* makeHomeAwayTab();
    QWidget* makeVersusTab();
    TeamRowsPanel* makeVersusPanel(Conference conference, QWidget* parent);
    SortHead* makeSortHead(Conference conference, Conference opponents, QWidget* parent);
    void showHomeAway(const HomeAwayStandings& standings);
    void showVersus(const Standings::Content& content);

    Standings& object_;
    std::array<TeamRowsPanel*, 4> divisions_{};
    std::array<TeamRowsPanel*, 2> conferences_{};
    TeamRowsPanel* home_ = nullptr;
    TeamRowsPanel* away_ = nullptr;
    std::array<TeamRowsPanel*, 2> versus_{};
    std::array<std::array<SortHead*, 2>, 2> sortHeads_{}; ///< by Conference, then by opponents
};

} // namespace iceline::desktop
