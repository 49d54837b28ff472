#include "games/BoxScorePage.h"

#include "games/Summaries.h"
#include "league/Numbers.h"
#include "page/PageFrame.h"
#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"

#include <algorithm>

namespace iceline {

namespace {

constexpr std::size_t RecentGamesKept = 9;

std::string abbrOf(const GameSide& side) {
    return std::string(TeamAbbr[side.team]);
}

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

std::string miniBanner(const std::string& abbr) {
    return "<img src=\"../BannerMinis/" + abbr + ".gif\"></img>";
}

std::string pageHead(const GameReport& report) {
    const std::string title = "Rinkstar - Box Score: " + abbrOf(report.away) +
                              itemText(report.away.stats.Goals) + ", " + abbrOf(report.home) +
                              itemText(report.home.stats.Goals);
    return PageFrame{.title = title, .prefix = "../"}.text();
}

std::string wideRow(const std::string& text) {
    return "<tr><td colspan = 6><center><font size = 4><b>" + text + "</b></font></center></td></tr>";
}

std::string playerRow(const GamePlayerRow& player) {
    if (player.isEmpty()) {
        // The row is not closed; browsers close it at the next one.
        std::string row = "<tr><td>&nbsp;";
        for (int figure = 0; figure < 5; ++figure)
            row += "</td><td><center>&nbsp;";
        return row + "</center></td>";
    }
    std::string row = "<tr><td>" + player.Name;
    for (const int figure : {player.G, player.A, player.Pts, player.SOG, player.PIM})
        row += "</td><td><center>" + itemText(figure);
    return row + "</center></td></tr>";
}

/// Goals, coach and roster of a side, below its banner.
void addRoster(PageText& page, const GameSide& side, const std::optional<std::string>& coach) {
    page.line(wideRow(itemText(side.stats.Goals)));
    if (coach)
        page.line(wideRow(*coach));
    page.line("<tr><th><b>Name</b></th><th><b>G</b></th><th><b>A</b></th><th><b>Pts.</b></th>"
              "<th><b>SOG</b></th><th><b>PIM</b></th></tr>");
    for (const GamePlayerRow& player : side.players)
        page.line(playerRow(player));
}

std::string bigBannerRow(const GameSide& side) {
    return "<tr><td colspan = 6><center><img src=\"../BigBanners/" + abbrOf(side) +
           ".gif\"></img></center></td></tr>";
}

std::string teamRow(const std::string& awayValue, const std::string& title, const std::string& homeValue) {
    return "<tr><td><center>" + awayValue + "</center></td><td><center><b>" + title +
           "</b></center></td><td><center>" + homeValue + "</center></td></tr>";
}

std::string powerPlays(const TeamGameStats& team) {
    return itemText(team.PPG) + " / " + itemText(team.PPA);
}

std::string penalties(const TeamGameStats& team) {
    return itemText(team.Penalties) + " / " + itemText(team.PenM);
}

std::string passing(const TeamGameStats& team) {
    return itemText(team.PassComp) + " / " + itemText(team.PassAtt) + "  (" + team.PassAcc + ")";
}

void addTeamTable(PageText& page, const GameReport& report) {
    const TeamGameStats& away = report.away.stats;
    const TeamGameStats& home = report.home.stats;
    page.line("<tr><th colspan = 3>Team Stats</th></tr>");
    page.line("<tr><td><center>" + miniBanner(abbrOf(report.away)) + "</center></td><td></td><td><center>" +
              miniBanner(abbrOf(report.home)) + "</center></td></tr>");
    page.line(teamRow(itemText(away.Goals), "Score", itemText(home.Goals)));
    page.line(teamRow(itemText(away.Shots), "SOG", itemText(home.Shots)));
    page.line(teamRow(away.ShootingPct, "S%", home.ShootingPct));
    page.line(teamRow(powerPlays(away), "Power Plays", powerPlays(home)));
    page.line(teamRow(penalties(away), "Penalties", penalties(home)));
    page.line(teamRow(itemText(away.FaceoffsWon), "Faceoffs Won", itemText(home.FaceoffsWon)));
    page.line(teamRow(itemText(away.BodyChecks), "Body Checks", itemText(home.BodyChecks)));
    page.line(teamRow(away.AttackZoneText, "Att. Zone", home.AttackZoneText));
    page.line(teamRow(passing(away), "Passing", passing(home)) + "</table>");
}

std::string starRow(const std::string& title, const StarOfGame& star) {
    return "<tr><th>" + title + "</th><td><center>" + miniBanner(std::string(TeamAbbr[star.Team])) +
           "</center></td><td>" + star.Name + "</td></tr>";
}

void addStars(PageText& page, const std::array<StarOfGame, 3>& stars) {
    page.line("<table border = 1 align = center><tr><th colspan = 3>Three Star Awards</th></tr>");
    page.line(starRow("First Star", stars[0]));
    page.line(starRow("Second Star", stars[1]));
    page.line(starRow("Third Star", stars[2]) + "</table></td>");
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
    page.line("<br/><font face= arial><p><img src=\"../Headers/BoxScores.gif\"></img></p><br/>"
              "<table><tr><td><table cellpadding =2 border = 1>" +
              bigBannerRow(report.away));
    addRoster(page, report.away, game.awayCoach);
    page.line("</tr></table></td><td><table border = 1 align = center>"
              "<tr><td colspan = 6><center><b><font size = 3>" +
              report.FinalMark + "</font></b></center></td></tr>");
    addTeamTable(page, report);
    addStars(page, report.Star);
    page.line("<td><table cellpadding =" + itemText(2) + " border = 1>" + bigBannerRow(report.home));
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
    row.add("<tr><td><b>" + itemText(gameNumber) + "</b></td><td><b>").add(letterOf(*game.kind));
    row.add("</b></td><td><img src=\"./BannerMinis/" + abbrOf(away) + ".gif\"><b><font size = 5>");
    row.add(itemText(away.stats.Goals) + ", <img src=\"./BannerMinis/" + abbrOf(home) + ".gif\">");
    row.add(itemText(home.stats.Goals) + "</font><a href=\"./BoxScores/" + game.page);
    row.line("\" > Box Score </b></a></td></tr>");
    return row.text();
}

std::vector<RecentGame> withNewGame(const std::vector<RecentGame>& games, const RecentGame& newest) {
    std::vector<RecentGame> recent{newest};
    const auto kept = std::min(games.size(), RecentGamesKept);
    recent.insert(recent.end(), games.begin(), games.begin() + static_cast<std::ptrdiff_t>(kept));
    return recent;
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
