#include "cli/WindowPrinters.h"
#include "standings/Standings.h"
#include "standings/StandingsColumns.h"

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

/// The head of a column of team names, wide enough for all of them, so that tables one above the other align.
TextTable::Column teamColumn(const std::string& title) {
    constexpr std::size_t LongestName = 21;
    return {padded(title, LongestName, Align::Left), Align::Left, "Team"};
}

/// The heads of the figures.
template <class Columns>
void addHeads(std::vector<TextTable::Column>& heads, const Columns& columns) {
    for (const auto& column : columns)
        heads.push_back({std::string(column.caption)});
}

/// The same for figures under a common head, which the first bears before its caption.
template <class Columns>
void addHeads(std::vector<TextTable::Column>& heads, const Columns& columns, const std::string& over) {
    for (const auto& column : columns) {
        const std::string caption(column.caption);
        heads.push_back(
            {(&column == &columns.front() ? over + "  " : "") + caption, Align::Right, over + " " + caption});
    }
}

template <class Columns, class Record>
void addFigures(std::vector<std::string>& cells, const Columns& columns, const Record& record) {
    for (const auto& column : columns)
        cells.push_back(column.text(record));
}

template <class Rows>
TextTable pointsTable(const std::string& title, const Rows& rows) {
    std::vector<TextTable::Column> heads{{"", Align::Left, "Mark"}, teamColumn(title)};
    addHeads(heads, PointsColumns);
    TextTable table(heads, title);
    for (const PointsRow& row : rows) {
        std::vector<std::string> cells{row.mark, std::string(TeamName[row.team])};
        addFigures(cells, PointsColumns, row.figures);
        table.addRow(cells);
    }
    return table;
}

TextTable homeAwayTable(const std::string& title, const HomeAwayRows& rows) {
    std::vector<TextTable::Column> heads{teamColumn(title)};
    addHeads(heads, HomeAwayColumns);
    TextTable table(heads, title);
    for (const HomeAwayRow& row : rows) {
        std::vector<std::string> cells{std::string(TeamName[row.team])};
        addFigures(cells, HomeAwayColumns, row.record);
        table.addRow(cells);
    }
    return table;
}

TextTable versusTable(const std::string& title, const VersusRows& rows) {
    std::vector<TextTable::Column> heads{teamColumn(title)};
    addHeads(heads, VersusColumns, "vs. Eastern Conf.");
    addHeads(heads, VersusColumns, "vs. Western Conf.");
    TextTable table(heads, title);
    for (const VersusRow& row : rows) {
        std::vector<std::string> cells{std::string(TeamName[row.team])};
        for (const SplitRecord& record : row.against)
            addFigures(cells, VersusColumns, record);
        table.addRow(cells);
    }
    return table;
}

} // namespace

void printStandings(const Standings& window, Printout& out) {
    const Standings::Content& content = window.content();
    out << "Division Standings\n";
    for (std::size_t i = 0; i < Divisions.size(); ++i)
        out << "\n" << pointsTable(std::string(Divisions[i].name) + " Division", content.divisions[i]);
    out << "\nConference Standings\n";
    for (std::size_t i = 0; i < Conferences.size(); ++i)
        out << "\n" << pointsTable(std::string(Conferences[i].name) + " Conference", content.conferences[i]);
    out << "\nHome / Away Standings\n\n";
    out.sideBySide(homeAwayTable("Home Records", content.homeAway.home),
                   homeAwayTable("Away Records", content.homeAway.away));
    out << "\nvs. Conference Standings\n";
    for (std::size_t i = 0; i < Conferences.size(); ++i)
        out << "\n" << versusTable(std::string(Conferences[i].name) + " Conference", content.versus[i]);
}

} // namespace iceline::cli
