#include "leaders/LeaderLists.h"

#include "league/Numbers.h"
#include "league/Selection.h"

#include <algorithm>

namespace iceline {

namespace {

template <std::size_t Columns>
std::vector<int> orderOf(std::span<const LeaderRow<Columns>> rows, LeaderSort sort, int places) {
    std::vector<int> order;
    if (sort.column == NoColumn) {
        order = naturalOrder(static_cast<int>(rows.size()), sort.ascending);
    } else {
        std::vector<int> values;
        values.reserve(rows.size());
        for (const LeaderRow<Columns>& row : rows)
            values.push_back(row.values.at(sort.column));
        order =
            selectionOrder(values, sort.ascending ? Direction::LowestFirst : Direction::HighestFirst, places);
    }
    order.resize(std::min<std::size_t>(order.size(), places));
    return order;
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
    const std::vector<int> order = orderOf(rows, sort, places);
    LeaderList list;
    list.lines.reserve(order.size());
    list.startsWithFirstTurn = !order.empty() && isShown(rows[order.front()]);
    for (const int place : order) {
        const LeaderRow<Columns>& row = rows[place];
        if (isShown(row))
            list.lines.push_back({static_cast<int>(list.lines.size()) + 1, row.Team, row.Name,
                                  shownFigures(columns, row.values)});
    }
    return list;
}

template <class Stats, std::size_t Columns>
LeaderList listOfPlayers(const std::array<LeaderColumn<Stats>, Columns>& columns,
                         const std::vector<LeaderRow<Columns>>& table, int count, LeaderSort sort,
                         int places) {
    const auto rows = std::span(table).first(std::min<std::size_t>(count, table.size()));
    return listOf<Stats, Columns>(columns, rows, sort, places,
                                  [](const LeaderRow<Columns>&) { return true; });
}

using TeamRow = LeaderRow<TeamLeaderColumns.size()>;

bool hasGames(const TeamRow& row) {
    return row.values[TeamGamesColumn] != 0;
}

} // namespace

LeaderList playerLeaders(const ApplicationState& state, int count, LeaderSort sort, int places) {
    return listOfPlayers(PlayerLeaderColumns, state.PlayerLeaderTable, count, sort, places);
}

LeaderList goalieLeaders(const ApplicationState& state, int count, LeaderSort sort, int places) {
    return listOfPlayers(GoalieLeaderColumns, state.GoalieLeaderTable, count, sort, places);
}

LeaderList starLeaders(const ApplicationState& state, int count, LeaderSort sort, int places) {
    return listOfPlayers(StarLeaderColumns, state.StarLeaderTable, count, sort, places);
}

LeaderList teamLeaders(const ApplicationState& state, LeaderSort sort, int places) {
    std::vector<TeamRow> rows;
    for (const TeamIndex team : AllLeagueTeams)
        rows.push_back({team, "", state.TeamLeaderTable[team]});
    return listOf<TeamRecord, TeamLeaderColumns.size()>(TeamLeaderColumns, rows, sort, places, hasGames);
}

LeaderList coachLeaders(const ApplicationState& state, const std::vector<std::string>& names, LeaderSort sort,
                        CoachesListed listed) {
    std::vector<TeamRow> rows;
    for (std::size_t coach = 0; coach < names.size(); ++coach)
        rows.push_back({TeamIndex(static_cast<int>(coach)), names[coach], state.CoachLeaderTable[coach]});
    return listOf<TeamRecord, TeamLeaderColumns.size()>(
        TeamLeaderColumns, rows, sort, static_cast<int>(rows.size()),
        listed == CoachesListed::All ? [](const TeamRow&) { return true; } : hasGames);
}

} // namespace iceline
