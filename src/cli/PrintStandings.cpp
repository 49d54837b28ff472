#include "cli/TextTable.h"
#include "cli/WindowPrinters.h"
#include "standings/Standings.h"

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

/// The head of a column of team names, wide enough for all of them, so that tables beneath each other align.
TextTable::Column teamColumn(const std::string& title) {
    constexpr std::size_t LongestName = 21;
    return {padded(title, LongestName, Align::Left), Align::Left};
}

template <class Rows>
TextTable pointsTable(const std::string& title, const Rows& rows) {
    TextTable table(
        {{"", Align::Left}, teamColumn(title), {"W"}, {"L"}, {"T"}, {"Pts."}, {"GF"}, {"GA"}, {"GP"}});
    for (const StandingsRow& row : rows) {
        std::vector<std::string> cells{row.mark, std::string(TeamName[row.team])};
        for (const int figure : {row.wins, row.losses, row.ties, row.points, row.GF, row.GA, row.GP})
            cells.push_back(std::to_string(figure));
        table.addRow(cells);
    }
    return table;
}

void addRecord(std::vector<std::string>& cells, const SplitRecord& record) {
    for (const int figure : {record.wins, record.losses, record.ties})
        cells.push_back(std::to_string(figure));
    cells.push_back(winPercentText(record));
}

TextTable homeAwayTable(const std::string& title, const HomeAwayRows& rows) {
    TextTable table({teamColumn(title), {"W"}, {"L"}, {"T"}, {"Win%"}, {"GP"}});
    for (const HomeAwayRow& row : rows) {
        std::vector<std::string> cells{std::string(TeamName[row.team])};
        addRecord(cells, row.record);
        cells.push_back(std::to_string(row.GP));
        table.addRow(cells);
    }
    return table;
}

TextTable versusTable(const std::string& title, const VersusRows& rows) {
    TextTable table({teamColumn(title),
                     {"vs. Eastern Conf.  W"},
                     {"L"},
                     {"T"},
                     {"Win%"},
                     {"vs. Western Conf.  W"},
                     {"L"},
                     {"T"},
                     {"Win%"}});
    for (const VersusRow& row : rows) {
        std::vector<std::string> cells{std::string(TeamName[row.team])};
        for (const SplitRecord& record : row.against)
            addRecord(cells, record);
        table.addRow(cells);
    }
    return table;
}

void printHomeAway(const HomeAwayStandings& standings, std::ostream& out) {
    const auto lines = sideBySide(homeAwayTable("Home Records", standings.home).lines(),
                                  homeAwayTable("Away Records", standings.away).lines(), 4);
    for (const std::string& line : lines)
        out << line << '\n';
}

} // namespace

void printStandings(const Standings& window, std::ostream& out) {
    const Standings::Content& content = window.content();
    out << "Division Standings\n";
    for (std::size_t i = 0; i < Divisions.size(); ++i)
        out << '\n' << pointsTable(std::string(Divisions[i].name) + " Division", content.divisions[i]);
    out << "\nConference Standings\n";
    for (std::size_t i = 0; i < Conferences.size(); ++i)
        out << '\n' << pointsTable(std::string(Conferences[i].name) + " Conference", content.conferences[i]);
    out << "\nHome / Away Standings\n\n";
    printHomeAway(content.homeAway, out);
    out << "\nvs. Conference Standings\n";
    for (std::size_t i = 0; i < Conferences.size(); ++i)
        out << '\n' << versusTable(std::string(Conferences[i].name) + " Conference", content.versus[i]);
}

} // namespace iceline::cli
