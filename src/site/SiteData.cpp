#include "site/SiteData.h"

#include "league/Numbers.h"
#include "page/BoxScoreList.h"
#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "page/PageText.h"
#include "players/PlayerPages.h"
#include "shell/Application.h"
#include "site/FirstLeaders.h"
#include "site/LeagueTables.h"
#include "store/PlayerFiles.h"

namespace iceline {

namespace {

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
void writeGames(Files& files, const ApplicationState& state, const GameTimes& times) {
    const std::string list = paths::page("BoxScores.htm");
    const std::string text = files.isFile(list) ? files.read(list) : "";
    DataTable table{"number", "kind", "part", "away", "away goals", "home", "home goals", "page", "date"};
    int left = seasonGames(state);
    for (const ListedGame& game : listedGames(text)) {
        const bool counts = game.kind != "E";
        const bool season = counts && game.kind != "P" && left-- > 0;
        const auto number = static_cast<int>(leadingNumber(game.number));
        table.number(number).text(game.kind);
        table.text(season ? "season" : counts ? "playoffs" : "");
        table.text(game.away).number(leadingNumber(game.awayGoals));
        table.text(game.home).number(leadingNumber(game.homeGoals));
        table.text("BoxScores/" + plainLink(game.page));
        if (const auto time = times.find(number); time != times.end())
            table.text(time->second).endRow();
        else
            table.blank().endRow();
    }
    writeData(files, "games", table);
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

void writeSiteData(Application& app, const GameTimes& times) {
    Files& files = app.files();
    files.makeFolder(paths::page("data"));
    writeGames(files, app.state, times);
    writeData(files, "standings", standingsTable(files, app.state));
    writeData(files, "series", seriesTable(app.state.PlayoffSeries));
    for (const PartOfYear part : {PartOfYear::Season, PartOfYear::Playoffs}) {
        writeData(files, ofPart(part, "teams"), teamTable(files, part));
        const PlayerTables players = playerTables(files, part);
        writeData(files, ofPart(part, "players"), players.skaters);
        writeData(files, ofPart(part, "goalies"), players.goalies);
        writeData(files, ofPart(part, "leaders"), firstLeaders(files, part));
        writeData(files, ofPart(part, "records"), recordTable(files, part));
    }
    writeSearchIndex(files);
}

} // namespace iceline
