#include "players/PlayerPages.h"

#include "league/Numbers.h"
#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "players/PlayerCards.h"
#include "players/PlayerColumns.h"

#include <algorithm>

namespace iceline {

namespace {

/// The heads and figures of a row of the statistics table; the figures are items of their own.
struct StatRow {
    PageText heads;
    PageText figures;
    bool isEmpty = true;

    void add(std::string_view head, std::string_view figure) {
        heads.add(isEmpty ? "" : "</th><th>").add(head);
        figures.add(isEmpty ? "" : "</td><td>").add(figure);
        isEmpty = false;
    }
};

template <class Stats, std::size_t Columns>
StatRow statRow(const std::array<PageColumn<Stats>, Columns>& columns, const FigureOf<Stats>& figureOf) {
    StatRow row;
    for (const PageColumn<Stats>& column : columns)
        row.add(column.head, itemText(figureOf(column.field)));
    return row;
}

/// The averages below their counters; the row ends with the last of them.
StatRow averagesRow(const FigureOf<SkaterStats>& figureOf) {
    const auto hasAverage = [](const auto& column) { return column.average.has_value(); };
    const auto last = std::ranges::find_if(SkaterPageColumns.rbegin(), SkaterPageColumns.rend(), hasAverage);
    StatRow row;
    for (const PageColumn<SkaterStats>& column : std::span(SkaterPageColumns.begin(), last.base()))
        row.add(column.averageHead, column.average ? itemText(figureOf(*column.average)) : "");
    return row;
}

void addStats(PageText& page, const RosterRow& player, const GoalieStats& stats) {
    const StatRow row = statRow(GoaliePageColumns, FigureOf<GoalieStats>{player, stats});
    page.line("<br><table border=1><tr><th>{}</tr>", row.heads.text());
    page.line("<tr><td>{}</td></tr>", row.figures.text());
}

void addStats(PageText& page, const RosterRow& player, const SkaterStats& stats) {
    const FigureOf<SkaterStats> figureOf{player, stats};
    const StatRow row = statRow(SkaterPageColumns, figureOf);
    page.line("<br><table border=1><tr><th>{}</th></tr>", row.heads.text());
    page.line("<tr><td>{}</td></tr>", row.figures.text());
    const StatRow averages = averagesRow(figureOf);
    page.line("<tr><th>{}</th></tr><tr><td>{}</td></tr>", averages.heads.text(), averages.figures.text());
}

/// The card to name on a player's page. The pages of the play-offs name his own, whether there is one or not.
std::string cardOf(Files& files, Platform& platform, PartOfYear part, const RosterRow& player) {
    return part == PartOfYear::Playoffs ? playerFileName(player.Name)
                                        : playerCard(files, platform, player.Name, player.isGoalie());
}

} // namespace

std::string profilesFolder(PartOfYear part, TeamIndex team) {
    return markup("{}/{}", part == PartOfYear::Season ? "Profiles" : "PlayoffProfiles", TeamAbbr[team]);
}

std::span<const RosterRow> listedPlayers(const Roster& roster) {
    const auto end =
        std::ranges::find_if(roster, [](const RosterRow& row) { return row.isEmpty() || row.Name.empty(); });
    return {roster.begin(), end};
}

std::string rosterPage(TeamIndex team, const Roster& roster) {
    PageText page;
    page.add(
        PageFrame{.title = markup("Iceline - {} Team Roster", TeamName[team]), .prefix = "../../"}.text());
    page.line(R"(<br/><br/><img src="../../Headers/TeamRoster.gif"></img></p><table border = 5><tr><td>)"
              R"(<img src="../../BigBanners/{0}.gif"></img></td></tr></table><br><table><tr><td>)"
              R"(<img src="../../BigLogos/{0}.gif"></img></td></tr></table>)",
              TeamAbbr[team]);
    page.line("<br/><br/><table border = 1><tr><th>Pos.</th><th>#</th><th>Player</th>"
              "<th>Overall Rating</th></tr>");
    for (const RosterRow& player : listedPlayers(roster))
        page.line(R"(<td>{}</td><td>{}</td><td><a href="./{}.htm">{}</a></td><td>{}</td></tr>)",
                  shown(player.Position), player.Number, linked(playerFileName(player.Name)),
                  shown(player.Name), player.Rating);
    return page.line("</table></center></body></html>").text();
}

std::string playerPage(PartOfYear part, TeamIndex team, const RosterRow& player, const PlayerStatsLine& stats,
                       const std::string& card) {
    const char* kind = part == PartOfYear::Season ? "Player Profile" : "Playoff Player Profile";
    PageText page;
    page.add(
        PageFrame{.title = markup("Iceline - {} {}", shown(player.Name), kind), .prefix = "../../"}.text());
    page.line(R"(<br/><br/><img src="../../Headers/PlayerProfiles.gif"></img></p><table border = 5><tr>)"
              R"(<td colspan =2><img src="../../BigBanners/{}.gif"></img></td></tr><br>)",
              TeamAbbr[team]);
    page.line(R"(<tr><td><img src="../../PlayerCards/{}.gif" width = 200 height = 200></img></td>)",
              linked(card));
    page.line(R"(<td><img src="../../BigLogos/{}.gif"></img></td></tr></table>)", TeamAbbr[team]);
    page.line("<table border = 1><tr><th colspan = 3><font size = 5>{}</font></th></tr><tr><th>#</th>"
              "<th>Position</th><th>Overall Rating</th></tr><tr><td>{}</td><td>{}</td><td>{}</tr></table>",
              shown(player.Name), player.Number, shown(player.Position), player.Rating);
    std::visit([&](const auto& line) { addStats(page, player, line); }, stats);
    return page.line("</table></center></body></html>").text();
}

void writeRosterPage(Files& files, PartOfYear part, TeamIndex team) {
    const std::string folder = paths::page(profilesFolder(part, team));
    files.makeFolder(folder);
    const Roster roster = readRoster(files, paths::playersList(team));
    writePage(files, folder + "/index.htm", rosterPage(team, roster));
}

void writePlayerPages(Files& files, Platform& platform, PartOfYear part, TeamIndex team) {
    const std::string folder = paths::page(profilesFolder(part, team));
    files.makeFolder(folder);
    const Roster roster = readRoster(files, paths::playersList(team));
    const TeamPlayerStats stats =
        readPlayerStats(files, paths::teamFile(team, part, paths::PlayerStats), roster);
    auto line = stats.begin();
    for (const RosterRow& player : listedPlayers(roster))
        writePageWithCards(files, folder + "/" + playerFileName(player.Name) + ".htm",
                           playerPage(part, team, player, *line++, cardOf(files, platform, part, player)));
}

} // namespace iceline
