#pragma once

#include "desktop/LeagueWindow.h"
#include "players/PlayerProfiles.h"

class QComboBox;
class QGroupBox;
class QLabel;

namespace iceline::desktop {

/// One player: portrait, roster figures and statistics, in one of two layouts for skaters and goalies.
class PlayerProfilesWindow : public LeagueWindow {
    Q_OBJECT

public:
    PlayerProfilesWindow(Application& application, WindowId id, PlayerProfiles& object);

protected:
    void refresh() override;

private:
    QLayout* makeChoices();
    QLayout* makeTeam();
    QLayout* makePlayer();
    void showPlayer(const PlayerProfiles::Player& player);
    QPixmap portrait(const PlayerProfiles::Player& player);

    PlayerProfiles& object_;
    QComboBox* teams_ = nullptr;
    QComboBox* players_ = nullptr;
    QLabel* portrait_ = nullptr;
    QGroupBox* skaterFrame_ = nullptr;
    QGroupBox* goalieFrame_ = nullptr;
};

} // namespace iceline::desktop
