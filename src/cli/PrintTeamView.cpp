#include "cli/WindowPrinters.h"
#include "teams/TeamFigures.h"
#include "teams/TeamStats.h"

namespace iceline::cli {

namespace {

using namespace teamfigures;
using Align = TextTable::Align;

/// A table of one row; the head of the first column begins with `title`.
TextTable figureTable(const std::vector<TeamColumn>& columns, const TeamView& view,
                      const std::string& title = "") {
    std::vector<TextTable::Column> heads;
    std::vector<std::string> cells;
    for (const TeamColumn& column : columns) {
        const std::string head(column.head);
        heads.push_back({heads.empty() && !title.empty() ? title + " " + head : head, Align::Right, head});
        cells.push_back(column.text(view));
    }
    TextTable table(heads, title);
    table.addRow(cells);
    return table;
}

template <std::size_t Columns>
TextTable figureTable(const std::array<TeamColumn, Columns>& columns, const TeamView& view,
                      const std::string& title = "") {
    return figureTable(std::vector(columns.begin(), columns.end()), view, title);
}

std::vector<TeamColumn> recordColumns() {
    std::vector<TeamColumn> columns(Record.begin(), Record.end());
    columns.insert(columns.begin() + 1, Points);
    return columns;
}

std::vector<TeamColumn> overtimeColumns() {
    std::vector<TeamColumn> columns(Overtime.begin(), Overtime.end());
    columns.insert(columns.end(), {LastTenGames, CurrentStreak, Crowd[0], Crowd[1]});
    columns.end()[-2].head = "Crowd dB";
    columns.end()[-1].head = "League dB";
    return columns;
}

} // namespace

void printTeamView(const TeamView& view, Printout& out) {
    out << figureTable(recordColumns(), view, "Record") << "\n"
        << figureTable(Home, view, "Home") << "\n"
        << figureTable(Away, view, "Away") << "\n"
        << figureTable(overtimeColumns(), view, "Overtime") << "\n"
        << "Season Totals\n"
        << figureTable(Totals, view) << figureTable(FurtherTotals, view) << "\n"
        << "Season Averages\n"
        << figureTable(Averages, view) << figureTable(FurtherAverages, view);
}

void printTeamStats(const TeamStats& window, Printout& out) {
    if (!window.content()) {
        printTeamList("Select Your Team Here", out);
        return;
    }
    out << TeamName[TeamIndex(window.TeamSelect)] << "\n\n";
    printTeamView(*window.content(), out);
}

} // namespace iceline::cli
