#include "players/RosterPages.h"

#include "page/PageFrame.h"
#include "page/PageNames.h"

#include <algorithm>

namespace iceline {

namespace {

std::string playerRow(const RosterRow& player) {
    return "<td>" + player.Position + "</td><td>" + std::to_string(player.Number) + "</td><td><a href=\"./" +
           playerFileName(player.Name) + ".htm\">" + player.Name + "</a></td><td>" +
           std::to_string(player.Rating) + "</td></tr>";
}

} // namespace

std::span<const RosterRow> listedPlayers(const Roster& roster) {
    const auto end =
        std::ranges::find_if(roster, [](const RosterRow& row) { return row.isEmpty() || row.Name.empty(); });
    return {roster.begin(), end};
}

std::string rosterPage(TeamIndex team, const Roster& roster) {
    const std::string abbr(TeamAbbr[team]);
    PageText page;
    page.add(
        PageFrame{.title = "Iceline - " + std::string(TeamName[team]) + " Team Roster", .prefix = "../../"}
            .text());
    page.line("<br/><br/><img src=\"../../Headers/TeamRoster.gif\"></img></p><table border = 5><tr><td>"
              "<img src=\"../../BigBanners/" +
              abbr + ".gif\"></img></td></tr></table><br><table><tr><td><img src=\"../../BigLogos/" + abbr +
              ".gif\"></img></td></tr></table>");
    page.line("<br/><br/><table border = 1><tr><th>Pos.</th><th>#</th><th>Player</th>"
              "<th>Overall Rating</th></tr>");
    for (const RosterRow& player : listedPlayers(roster))
        page.line(playerRow(player));
    return page.line("</table></center></body></html>").text();
}

} // namespace iceline
