#include "standings/SplitStandings.h"

#include "league/Selection.h"
#include "standings/StandingsTable.h"
#include "store/TeamFiles.h"

#include <algorithm>

namespace iceline {

namespace {

using Table = decltype(ApplicationState::HomeAwayTable);

/// Columns of HomeAwayTable.
enum Column { Wins, Losses, Ties, WinPercent, GP };

HomeAwayRows rowsOf(const Table& table, ApplicationState& state) {
    std::array<int, LeagueTeams> percentages{};
    std::ranges::transform(table, percentages.begin(), [](const auto& row) { return row[WinPercent]; });
    std::ranges::transform(selectionOrder(percentages, Direction::HighestFirst), state.HomeAwayOrder.begin(),
                           [](int team) { return TeamIndex(team); });
    state.HomeAwayTable = table;

    HomeAwayRows rows;
    std::ranges::transform(state.HomeAwayOrder, rows.begin(), [&table](TeamIndex team) {
        const auto& row = table[team];
        return HomeAwayRow{team, {row[Wins], row[Losses], row[Ties], row[WinPercent]}, row[GP]};
    });
    return rows;
}

} // namespace

HomeAwayStandings readHomeAwayStandings(Files& files, ApplicationState& state) {
    Table home{};
    Table away{};
    for (const TeamIndex team : AllLeagueTeams) {
        const TeamRecord record = readTeamRecord(files, paths::teamFolder(team));
        home[team] = {record.HW, record.HL, record.HT,
                      scaledFigure(team, record, &TeamRecord::HWinPercent, 1000), record.HGP};
        away[team] = {record.AW, record.AL, record.AT,
                      scaledFigure(team, record, &TeamRecord::AWinPercent, 1000), record.AGP};
    }
    // One after the other: the shared table ends with the away figures.
    HomeAwayStandings standings;
    standings.home = rowsOf(home, state);
    standings.away = rowsOf(away, state);
    return standings;
}

} // namespace iceline
