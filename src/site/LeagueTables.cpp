#include "site/LeagueTables.h"

#include "league/Numbers.h"
#include "page/PageNames.h"
#include "page/PageText.h"
#include "players/PlayerPages.h"
#include "playoffs/Bracket.h"
#include "records/AllTimeRecords.h"
#include "shell/LeaderColumns.h"
#include "standings/PointsStandings.h"
#include "standings/StandingsColumns.h"
#include "store/TeamFiles.h"

#include <algorithm>

namespace iceline {

namespace {

/// The columns of a table of leaders as columns of data.
template <class Stats, std::size_t Columns>
void addColumns(DataTable& table, const std::array<LeaderColumn<Stats>, Columns>& columns) {
    for (const LeaderColumn<Stats>& column : columns)
        table.addColumn(column.caption);
}

template <class Stats, std::size_t Columns>
void addFigures(DataTable& table, const std::array<LeaderColumn<Stats>, Columns>& columns,
                const Stats& stats) {
    for (const LeaderColumn<Stats>& column : columns)
        table.number(static_cast<double>(wholeNumber(column.figure(stats) * column.scale)) / column.scale);
}

/// Wins, losses and ties, then the columns of the teams' leaders.
void addRecordColumns(DataTable& table) {
    for (const std::string_view column : {"W", "L", "T"})
        table.addColumn(column);
    addColumns(table, TeamLeaderColumns);
}

void addRecord(DataTable& table, const TeamRecord& record) {
    table.number(record.Wins).number(record.Losses).number(record.Ties);
    addFigures(table, TeamLeaderColumns, record);
}

/// The last ten games and the streak of a team or a coach.
void addForm(DataTable& table, Files& files, const std::string& folder) {
    const LastTen form = readLastTen(files, folder, readTeamRecord(files, folder).GameCount);
    table.text(markup("{}-{}-{}", form.wins, form.losses, form.ties));
    const Streak streak = readStreak(files, folder);
    table.text(streak.StreakCount == 0 ? "" : markup("{}{}", streak.StreakLetter, streak.StreakCount));
}

/// A team's place among the teams of an order, from 1.
template <class Order>
double placeIn(const Order& order, TeamIndex team) {
    return static_cast<double>(std::ranges::find(order, team) - order.begin() + 1);
}

void addTeam(DataTable& table, TeamIndex team) {
    if (team == BlankTeam)
        table.blank();
    else
        table.text(TeamAbbr[team]);
}

} // namespace

DataTable teamTable(Files& files, PartOfYear part) {
    DataTable table{"team", "name"};
    addRecordColumns(table);
    for (const TeamIndex team : AllLeagueTeams) {
        table.text(TeamAbbr[team]).text(TeamName[team]);
        addRecord(table, readTeamRecord(files, paths::teamFolder(team) + seasonFolder(part)));
        table.endRow();
    }
    return table;
}

DataTable coachTable(Files& files) {
    DataTable table{"coach"};
    addRecordColumns(table);
    for (const std::string_view column : {"last ten", "streak"})
        table.addColumn(column);
    if (!files.isFolder(paths::Coaches))
        return table;
    for (const std::string& coach : files.foldersIn(paths::Coaches)) {
        const std::string folder = paths::coachFolder(coach);
        table.text(coach);
        addRecord(table, readTeamRecord(files, folder));
        addForm(table, files, folder);
        table.endRow();
    }
    return table;
}

DataTable standingsTable(Files& files, const ApplicationState& state) {
    DataTable table{"team", "name", "conference", "division", "place", "seed", "mark"};
    for (const auto& column : PointsColumns)
        table.addColumn(column.caption);
    for (const std::string_view column : {"last ten", "streak"})
        table.addColumn(column);
    for (const TeamIndex team : AllLeagueTeams) {
        const auto& conference = info(static_cast<Conference>(TeamConference[team]));
        const auto& division = info(static_cast<Division>(TeamDivision[team]));
        table.text(TeamAbbr[team]).text(TeamName[team]).text(conference.name).text(division.name);
        table.number(placeIn(state.*division.order, team)).number(placeIn(state.*conference.seeds, team));
        table.text(state.ClinchMark[team]);
        for (const auto& column : PointsColumns)
            table.number(state.StandingsTable[team].*column.figure);
        addForm(table, files, paths::teamFolder(team));
        table.endRow();
    }
    return table;
}

DataTable seriesTable(const PlayoffSeriesTable& series) {
    DataTable table{"round", "conference", "team", "wins", "opponent", "opponent wins"};
    for (int round = 0; round < BracketRounds; ++round) {
        const int campbell = firstSeriesOf(Conference::Campbell, round).number();
        const int end =
            round + 1 < BracketRounds ? firstSeriesOf(Conference::Wales, round + 1).number() : SeriesCount;
        for (int number = firstSeriesOf(Conference::Wales, round).number(); number < end; ++number) {
            const PlayoffSeriesRecord& record = series[SeriesIndex(number)];
            table.number(round + 1);
            if (SeriesIndex(number) == FinalSeries)
                table.blank();
            else
                table.text(info(number < campbell ? Conference::Wales : Conference::Campbell).name);
            addTeam(table, record.TeamA);
            table.number(record.WinsA);
            addTeam(table, record.TeamB);
            table.number(record.WinsB).endRow();
        }
    }
    return table;
}

DataTable recordTable(Files& files, PartOfYear part) {
    DataTable table{"section", "record", "team", "name", "value"};
    for (const RecordSection& section : recordSections(readAllTimeRecords(files, part))) {
        for (const ShownRecord& record : section.records) {
            table.text(section.caption).text(record.caption);
            if (record.team)
                table.text(TeamAbbr[*record.team]);
            else
                table.blank();
            table.text(record.name).number(leadingNumber(record.value)).endRow();
        }
    }
    return table;
}

std::string playerLink(PartOfYear part, TeamIndex team, std::string_view name) {
    return markup("{}/{}.htm", profilesFolder(part, team), linkText(playerFileName(name)));
}

PlayerTables playerTables(Files& files, PartOfYear part) {
    DataTable skaters{"team", "name", "page", "#", "position", "overall"};
    DataTable goalies = skaters;
    addColumns(skaters, PlayerLeaderColumns);
    addColumns(goalies, GoalieLeaderColumns);
    for (DataTable* table : {&skaters, &goalies})
        table->addColumn(StarLeaderColumns.front().caption);
    for (const TeamIndex team : AllLeagueTeams) {
        const Roster roster = readRoster(files, paths::playersList(team));
        const TeamPlayerStats stats =
            readPlayerStats(files, paths::teamFile(team, part, paths::PlayerStats), roster);
        for (std::size_t row = 0; row < listedPlayers(roster).size(); ++row) {
            const RosterIndex index(static_cast<int>(row));
            const RosterRow& player = roster[row];
            DataTable& table = player.isGoalie() ? goalies : skaters;
            table.text(TeamAbbr[team]).text(player.Name).text(playerLink(part, team, player.Name));
            table.number(player.Number).text(player.Position).number(player.Rating);
            if (const auto* goalie = std::get_if<GoalieStats>(&stats[index]))
                addFigures(table, GoalieLeaderColumns, *goalie);
            else
                addFigures(table, PlayerLeaderColumns, std::get<SkaterStats>(stats[index]));
            table.number(starPoints(stats[index])).endRow();
        }
    }
    return {std::move(skaters), std::move(goalies)};
}

} // namespace iceline
