#include "games/BoxScorePage.h"

#include "games/ReportTables.h"
#include "games/Summaries.h"
#include "league/Numbers.h"
#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"

#include <algorithm>

namespace iceline {

namespace {

constexpr std::size_t RecentGames = 10;

std::string_view letterOf(GameKind kind) {
    switch (kind) {
    case GameKind::Season:
        return "S";
    case GameKind::Exhibition:
        return "E";
    case GameKind::Playoff:
        return "P";
    }
    return "";
}

std::string_view abbrOf(const GameSide& side) {
    return TeamAbbr[side.team];
}

std::string goalsOf(const GameSide& side) {
    return itemText(side.stats.Goals);
}

std::string pageHead(const GameReport& report) {
    return PageFrame{.title = markup("Rinkstar - Box Score: {}{}, {}{}", abbrOf(report.away),
                                     goalsOf(report.away), abbrOf(report.home), goalsOf(report.home)),
                     .prefix = "../"}
        .text();
}

std::string miniBanner(TeamIndex team) {
    return markup(R"(<img src="../BannerMinis/{}.gif"></img>)", TeamAbbr[team]);
}

std::string bigBannerRow(const GameSide& side) {
    return markup(R"(<tr><td colspan = 6><center><img src="../BigBanners/{}.gif"></img></center></td></tr>)",
                  abbrOf(side));
}

void addWideRow(PageText& page, std::string_view text) {
    page.line("<tr><td colspan = 6><center><font size = 4><b>{}</b></font></center></td></tr>", text);
}

void addRosterHead(PageText& page) {
    page.add("<tr><th><b>Name</b></th>");
    for (const PlayerFigure& figure : PlayerFigures)
        page.add("<th><b>{}</b></th>", figure.caption);
    page.line("</tr>");
}

/// The row of an empty roster row is not closed; browsers close it at the next one.
void addPlayer(PageText& page, const GamePlayerRow& player) {
    page.add("<tr><td>{}", player.isEmpty() ? "&nbsp;" : shown(player.Name));
    for (const PlayerFigure& figure : PlayerFigures)
        page.add("</td><td><center>{}", player.isEmpty() ? "&nbsp;" : itemText(player.*figure.figure));
    page.line("</center></td>{}", player.isEmpty() ? "" : "</tr>");
}

/// Goals, coach and roster of a side, below its banner.
void addRoster(PageText& page, const GameSide& side, const std::optional<std::string>& coach) {
    addWideRow(page, goalsOf(side));
    if (coach)
        addWideRow(page, shown(*coach));
    addRosterHead(page);
    for (const GamePlayerRow& player : side.players)
        addPlayer(page, player);
}

std::string pageText(const TeamFigureLine& line, const TeamGameStats& team) {
    std::string text = line.first.text(team, itemText);
    if (line.second)
        text += " / " + line.second->text(team, itemText);
    if (line.pageNote)
        text += markup("  ({})", team.*line.pageNote);
    return text;
}

void addTeamTable(PageText& page, const GameReport& report) {
    page.line("<tr><th colspan = 3>Team Stats</th></tr>");
    page.add("<tr><td><center>{}</center></td><td></td><td><center>{}</center></td></tr>",
             miniBanner(report.away.team), miniBanner(report.home.team));
    for (const TeamFigureLine& line : TeamFigureLines)
        if (!line.pageTitle.empty())
            page.line().add("<tr><td><center>{}</center></td><td><center><b>{}</b></center></td>"
                            "<td><center>{}</center></td></tr>",
                            pageText(line, report.away.stats), line.pageTitle,
                            pageText(line, report.home.stats));
    page.line("</table>");
}

void addStars(PageText& page, const std::array<StarOfGame, 3>& stars) {
    page.add("<table border = 1 align = center><tr><th colspan = 3>Three Star Awards</th></tr>");
    for (std::size_t k = 0; k < StarPlaces.size(); ++k)
        page.line().add("<tr><th>{}</th><td><center>{}</center></td><td>{}</td></tr>",
                        StarPlaces[k].pageTitle, miniBanner(stars[k].Team), shown(stars[k].Name));
    page.line("</table></td>");
}

void addSummaries(PageText& page, const GameReport& report) {
    page.line("<table border = 1 align = left><tr><th colspan = 5>Scoring Summary</th></tr>");
    page.line("<tr><th>Period</th><th>Time</th><th>Team</th><th>Goal/Assist</th><th>P/S</th></tr>");
    page.add(scoringRows(report));
    page.line("</table>");
    page.line("<table border = 1 align = right><tr><th colspan = 6>Penalty Summary</th></tr>");
    page.line("<tr><th>Period</th><th>Time</th><th>Team</th><th>Player</th><th>Penalty</th>"
              "<th>Minutes</th></tr>");
    page.add(penaltyRows(report));
}

/// The recent games with a new one at their head, of which the oldest falls out.
std::vector<RecentGame> withNewGame(std::vector<RecentGame> games, const RecentGame& newest) {
    games.insert(games.begin(), newest);
    games.resize(std::min(games.size(), RecentGames));
    return games;
}

} // namespace

std::string boxScorePageName(const std::string& saveStateFileName) {
    const std::size_t point = saveStateFileName.rfind('.');
    if (saveStateFileName.empty() || point == 0)
        return "_.htm";
    return saveStateFileName.substr(0, point) + ".htm";
}

std::string boxScorePage(const BoxScore& game) {
    const GameReport& report = game.report;
    PageText page;
    page.add(pageHead(report));
    page.line(R"(<br/><font face= arial><p><img src="../Headers/BoxScores.gif"></img></p><br/>)"
              "<table><tr><td><table cellpadding =2 border = 1>{}",
              bigBannerRow(report.away));
    addRoster(page, report.away, game.awayCoach);
    page.line("</tr></table></td><td><table border = 1 align = center>"
              "<tr><td colspan = 6><center><b><font size = 3>{}</font></b></center></td></tr>",
              report.FinalMark);
    addTeamTable(page, report);
    addStars(page, report.Star);
    page.line("<td><table cellpadding ={} border = 1>{}", itemText(2), bigBannerRow(report.home));
    addRoster(page, report.home, game.homeCoach);
    page.line("</table></td></tr></table>");
    addSummaries(page, report);
    page.line("</tr></table><BR></center></body></html>");
    return page.text();
}

std::string boxScoreListRow(const BoxScore& game, int gameNumber) {
    const GameSide& away = game.report.away;
    const GameSide& home = game.report.home;
    PageText row;
    row.line("<tr><td><b>{}</b></td><td><b>{}</b></td>"
             R"(<td><img src="./BannerMinis/{}.gif"><b><font size = 5>{}, )"
             R"(<img src="./BannerMinis/{}.gif">{}</font>)"
             R"(<a href="./BoxScores/{}" > Box Score </b></a></td></tr>)",
             itemText(gameNumber), letterOf(*game.kind), abbrOf(away), goalsOf(away), abbrOf(home),
             goalsOf(home), linked(game.page));
    return row.text();
}

void writeBoxScore(Files& files, const BoxScore& game) {
    const GameReport& report = game.report;
    writePage(files, paths::page("BoxScores/" + game.page), boxScorePage(game));
    if (game.kind)
        files.append(paths::page("BoxScores.htm"),
                     boxScoreListRow(game, readNumber32(files, paths::OverallGameNumber)));
    const RecentGame newest{report.home.team, report.away.team, report.home.stats.Goals,
                            report.away.stats.Goals, game.page};
    files.write(paths::Last10Box, textOf(withNewGame(readRecentGames(files), newest)));
}

} // namespace iceline
