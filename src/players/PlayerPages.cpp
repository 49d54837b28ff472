#include "players/PlayerPages.h"

#include "league/Numbers.h"
#include "page/PageFrame.h"

#include <initializer_list>

namespace iceline {

namespace {

constexpr std::string_view NextCell = "</td><td>";

/// A row of figures, each an item of its own.
std::string figuresRow(std::initializer_list<double> figures) {
    std::string row = "<tr>";
    for (const double figure : figures)
        row.append(row.size() == 4 ? "<td>" : NextCell).append(itemText(figure));
    return row + "</td></tr>";
}

void addStats(PageText& page, const GoalieStats& goalie) {
    page.line("<br><table border=1><tr><th>GP</th><th>Pow.Rank</th><th>W</th><th>L</th><th>T</th><th>GAA</th>"
              "<th>Sv%</th><th>SHO</th><th>SF</th><th>GA</th><th>A</th><th>Three Star Pts.</tr>");
    page.line(figuresRow({double(goalie.GP), goalie.Rating, double(goalie.GW), double(goalie.GL),
                          double(goalie.GT), goalie.GAA, goalie.SvPct, double(goalie.SO), double(goalie.SA),
                          double(goalie.GA), double(goalie.A), double(goalie.StarPoints)}));
}

void addStats(PageText& page, const SkaterStats& skater) {
    page.line("<br><table border=1><tr><th>GP</th><th>Pow.Rank</th><th>G</th><th>A</th><th>Pts.</th>"
              "<th>PP</th><th>SH</th><th>SOG</th><th>S%</th><th>PIM</th><th>Three Star Pts.</th></tr>");
    page.line(figuresRow({double(skater.GP), skater.Rating, double(skater.G), double(skater.A),
                          double(skater.Pts), double(skater.PPG), double(skater.SHG), double(skater.SOG),
                          skater.ShotPct, double(skater.PIM), double(skater.StarPoints)}));
    page.add("<tr><th></th><th></th><th>GPG</th><th>APG</th><th>PPG</th><th></th><th></th><th>SOGPG</th>"
             "<th></th><th>PIMPG</th></tr><tr><td></td><td></td><td>");
    page.add(itemText(skater.GPG)).add(NextCell).add(itemText(skater.APG)).add(NextCell);
    page.add(itemText(skater.PtsPG)).add("</td><td></td><td></td><td>").add(itemText(skater.SOGPG));
    page.add("</td><td></td><td>").add(itemText(skater.PIMPG)).line("</td></tr>");
}

std::string nameTable(const RosterRow& player) {
    return "<table border = 1><tr><th colspan = 3><font size = 5>" + player.Name +
           "</font></th></tr><tr><th>#</th><th>Position</th><th>Overall Rating</th></tr><tr><td>" +
           std::to_string(player.Number) + "</td><td>" + player.Position + "</td><td>" +
           std::to_string(player.Rating) + "</tr></table>";
}

} // namespace

std::string playerPage(PartOfYear part, TeamIndex team, const RosterRow& player, const PlayerStatsLine& stats,
                       const std::string& card) {
    const std::string abbr(TeamAbbr[team]);
    const std::string profile = part == PartOfYear::Season ? " Player Profile" : " Playoff Player Profile";
    PageText page;
    page.add(PageFrame{.title = "Iceline - " + player.Name + profile, .prefix = "../../"}.text());
    page.line("<br/><br/><img src=\"../../Headers/PlayerProfiles.gif\"></img></p><table border = 5><tr>"
              "<td colspan =2><img src=\"../../BigBanners/" +
              abbr + ".gif\"></img></td></tr><br>");
    page.line("<tr><td><img src=\"../../PlayerCards/" + card + ".gif\" width = 200 height = 200></img></td>");
    page.line("<td><img src=\"../../BigLogos/" + abbr + ".gif\"></img></td></tr></table>");
    page.line(nameTable(player));
    std::visit([&page](const auto& line) { addStats(page, line); }, stats);
    return page.line("</table></center></body></html>").text();
}

} // namespace iceline
