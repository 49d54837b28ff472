#include "site/SiteData.h"

#include "league/Numbers.h"
#include "page/BoxScoreList.h"
#include "page/PageNames.h"
#include "page/PageText.h"
#include "players/PlayerPages.h"
#include "playoffs/Bracket.h"
#include "records/AllTimeRecords.h"
#include "shell/Application.h"
#include "shell/LeaderColumns.h"
#include "site/DataTable.h"
#include "site/FirstLeaders.h"
#include "standings/PointsStandings.h"
#include "standings/StandingsColumns.h"
#include "store/TeamFiles.h"

#include <algorithm>
#include <charconv>

namespace iceline {

namespace {

constexpr std::array Parts{PartOfYear::Season, PartOfYear::Playoffs};

/// The name of a table that a part of the year has one of: "players", "playoff-players".
std::string ofPart(PartOfYear part, const std::string& name) {
    return part == PartOfYear::Season ? name : "playoff-" + name;
}

double numberOf(std::string_view digits) {
    double value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

/// The games of the regular season that count for the teams.
int seasonGames(const ApplicationState& state) {
    int teamGames = 0;
    for (const TeamIndex team : AllLeagueTeams)
        teamGames += state.StandingsTable[team].GP;
    return teamGames / 2;
}

/// A link as markup holds it, without its entities.
std::string plainLink(std::string_view link) {
    constexpr std::string_view Ampersand = "&amp;";
    std::string plain(link);
    for (std::size_t at = plain.find(Ampersand); at != std::string::npos; at = plain.find(Ampersand, at + 1))
        plain.replace(at, Ampersand.size(), "&");
    return plain;
}

/// The part of the year is not in the list, and neither does the kind tell it: the season's games come first.
void writeGames(Files& files, const ApplicationState& state) {
    const std::string list = paths::page("BoxScores.htm");
    const std::string text = files.isFile(list) ? files.read(list) : "";
    DataTable table{"number", "kind", "part", "away", "away goals", "home", "home goals", "page", "date"};
    int left = seasonGames(state);
    for (const ListedGame& game : listedGames(text)) {
        const bool counts = game.kind != "E";
        const bool season = counts && game.kind != "P" && left-- > 0;
        table.number(numberOf(game.number)).text(game.kind);
        table.text(season ? "season" : counts ? "playoffs" : "");
        table.text(game.away).number(numberOf(game.awayGoals));
        table.text(game.home).number(numberOf(game.homeGoals));
        table.text("BoxScores/" + plainLink(game.page)).blank().endRow();
    }
    writeData(files, "games", table);
}

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

void writeTeams(Files& files, PartOfYear part) {
    DataTable table{"team", "name", "W", "L", "T"};
    addColumns(table, TeamLeaderColumns);
    for (const TeamIndex team : AllLeagueTeams) {
        const TeamRecord record = readTeamRecord(files, paths::teamFolder(team) + seasonFolder(part));
        table.text(TeamAbbr[team]).text(TeamName[team]);
        table.number(record.Wins).number(record.Losses).number(record.Ties);
        addFigures(table, TeamLeaderColumns, record);
        table.endRow();
    }
    writeData(files, ofPart(part, "teams"), table);
}

/// A team's place among the teams of an order, from 1.
template <class Order>
double placeIn(const Order& order, TeamIndex team) {
    return static_cast<double>(std::ranges::find(order, team) - order.begin() + 1);
}

void writeStandings(Files& files, const ApplicationState& state) {
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
        const std::string folder = paths::teamFolder(team);
        const LastTen form = readLastTen(files, folder, readTeamRecord(files, folder).GameCount);
        table.text(markup("{}-{}-{}", form.wins, form.losses, form.ties));
        const Streak streak = readStreak(files, folder);
        table.text(streak.StreakCount == 0 ? "" : markup("{}{}", streak.StreakLetter, streak.StreakCount));
        table.endRow();
    }
    writeData(files, "standings", table);
}

void addTeam(DataTable& table, TeamIndex team) {
    if (team == BlankTeam)
        table.blank();
    else
        table.text(TeamAbbr[team]);
}

void writeSeries(Files& files, const PlayoffSeriesTable& series) {
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
    writeData(files, "series", table);
}

void writeRecords(Files& files, PartOfYear part) {
    DataTable table{"section", "record", "team", "name", "value"};
    for (const RecordSection& section : recordSections(readAllTimeRecords(files, part))) {
        for (const ShownRecord& record : section.records) {
            table.text(section.caption).text(record.caption);
            if (record.team)
                table.text(TeamAbbr[*record.team]);
            else
                table.blank();
            table.text(record.name).number(numberOf(record.value)).endRow();
        }
    }
    writeData(files, ofPart(part, "records"), table);
}

/// A player's page as a link from the site's root.
std::string playerLink(PartOfYear part, TeamIndex team, std::string_view name) {
    return markup("{}/{}.htm", profilesFolder(part, team), linkText(playerFileName(name)));
}

/// The skaters and the goalies of a part of the year, whether they have played or not.
void writePlayers(Files& files, PartOfYear part) {
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
    writeData(files, ofPart(part, "players"), skaters);
    writeData(files, ofPart(part, "goalies"), goalies);
}

/// Where the name of each team, player and coach leads.
void writeSearchIndex(Files& files) {
    DataTable table{"name", "kind", "team", "page"};
    for (const TeamIndex team : AllLeagueTeams)
        table.text(TeamName[team])
            .text("team")
            .text(TeamAbbr[team])
            .text(markup("PStats/team.htm?team={}", TeamAbbr[team]))
            .endRow();
    for (const TeamIndex team : AllLeagueTeams) {
        const Roster roster = readRoster(files, paths::playersList(team));
        for (const RosterRow& player : listedPlayers(roster))
            table.text(player.Name)
                .text("player")
                .text(TeamAbbr[team])
                .text(playerLink(PartOfYear::Season, team, player.Name))
                .endRow();
    }
    if (files.isFolder(paths::Coaches))
        for (const std::string& coach : files.foldersIn(paths::Coaches))
            if (files.isFile(paths::page("CStats/" + coach + ".htm")))
                table.text(coach)
                    .text("coach")
                    .blank()
                    .text(markup("CStats/{}.htm", linkText(coach)))
                    .endRow();
    writeData(files, "search", table);
}

} // namespace

void writeSiteData(Application& app) {
    Files& files = app.files();
    files.makeFolder(paths::page("data"));
    writeGames(files, app.state);
    writeStandings(files, app.state);
    writeSeries(files, app.state.PlayoffSeries);
    for (const PartOfYear part : Parts) {
        writeTeams(files, part);
        writePlayers(files, part);
        writeData(files, ofPart(part, "leaders"), firstLeaders(files, part));
        writeRecords(files, part);
    }
    writeSearchIndex(files);
}

} // namespace iceline
