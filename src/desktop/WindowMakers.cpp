#include "desktop/WindowMakers.h"

#include "desktop/AllTimeRecordsWindow.h"
#include "desktop/CoachStatsWindow.h"
#include "desktop/OptionsWindow.h"
#include "desktop/PlayerProfilesWindow.h"
#include "desktop/PlayerStatsWindow.h"
#include "desktop/PlayoffsWindow.h"
#include "desktop/RankingsWindow.h"
#include "desktop/StandingsWindow.h"
#include "desktop/StatExtractorWindow.h"
#include "desktop/TeamStatsWindow.h"

namespace iceline::desktop {

namespace {

/// Maker of a window class that shows objects of the class Object.
template <class QtWindow, class Object>
LeagueWindow* make(Application& app, WindowId id, Window& object) {
    return new QtWindow(app, id, static_cast<Object&>(object));
}

} // namespace

WindowMaker windowMaker(WindowId id) {
    switch (id) {
    case WindowId::StatExtractor:
        return make<StatExtractorWindow, StatExtractor>;
    case WindowId::PlayerStats:
    case WindowId::PlayoffPlayerStats:
        return make<PlayerStatsWindow, PlayerStats>;
    case WindowId::TeamStats:
    case WindowId::PlayoffTeamStats:
        return make<TeamStatsWindow, TeamStats>;
    case WindowId::PlayerProfiles:
    case WindowId::PlayoffPlayerProfiles:
        return make<PlayerProfilesWindow, PlayerProfiles>;
    case WindowId::CoachStats:
        return make<CoachStatsWindow, CoachStats>;
    case WindowId::Options:
        return make<OptionsWindow, Options>;
    case WindowId::AllTimeRecords:
    case WindowId::PlayoffAllTimeRecords:
        return make<AllTimeRecordsWindow, AllTimeRecords>;
    case WindowId::Standings:
        return make<StandingsWindow, Standings>;
    case WindowId::Playoffs:
        return make<PlayoffsWindow, Playoffs>;
    case WindowId::Rankings:
    case WindowId::PlayoffRankings:
        return make<RankingsWindow, Rankings>;
    }
    return nullptr;
}

} // namespace iceline::desktop
