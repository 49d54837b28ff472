#pragma once

#include "desktop/LeagueWindow.h"
#include "playoffs/Playoffs.h"

class QLabel;

namespace iceline::desktop {

class BracketPanel;

/// The bracket of the play-offs.
class PlayoffsWindow : public LeagueWindow {
    Q_OBJECT

public:
    PlayoffsWindow(Application& application, WindowId id, Playoffs& object);

protected:
    void refresh() override;

private:
    Playoffs& object_;
    BracketPanel* bracket_;
    QLabel* note_;
};

} // namespace iceline::desktop
