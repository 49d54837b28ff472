#include "leaders/LeaderTables.h"

#include "files/FileError.h"
#include "league/Numbers.h"

#include <cmath>
#include <limits>

namespace iceline {

namespace {

template <class Stats>
int scaledFigure(const std::string& file, const LeaderColumn<Stats>& column, const Stats& stats) {
    const double value = column.figure(stats) * column.scale;
    if (std::fabs(value) > std::numeric_limits<int>::max())
        throw FileError::about(file, std::string(column.caption) + " of " + numberText(column.figure(stats)) +
                                         " is too large for the leader tables");
    return wholeNumber(value);
}

template <class Stats, std::size_t Columns>
std::array<int, Columns> scaledFigures(const std::string& file,
                                       const std::array<LeaderColumn<Stats>, Columns>& columns,
                                       const Stats& stats) {
    std::array<int, Columns> values{};
    for (std::size_t column = 0; column < Columns; ++column)
        values[column] = scaledFigure(file, columns[column], stats);
    return values;
}

template <class Stats>
const Stats& as(const PlayerStatsLine& line) {
    if constexpr (std::is_same_v<Stats, PlayerStatsLine>)
        return line;
    else
        return std::get<Stats>(line);
}

/// The players whom `takes` chooses by their lines of the two files.
template <class Stats, std::size_t Columns, class Takes>
std::vector<LeaderRow<Columns>> readLeaders(Files& files, PartOfYear part,
                                            const std::array<LeaderColumn<Stats>, Columns>& columns,
                                            Takes takes) {
    std::vector<LeaderRow<Columns>> leaders;
    for (const TeamIndex team : AllLeagueTeams) {
        const std::string statsFile = paths::teamFile(team, part, paths::PlayerStats);
        const Roster roster = readRoster(files, paths::playersList(team));
        const TeamPlayerStats stats = readPlayerStats(files, statsFile, roster);
        for (const RosterIndex row : AllRosterRows)
            if (takes(roster[row], stats[row]))
                leaders.push_back(
                    {team, roster[row].Name, scaledFigures(statsFile, columns, as<Stats>(stats[row]))});
    }
    return leaders;
}

} // namespace

TeamLeader readTeamLeader(Files& files, const RecordFolder& folder) {
    return {scaledFigures(folder + "/" + paths::Records, TeamLeaderColumns, readTeamRecord(files, folder))};
}

std::array<TeamLeader, LeagueTeams> readTeamLeaders(Files& files, PartOfYear part) {
    std::array<TeamLeader, LeagueTeams> leaders;
    for (const TeamIndex team : AllLeagueTeams)
        leaders[team] = readTeamLeader(files, paths::teamFolder(team) + seasonFolder(part));
    return leaders;
}

std::vector<PlayerLeader> readPlayerLeaders(Files& files, PartOfYear part) {
    return readLeaders(files, part, PlayerLeaderColumns,
                       [](const RosterRow& player, const PlayerStatsLine& line) {
                           return !player.isGoalie() && !player.isEmpty() && gamesPlayed(line) != 0;
                       });
}

std::vector<GoalieLeader> readGoalieLeaders(Files& files, PartOfYear part) {
    return readLeaders(files, part, GoalieLeaderColumns,
                       [](const RosterRow& player, const PlayerStatsLine& line) {
                           return player.isGoalie() && gamesPlayed(line) != 0;
                       });
}

std::vector<StarLeader> readStarLeaders(Files& files, PartOfYear part) {
    return readLeaders(files, part, StarLeaderColumns,
                       [](const RosterRow& player, const PlayerStatsLine& line) {
                           return !player.isEmpty() && starPoints(line) > 0;
                       });
}

} // namespace iceline
