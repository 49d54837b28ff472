#pragma once

#include "desktop/Controls.h"
#include "desktop/LeagueWindow.h"
#include "players/PlayerColumns.h"
#include "players/PlayerProfiles.h"

class QComboBox;
class QGridLayout;
class QGroupBox;

namespace iceline::desktop {

/// One player: portrait, roster figures and statistics, in one of two layouts for skaters and goalies.
class PlayerProfilesWindow : public LeagueWindow {
    Q_OBJECT

public:
    PlayerProfilesWindow(Application& application, WindowId id, PlayerProfiles& object);

protected:
    void refresh() override;

private:
    template <class Stats, std::size_t Lines>
    QGroupBox* makeFigures(const char* name, const QString& caption,
                           const std::array<ProfileLine<Stats>, Lines>& lines);
    template <class Stats>
    QLayout* makeLine(const ProfileLine<Stats>& line, QWidget* parent);
    QLabel* addFact(QGridLayout* grid, const char* captionName, const QString& caption, const char* control);
    QLayout* makeChoices();
    QLayout* makeTeam();
    QLayout* makePlayer();
    void showPlayer(const PlayerProfiles::Player& player);
    QPixmap portrait(const PlayerProfiles::Player& player);

    PlayerProfiles& object_;
    QComboBox* teams_ = nullptr;
    QComboBox* players_ = nullptr;
    NamedLabels figures_;
    QLabel* name_ = nullptr;
    QLabel* logo_ = nullptr;
    QLabel* logo2_ = nullptr;
    QLabel* portrait_ = nullptr;
    QLabel* playerName_ = nullptr;
    QLabel* number_ = nullptr;
    QLabel* position_ = nullptr;
    QLabel* overall_ = nullptr;
    QGroupBox* skaterFrame_ = nullptr;
    QGroupBox* goalieFrame_ = nullptr;
};

} // namespace iceline::desktop
