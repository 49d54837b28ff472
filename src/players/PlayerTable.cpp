#include "players/PlayerTable.h"

#include "league/Numbers.h"
#include "league/Selection.h"

namespace iceline {

namespace {

template <class Stats>
std::string shownText(int value, const PlayerColumn<Stats>& column) {
    if (std::holds_alternative<std::string RosterRow::*>(column.field))
        return value == 0 ? "" : std::string(1, static_cast<char>(value));
    return numberText(static_cast<double>(value) / column.shownDividedBy);
}

std::vector<CategoryLeader> leadersOf(const PlayerTable& skaters) {
    std::vector<CategoryLeader> leaders;
    for (const LeaderCategory& category : LeaderCategories) {
        CategoryLeader& leader =
            leaders.emplace_back(CategoryLeader{category.heading, category.control, "", "0"});
        if (skaters.count() == 0)
            continue;
        const PlayerTableRow& row = skaters.leader(category.column);
        leader.Name = row.Name;
        leader.value = row.texts[static_cast<std::size_t>(category.column)];
    }
    return leaders;
}

} // namespace

template <class Stats>
PlayerTable PlayerTable::made(std::span<const PlayerColumn<Stats>> columns, const Roster& roster,
                              const TeamPlayerStats& stats) {
    PlayerTable table;
    table.columns_ = columns.size();
    for (const RosterIndex row : AllRosterRows) {
        const RosterRow& player = roster[row];
        if (player.isEmpty())
            break;
        const auto* line = std::get_if<Stats>(&stats[row]);
        if (!line)
            continue;
        PlayerTableRow& shown = table.rows_.emplace_back(PlayerTableRow{player.Name, {}});
        std::vector<int>& values = table.values_.emplace_back();
        for (const PlayerColumn<Stats>& column : columns) {
            const double figure = FigureOf<Stats>{player, *line}(column.field);
            values.push_back(wholeNumber(figure * column.scale));
            shown.texts.push_back(shownText(values.back(), column));
        }
    }
    return table;
}

PlayerTable PlayerTable::skaters(const Roster& roster, const TeamPlayerStats& stats) {
    return made<SkaterStats>(SkaterColumns, roster, stats);
}

PlayerTable PlayerTable::goalies(const Roster& roster, const TeamPlayerStats& stats) {
    return made<GoalieStats>(GoalieColumns, roster, stats);
}

std::vector<int> PlayerTable::valuesOf(std::size_t column) const {
    std::vector<int> values;
    for (const auto& row : values_)
        values.push_back(row[column]);
    return values;
}

std::vector<std::size_t> PlayerTable::order(int column, bool ascending) const {
    const auto place = static_cast<std::size_t>(column);
    const std::vector<int> rows =
        place == columns_
            ? naturalOrder(count(), ascending)
            : selectionOrder(valuesOf(place), ascending ? Direction::LowestFirst : Direction::HighestFirst);
    return {rows.begin(), rows.end()};
}

std::vector<PlayerTableRow> PlayerTable::ordered(int column, bool ascending) const {
    std::vector<PlayerTableRow> rows;
    for (const std::size_t row : order(column, ascending))
        rows.push_back(rows_[row]);
    return rows;
}

const PlayerTableRow& PlayerTable::leader(int column) const {
    return rows_[order(column, false).front()];
}

TeamPlayers readTeamPlayers(Files& files, TeamIndex team, PartOfYear part) {
    const Roster roster = readRoster(files, paths::playersList(team));
    const TeamPlayerStats stats =
        readPlayerStats(files, paths::teamFile(team, part, paths::PlayerStats), roster);
    TeamPlayers players{PlayerTable::skaters(roster, stats), PlayerTable::goalies(roster, stats), {}};
    players.leaders = leadersOf(players.skaters);
    return players;
}

} // namespace iceline
