#include "site/FirstLeaders.h"

#include "leaders/LeaderTables.h"
#include "league/Selection.h"
#include "league/TeamTable.h"

namespace iceline {

namespace {

constexpr int ShownFirst = 50; ///< rows that the page shows until a visitor asks for all
constexpr std::size_t Points = columnOf(PlayerLeaderColumns, "Pts.");

} // namespace

DataTable firstLeaders(Files& files, PartOfYear part) {
    const std::vector<PlayerLeader> leaders = readPlayerLeaders(files, part);
    std::vector<int> points;
    for (const PlayerLeader& leader : leaders)
        points.push_back(leader.values[Points]);
    DataTable table{"team", "name"};
    for (const auto& column : PlayerLeaderColumns)
        table.addColumn(column.caption);
    const std::vector<int> order = selectionOrder(points, Direction::HighestFirst, ShownFirst);
    for (const int row : std::span(order).first(std::min<std::size_t>(order.size(), ShownFirst))) {
        const PlayerLeader& leader = leaders[static_cast<std::size_t>(row)];
        table.text(TeamAbbr[leader.Team]).text(leader.Name);
        for (std::size_t column = 0; column < PlayerLeaderColumns.size(); ++column)
            table.number(static_cast<double>(leader.values[column]) / PlayerLeaderColumns[column].scale);
        table.endRow();
    }
    return table;
}

} // namespace iceline
