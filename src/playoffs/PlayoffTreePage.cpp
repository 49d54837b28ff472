#include "playoffs/PlayoffTreePage.h"

#include "page/PageFrame.h"

namespace iceline {

namespace {

/// What stands ahead of the banner, by round; the first round has the seed there.
constexpr std::array<std::string_view, BracketRounds> AheadOfBanner{
    "",
    "<tr><td></td><td></td><td></td><td></td><td><td></td><td>",
    "<tr><td></td><td></td><td></td><td><td></td><td></td><td></td><td></td><td></td><td><td></td><td>",
    "<tr><td></td><td></td><td></td><td><td></td><td></td><td></td><td></td><td><td></td><td></td><td></td>"
    "<td></td><td></td><td><td></td><td>",
};

/// The line of the Campbell Conference whose wins stand without a blank before them once the play-offs are
/// on.
constexpr int LineWithoutBlank = 10;

std::string banner(TeamIndex team) {
    return "<img src=\"./BannerMinis/" + std::string(TeamAbbr[team]) + ".gif\"></img></td>";
}

std::string aheadOfBanner(const BracketSlot& slot) {
    if (slot.round > 0)
        return std::string(AheadOfBanner[slot.round]);
    return "<tr><td><b><font size=4>" + std::to_string(slot.place + 1) + "</font></b></td><td>";
}

void addConference(PageText& page, const Playoffs::Content& content, Conference conference) {
    const auto slots = bracketSlots(conference);
    for (int line = 0; line < BracketLines; ++line) {
        const BracketSlot& slot = slots[line];
        const bool withoutBlank =
            content.PlayoffMode && conference == Conference::Campbell && line == LineWithoutBlank;
        page.add(aheadOfBanner(slot)).add(banner(content.team(conference, slot)));
        page.add(withoutBlank ? "<td>" : "<td>&nbsp;").add(content.wins(slot)).line("</td></tr>");
    }
}

} // namespace

std::string playoffTreePage(const Playoffs::Content& content) {
    PageText page;
    page.add(
        PageFrame{.title = "Rinkstar - Playoff Tree", .opening = "<font face =arial size=2><center>"}.text());
    page.line("<br/>" + headerImage("Headers/", "PlayoffTree"));
    page.line("<table border = 1><tr><th colspan=20><center><b>Eastern Conference</b></center></th></tr>");
    addConference(page, content, Conference::Wales);
    page.line("</table><BR><BR>");
    page.line("<table border = 1 align =right><tr><th>Stanley Cup Champions</th></tr><tr><td>" +
              banner(content.StanleyCup) + "</tr></table>");
    page.line("<BR><BR><BR><BR><BR><table border =1><tr><th colspan=20><center><b>Western Conference</b>"
              "</center></th></tr>");
    addConference(page, content, Conference::Campbell);
    page.line("</table></font></center></body></html>");
    return page.text();
}

} // namespace iceline
