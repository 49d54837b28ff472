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

struct Row {
    WindowId id;
    WindowMaker make;
};

constexpr WindowTable<Row> Makers{{
    {WindowId::StatExtractor, make<StatExtractorWindow, StatExtractor>},
    {WindowId::PlayerStats, make<PlayerStatsWindow, PlayerStats>},
    {WindowId::TeamStats, make<TeamStatsWindow, TeamStats>},
    {WindowId::Standings, make<StandingsWindow, Standings>},
    {WindowId::Rankings, make<RankingsWindow, Rankings>},
    {WindowId::PlayerProfiles, make<PlayerProfilesWindow, PlayerProfiles>},
    {WindowId::Playoffs, make<PlayoffsWindow, Playoffs>},
    {WindowId::PlayoffPlayerStats, make<PlayerStatsWindow, PlayerStats>},
    {WindowId::PlayoffTeamStats, make<TeamStatsWindow, TeamStats>},
    {WindowId::PlayoffRankings, make<RankingsWindow, Rankings>},
    {WindowId::PlayoffPlayerProfiles, make<PlayerProfilesWindow, PlayerProfiles>},
    {WindowId::CoachStats, make<CoachStatsWindow, CoachStats>},
    {WindowId::AllTimeRecords, make<AllTimeRecordsWindow, AllTimeRecords>},
    {WindowId::PlayoffAllTimeRecords, make<AllTimeRecordsWindow, AllTimeRecords>},
    {WindowId::Options, make<OptionsWindow, Options>},
}};
static_assert(isComplete(Makers));

} // namespace

WindowMaker windowMaker(WindowId id) {
    return rowOf(Makers, id).make;
}

} // namespace iceline::desktop
