#include "leaders/HomePages.h"

#include "page/PageFrame.h"

namespace iceline {

namespace {

constexpr std::string_view StarsHead =
    "<table border = 1><tr><th colspan = 4>Three Star Points Leaders</th></tr>";

struct PlayoffLink {
    std::string_view caption;
    std::string_view file;
};

constexpr std::array<PlayoffLink, 5> PlayoffLinks{{
    {"Playoff Tree", "PlayoffTree.htm"},
    {"Playoff Player Stats", "PlayoffPlayerStats.htm"},
    {"Playoff Team Stats", "PlayoffTeamStats.htm"},
    {"Playoff League Leaders", "PlayoffLeagueLeaders.htm"},
    {"Playoff All-Time Records", "PlayoffAllTimeRecords.htm"},
}};

std::string teamAndGoals(TeamIndex team, int goals) {
    return "<td><img src=\"./LogoMinis/" + std::string(TeamAbbr[team]) + ".gif\"></img></td><td><b>" +
           std::to_string(goals) + "</b></td>";
}

std::string lastGameRow(const RecentGame& game) {
    return "<tr>" + teamAndGoals(game.Away, game.AwayGoals) + "<td> vs. </td>" +
           teamAndGoals(game.Home, game.HomeGoals) + "<td><a href=\"./BoxScores/" + game.Page +
           "\"><b> BOX </b></a></td></tr>";
}

} // namespace

std::string leagueHomePageOpening(const std::vector<RecentGame>& lastGames) {
    PageText page;
    page.add(PageFrame{.title = "Rinkstar - League Home Page"}.text());
    page.line("<br/><br/><table><tr><td><img src=\"./Headers/Iceline-Logo.gif\"></img></p></td><td>");
    page.line("<table border = 1><tr><th colspan = 6>Last 10 Game Results</th></tr>");
    for (const RecentGame& game : lastGames)
        page.line(lastGameRow(game));
    if (lastGames.empty())
        page.line("<tr><td colspan=6>No Games</td></tr>");
    page.line("</table></td></tr></table><br/><br/>");
    page.line(StarsHead);
    return page.text();
}

std::string playoffHomePageOpening() {
    PageText page;
    page.add(PageFrame{.title = "Rinkstar - Playoffs", .start = ""}.text());
    page.line(headerImage("Headers/", "Playoffs"));
    for (const PlayoffLink& link : PlayoffLinks) {
        page.add("<p><a href=\"./").add(link.file).add("\"><b>");
        page.add(link.caption).line("</b></a></p>");
    }
    page.line("<br/><br/>");
    page.line(StarsHead);
    return page.text();
}

std::string homePageGroupHead(const HomePageGroup& group) {
    return PageText()
        .add("</table></td></tr></table><table border=1><tr><th colspan = 10>")
        .add(group.head)
        .line("</th></tr><tr></font></center>")
        .text();
}

std::string homePageBlockHead(const HomePageGroup& group, const HomePageBlock& block) {
    PageText page;
    if (&block != &group.blocks.front())
        page.line("</table></td><td></td></font></center>");
    page.add("<td><table border = 1><tr><th colspan = 4").add(block.width).add(">");
    return page.add(block.head).line("</th></tr>").text();
}

std::string homePageEnd() {
    return PageText().line("</table></td></tr></font></center>").line("</table></body></html>").text();
}

} // namespace iceline
