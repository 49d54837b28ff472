#include "cli/WindowPrinters.h"

#include "coaches/CoachStats.h"
#include "games/StatExtractor.h"
#include "leaders/Rankings.h"
#include "players/PlayerProfiles.h"
#include "players/PlayerStats.h"
#include "playoffs/Playoffs.h"
#include "records/AllTimeRecords.h"
#include "season/Options.h"
#include "standings/Standings.h"
#include "teams/TeamStats.h"

#include <algorithm>

namespace iceline::cli {

namespace {

/// A function for one kind of window as one for all of them.
template <class Kind, void (*print)(const Kind&, std::ostream&)>
void printAs(const Window& window, std::ostream& out) {
    print(static_cast<const Kind&>(window), out);
}

struct Row {
    WindowId id;
    WindowPrinter print;
};

constexpr Row Printers[] = {
    {WindowId::Rankings, printAs<Rankings, printRankings>},
    {WindowId::PlayoffRankings, printAs<Rankings, printRankings>},
    {WindowId::StatExtractor, printAs<StatExtractor, printStatExtractor>},
    {WindowId::PlayerStats, printAs<PlayerStats, printPlayerStats>},
    {WindowId::PlayoffPlayerStats, printAs<PlayerStats, printPlayerStats>},
    {WindowId::TeamStats, printAs<TeamStats, printTeamStats>},
    {WindowId::PlayoffTeamStats, printAs<TeamStats, printTeamStats>},
    {WindowId::PlayerProfiles, printAs<PlayerProfiles, printPlayerProfiles>},
    {WindowId::PlayoffPlayerProfiles, printAs<PlayerProfiles, printPlayerProfiles>},
    {WindowId::AllTimeRecords, printAs<AllTimeRecords, printAllTimeRecords>},
    {WindowId::PlayoffAllTimeRecords, printAs<AllTimeRecords, printAllTimeRecords>},
    {WindowId::CoachStats, printAs<CoachStats, printCoachStats>},
    {WindowId::Options, printAs<Options, printOptions>},
    {WindowId::Standings, printAs<Standings, printStandings>},
    {WindowId::Playoffs, printAs<Playoffs, printPlayoffs>},
};

static_assert(std::size(Printers) == WindowCount);

} // namespace

WindowPrinter windowPrinter(WindowId id) {
    return std::ranges::find(Printers, id, &Row::id)->print;
}

} // namespace iceline::cli
