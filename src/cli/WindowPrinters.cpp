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

namespace iceline::cli {

namespace {

/// A function for one kind of window as one for all of them.
template <class Kind, void (*print)(const Kind&, Printout&)>
void printAs(const Window& window, Printout& out) {
    print(static_cast<const Kind&>(window), out);
}

struct Row {
    WindowId id;
    WindowPrinter print;
};

constexpr WindowTable<Row> Printers{{
    {WindowId::StatExtractor, printAs<StatExtractor, printStatExtractor>},
    {WindowId::PlayerStats, printAs<PlayerStats, printPlayerStats>},
    {WindowId::TeamStats, printAs<TeamStats, printTeamStats>},
    {WindowId::Standings, printAs<Standings, printStandings>},
    {WindowId::Rankings, printAs<Rankings, printRankings>},
    {WindowId::PlayerProfiles, printAs<PlayerProfiles, printPlayerProfiles>},
    {WindowId::Playoffs, printAs<Playoffs, printPlayoffs>},
    {WindowId::PlayoffPlayerStats, printAs<PlayerStats, printPlayerStats>},
    {WindowId::PlayoffTeamStats, printAs<TeamStats, printTeamStats>},
    {WindowId::PlayoffRankings, printAs<Rankings, printRankings>},
    {WindowId::PlayoffPlayerProfiles, printAs<PlayerProfiles, printPlayerProfiles>},
    {WindowId::CoachStats, printAs<CoachStats, printCoachStats>},
    {WindowId::AllTimeRecords, printAs<AllTimeRecords, printAllTimeRecords>},
    {WindowId::PlayoffAllTimeRecords, printAs<AllTimeRecords, printAllTimeRecords>},
    {WindowId::Options, printAs<Options, printOptions>},
}};
static_assert(isComplete(Printers));

} // namespace

WindowPrinter windowPrinter(WindowId id) {
    return rowOf(Printers, id).print;
}

} // namespace iceline::cli
