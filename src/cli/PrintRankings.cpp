#include "cli/TextTable.h"
#include "cli/WindowPrinters.h"
#include "leaders/Rankings.h"

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

/// A table of leaders with the heads of its columns.
template <class Columns>
void printLeaders(const char* title, const char* nameHead, const Rankings::Table& leaders,
                  const Columns& leaderColumns, std::ostream& out) {
    std::vector<TextTable::Column> columns{{"#"}, {"Team", Align::Left}, {nameHead, Align::Left}};
    for (const auto& column : leaderColumns)
        columns.push_back({std::string(column.caption)});
    TextTable table(columns);
    for (const LeaderLine& line : leaders.rows) {
        std::vector<std::string> cells{std::to_string(line.number), std::string(TeamAbbr[line.team]),
                                       line.name};
        cells.insert(cells.end(), line.figures.begin(), line.figures.end());
        table.addRow(cells);
    }
    out << title << "\n\n" << table;
}

} // namespace

void printRankings(const Rankings& window, std::ostream& out) {
    const Rankings::Content& content = window.content();
    printLeaders("Player League Leaders", "Name", content.players, PlayerLeaderColumns, out);
    out << '\n';
    printLeaders("Goalie League Leaders", "Name", content.goalies, GoalieLeaderColumns, out);
    out << '\n';
    printLeaders("Three Star Award Leaders", "Name", content.stars, StarLeaderColumns, out);
    out << '\n';
    printLeaders("Team League Leaders", "", content.teams, TeamLeaderColumns, out);
}

} // namespace iceline::cli
