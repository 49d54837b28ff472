#include "playoffs/PlayoffTreePage.h"

#include "page/PageFrame.h"

namespace iceline {

namespace {

/// What a row of the rounds after the first has before its banner.
constexpr std::array<std::string_view, BracketRounds - 1> EmptyCells{
    "<tr><td></td><td></td><td></td><td></td><td><td></td><td>",
    "<tr><td></td><td></td><td></td><td><td></td><td></td><td></td><td></td><td></td><td><td></td><td>",
    "<tr><td></td><td></td><td></td><td><td></td><td></td><td></td><td></td><td><td></td><td></td><td></td>"
    "<td></td><td></td><td><td></td><td>",
};

/// The line of the Campbell Conference, from 0, whose wins have no blank before them once the play-offs are
/// on.
constexpr std::size_t LineWithoutBlank = 10;

std::string beforeBanner(const BracketSlot& slot) {
    return slot.round == 0 ? markup("<tr><td><b><font size=4>{}</font></b></td><td>", slot.seed)
                           : std::string(EmptyCells[static_cast<std::size_t>(slot.round - 1)]);
}

std::string banner(TeamIndex team) {
    return markup(R"(<img src="./BannerMinis/{}.gif"></img></td>)", TeamAbbr[team]);
}

void addConference(PageText& page, const Playoffs::Content& content, Conference conference) {
    const auto slots = bracketSlots(conference);
    for (std::size_t line = 0; line < slots.size(); ++line) {
        const BracketSlot& slot = slots[line];
        const bool withoutBlank =
            content.PlayoffMode && conference == Conference::Campbell && line == LineWithoutBlank;
        page.line("{}{}<td>{}{}</td></tr>", beforeBanner(slot), banner(content.team(slot.place)),
                  withoutBlank ? "" : "&nbsp;", content.wins(slot.place));
    }
}

} // namespace

void writePlayoffTree(Files& files, const Playoffs::Content& content) {
    PageText page;
    page.add(
        PageFrame{.title = "Rinkstar - Playoff Tree", .opening = "<font face =arial size=2><center>"}.text());
    page.line("<br/>{}", headerImage("Headers/", "PlayoffTree"));
    page.line("<table border = 1><tr><th colspan=20><center><b>Eastern Conference</b></center></th></tr>");
    addConference(page, content, Conference::Wales);
    page.line("</table><BR><BR>");
    page.line("<table border = 1 align =right><tr><th>Stanley Cup Champions</th></tr><tr><td>{}</tr></table>",
              banner(content.champion()));
    page.line("<BR><BR><BR><BR><BR><table border =1><tr><th colspan=20><center><b>Western Conference</b>"
              "</center></th></tr>");
    addConference(page, content, Conference::Campbell);
    page.line("</table></font></center></body></html>");
    writePage(files, paths::page("PlayoffTree.htm"), page.text());
}

} // namespace iceline
