#include "cli/WindowPrinters.h"
#include "coaches/CoachStats.h"
#include "leaders/Rankings.h"

namespace iceline::cli {

namespace {

using Align = TextTable::Align;

/// A table of leaders under the captions of its columns, each line after `heads` and what `begin` gives for
/// it.
template <class Columns, class Begin>
TextTable leaderTable(std::vector<TextTable::Column> heads, const Columns& columns,
                      const std::vector<LeaderLine>& lines, Begin begin) {
    for (const auto& column : columns)
        heads.push_back({std::string(column.caption)});
    TextTable table(heads);
    for (const LeaderLine& line : lines) {
        std::vector<std::string> cells = begin(line);
        cells.insert(cells.end(), line.figures.begin(), line.figures.end());
        table.addRow(cells);
    }
    return table;
}

template <class Columns>
void printLeaders(const char* title, const char* nameHead, const Rankings::Table& leaders,
                  const Columns& columns, Printout& out) {
    out << title << "\n\n"
        << leaderTable({{"#"}, {"Team", Align::Left}, {nameHead, Align::Left, "Name"}}, columns, leaders.rows,
                       [](const LeaderLine& line) -> std::vector<std::string> {
                           return {std::to_string(line.number), std::string(TeamAbbr[line.team]), line.name};
                       });
}

} // namespace

void printRankings(const Rankings& window, Printout& out) {
    const Rankings::Content& content = window.content();
    printLeaders("Player League Leaders", "Name", content.players, PlayerLeaderColumns, out);
    out << "\n";
    printLeaders("Goalie League Leaders", "Name", content.goalies, GoalieLeaderColumns, out);
    out << "\n";
    printLeaders("Three Star Award Leaders", "Name", content.stars, StarLeaderColumns, out);
    out << "\n";
    printLeaders("Team League Leaders", "", content.teams, TeamLeaderColumns, out);
}

void printCoachStats(const CoachStats& window, Printout& out) {
    const CoachStats::Content& content = window.content();
    out << "Coach Rankings\n"
        << leaderTable({{"#"}, {"Coaches", Align::Left}}, TeamLeaderColumns, content.ranking.lines,
                       [](const LeaderLine& line) -> std::vector<std::string> {
                           return {std::to_string(line.number), line.name};
                       });
    if (!content.coach)
        return;
    out << "\n" << window.CoachName() << "\n\n";
    printTeamView(*content.coach, out);
}

} // namespace iceline::cli
