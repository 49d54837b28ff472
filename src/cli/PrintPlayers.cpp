#include "cli/WindowPrinters.h"
#include "players/PlayerProfiles.h"
#include "players/PlayerStats.h"

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

template <class Stats, std::size_t Columns>
TextTable playerTable(const std::string& title, const std::array<PlayerColumn<Stats>, Columns>& columns,
                      const std::vector<PlayerTableRow>& rows) {
    std::vector<TextTable::Column> heads{{title, Align::Left, "Name"}};
    for (const PlayerColumn<Stats>& column : columns)
        heads.push_back({std::string(column.caption)});
    TextTable table(heads, title);
    for (const PlayerTableRow& row : rows) {
        std::vector<std::string> cells{row.Name};
        cells.insert(cells.end(), row.texts.begin(), row.texts.end());
        table.addRow(cells);
    }
    return table;
}

TextTable leaderTable(const std::vector<CategoryLeader>& leaders) {
    TextTable table(
        {{"Team Leaders", Align::Left, "Category"}, {"", Align::Left, "Name"}, {"", Align::Right, "Value"}},
        "Team Leaders");
    for (const CategoryLeader& leader : leaders)
        table.addRow({std::string(leader.heading), leader.Name, leader.value});
    return table;
}

} // namespace

void printTeamList(const std::string& prompt, Printout& out) {
    out << prompt << "\n";
    for (const TeamIndex team : AllLeagueTeams)
        out << "  " << TeamName[team] << "\n";
}

void printPlayerStats(const PlayerStats& window, Printout& out) {
    if (window.PlayersTeamSelect == PlayerStats::NotChosen) {
        printTeamList("Select Team Here", out);
        return;
    }
    out << TeamName[TeamIndex(window.PlayersTeamSelect)] << "\n\n"
        << playerTable("Forwards / Defensemen", SkaterColumns, window.content().skaters) << "\n"
        << playerTable("Goalies", GoalieColumns, window.content().goalies) << "\n"
        << leaderTable(window.content().leaders);
}

void printPlayerProfiles(const PlayerProfiles& window, Printout& out) {
    if (window.PlayersTeamSelect == PlayerProfiles::NotChosen) {
        printTeamList("Select Team Here", out);
        return;
    }
    out << TeamName[TeamIndex(window.PlayersTeamSelect)] << "\n\nSelect Player Here\n";
    for (const RosterRow& row : window.content().roster)
        out << "  " << row.Name << "\n";
}

} // namespace iceline::cli
