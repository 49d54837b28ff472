#include "leaders/LeaderLists.h"

#include "league/Numbers.h"
#include "league/Selection.h"

#include <algorithm>
#include <span>

namespace iceline {

namespace {

template <std::size_t Columns>
std::vector<int> valuesOf(std::span<const LeaderRow<Columns>> rows, std::size_t column) {
    std::vector<int> values;
    values.reserve(rows.size());
    for (const LeaderRow<Columns>& row : rows)
        values.push_back(row.values.at(column));
    return values;
}

/// The numbers of the rows that the first `places` turns of the selection take.
template <std::size_t Columns>
std::vector<std::size_t> orderOf(std::span<const LeaderRow<Columns>> rows, LeaderSort sort, int places) {
    const int turns = std::min(places, static_cast<int>(rows.size()));
    const std::vector<int> order =
        sort.column == NoColumn
            ? naturalOrder(static_cast<int>(rows.size()), sort.ascending)
            : selectionOrder(valuesOf(rows, static_cast<std::size_t>(sort.column)),
                             sort.ascending ? Direction::LowestFirst : Direction::HighestFirst, turns);
    return {order.begin(), order.begin() + turns};
}

template <class Stats, std::size_t Columns>
std::vector<std::string> shownFigures(const std::array<LeaderColumn<Stats>, Columns>& columns,
                                      const std::array<int, Columns>& values) {
    std::vector<std::string> figures;
    figures.reserve(Columns);
    for (std::size_t column = 0; column < Columns; ++column)
        figures.push_back(numberText(static_cast<double>(values[column]) / columns[column].scale));
    return figures;
}

template <class Stats, std::size_t Columns>
LeaderList listOf(const std::array<LeaderColumn<Stats>, Columns>& columns,
                  std::span<const LeaderRow<Columns>> rows, LeaderSort sort, int places,
                  bool (*isShown)(const LeaderRow<Columns>&)) {
    const std::vector<std::size_t> order = orderOf(rows, sort, places);
    LeaderList list;
    list.lines.reserve(order.size());
    list.startsWithFirstTurn = !order.empty() && isShown(rows[order.front()]);
    for (const std::size_t place : order) {
        const LeaderRow<Columns>& row = rows[place];
        if (isShown(row))
            list.lines.push_back({static_cast<int>(list.lines.size()) + 1, row.Team, row.Name,
                                  shownFigures(columns, row.values)});
    }
    return list;
}

template <class Stats, std::size_t Columns>
LeaderList listOfPlayers(const std::array<LeaderColumn<Stats>, Columns>& columns,
                         const std::vector<LeaderRow<Columns>>& table, LeaderSort sort, int places,
                         int count) {
    const auto rows = std::span(table).first(std::min(static_cast<std::size_t>(count), table.size()));
    return listOf<Stats, Columns>(columns, rows, sort, places,
                                  [](const LeaderRow<Columns>&) { return true; });
}

using TeamRow = LeaderRow<TeamLeaderColumns.size()>;

bool hasGames(const TeamRow& row) {
    return TeamLeader{row.values}.GP() != 0;
}

} // namespace

LeaderList playerLeaders(const ApplicationState& state, LeaderSort sort, int places, int count) {
    return listOfPlayers(PlayerLeaderColumns, state.PlayerLeaderTable, sort, places, count);
}

LeaderList goalieLeaders(const ApplicationState& state, LeaderSort sort, int places, int count) {
    return listOfPlayers(GoalieLeaderColumns, state.GoalieLeaderTable, sort, places, count);
}

LeaderList starLeaders(const ApplicationState& state, LeaderSort sort, int places, int count) {
    return listOfPlayers(StarLeaderColumns, state.StarLeaderTable, sort, places, count);
}

LeaderList teamLeaders(const ApplicationState& state, LeaderSort sort, int places) {
    std::vector<TeamRow> rows;
    for (const TeamIndex team : AllLeagueTeams)
        rows.push_back({team, "", state.TeamLeaderTable[team].values});
    return listOf<TeamRecord, TeamLeaderColumns.size()>(TeamLeaderColumns, rows, sort, places, hasGames);
}

LeaderList coachLeaders(const ApplicationState& state, const std::vector<std::string>& names, LeaderSort sort,
                        CoachesListed listed) {
    std::vector<TeamRow> rows;
    const std::size_t coaches = std::min(names.size(), state.CoachLeaderTable.size());
    for (const CoachIndex coach : FirstRows<CoachIndex>(static_cast<int>(coaches)))
        rows.push_back({BlankTeam, names[coach], state.CoachLeaderTable[coach].values});
    return listOf<TeamRecord, TeamLeaderColumns.size()>(
        TeamLeaderColumns, rows, sort, AllRows,
        listed == CoachesListed::All ? [](const TeamRow&) { return true; } : hasGames);
}

} // namespace iceline
