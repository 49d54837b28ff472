#include "standings/StandingsPages.h"

#include "league/Numbers.h"
#include "page/PageFrame.h"

namespace iceline {

namespace {

constexpr std::string_view NextCentredCell = "</center></td><td><center>";
constexpr std::string_view NextCell = "</td><td><center>";
constexpr std::string_view TableStart = "<table cellpadding = 2 border = 1>";

std::string headerImageBare(std::string_view name) {
    return "<img src=\"./Headers/" + std::string(name) + ".gif\"></img>";
}

std::string spanningCell(int columns, const std::string& title) {
    return "<th colspan = " + std::to_string(columns) + "><b>" + title + "</b></th>";
}

std::string spanningRow(int columns, const std::string& title) {
    return "<tr>" + spanningCell(columns, title) + "</tr>";
}

std::string headCells(int emptyCells, std::initializer_list<std::string_view> captions) {
    std::string cells;
    for (int i = 0; i < emptyCells; ++i)
        cells += "<th></th>";
    for (const std::string_view caption : captions)
        cells.append("<th><b>").append(caption).append("</b></th>");
    return cells;
}

std::string conferenceTitle(std::size_t conference) {
    return std::string(Conferences[conference].name) + " Conference";
}

std::string logoCell(TeamIndex team) {
    return "<td><center><img src=\"./LogoMinis/" + std::string(TeamAbbr[team]) +
           ".gif\"></img></center></td>";
}

std::string teamCell(TeamIndex team) {
    const std::string abbr(TeamAbbr[team]);
    return "<td><a href=\"./PStats/index.php?team=" + abbr + "\"><b>" + abbr + " </b></a></center></td>";
}

/// The figures in the order of the page's columns, in cells of which the first is open.
std::string figures(const StandingsRow& row, std::string_view separator) {
    std::string cells = std::to_string(row.wins);
    for (const int value : {row.losses, row.ties, row.points, row.GF, row.GA, row.GP})
        cells.append(separator).append(std::to_string(value));
    return cells;
}

std::string figures(const SplitRecord& record) {
    std::string cells;
    for (const int value : {record.wins, record.losses, record.ties})
        cells.append(std::to_string(value)).append(NextCell);
    return cells + itemText(record.winPercent / 1000.0);
}

std::string pointsHeadRow() {
    return "<tr>" + headCells(2, {"Team", "W", "L", "T", "Pts.", "GF", "GA", "GP"}) + "</tr>";
}

/// What differs from division to division on the page.
struct DivisionOnPage {
    std::string_view conferenceTitle; ///< over the first division of a conference
    std::string_view behindTeam;
    std::string_view tableEnd;
};

constexpr std::array<DivisionOnPage, 4> DivisionsOnPage{{
    {"Wales Conference", "", "</table><BR>"},
    {"", "", "</td></tr></table></tr></table><br/><br/><br/>"},
    {"Campbell Conference", "", "</table><br/>"},
    {"", "</td>", "</table><br/></br>"},
}};

void addDivision(PageText& page, std::size_t division, const DivisionRows& rows) {
    const auto& [conferenceTitle, behindTeam, tableEnd] = DivisionsOnPage[division];
    page.line(TableStart);
    if (!conferenceTitle.empty())
        page.line(spanningRow(10, std::string(conferenceTitle)));
    page.line(spanningRow(10, std::string(Divisions[division].name) + " Division"));
    page.line(pointsHeadRow());
    for (const StandingsRow& row : rows) {
        page.add("<tr><td><b>").add(row.mark).add("</b></td>").add(logoCell(row.team));
        page.add(teamCell(row.team)).add(behindTeam).add("<td><center>");
        page.add(figures(row, NextCentredCell)).line("</center></td></tr>");
    }
    page.line(tableEnd);
}

void addConference(PageText& page, std::size_t conference, const ConferenceRows& rows) {
    page.line(TableStart);
    page.line(spanningRow(10, conferenceTitle(conference)));
    page.line(pointsHeadRow());
    for (const StandingsRow& row : rows) {
        page.add("<tr><center><td><b>").add(row.mark).add("</b></td>").add(logoCell(row.team));
        page.add(teamCell(row.team)).add("<td><center>");
        page.add(figures(row, NextCell)).line("</td></center></tr>");
    }
    page.line("</table><br/></br>");
}

void addHomeOrAway(PageText& page, const std::string& title, const HomeAwayRows& rows) {
    page.line(TableStart);
    page.line(spanningRow(8, title));
    page.line("<tr>" + headCells(1, {"Team", "W", "L", "T", "Win%", "GP"}) + "</tr>");
    for (const HomeAwayRow& row : rows) {
        page.add("<tr>").add(logoCell(row.team)).add(teamCell(row.team)).add("<td><center>");
        page.add(figures(row.record)).add(NextCell).add(std::to_string(row.GP)).line("</center></td></tr>");
    }
    page.line("</table><br/></br>");
}

std::string halfRow(const VersusRow& row, std::size_t opponents) {
    return logoCell(row.team) + teamCell(row.team) + "<td><center>" + figures(row.against[opponents]) +
           "</center></td>";
}

void addVersus(PageText& page, std::size_t conference, const VersusRankings& rankings) {
    const std::size_t other = 1 - conference;
    const std::string heads = headCells(1, {"Team", "W", "L", "T", "Win%"});
    page.line(TableStart);
    page.line(spanningRow(17, conferenceTitle(conference)));
    page.line("<tr>" + spanningCell(6, "vs. " + conferenceTitle(conference)) +
              spanningCell(6, "vs. " + conferenceTitle(other)) + "</tr>");
    page.line("<tr>" + heads + heads + "</tr>");
    for (std::size_t place = 0; place < ConferenceTeams; ++place)
        page.line("<tr>" + halfRow(rankings.againstOwn[place], conference) +
                  halfRow(rankings.againstOther[place], other) + "</tr>");
}

} // namespace

std::string divisionStandingsPage(const std::array<DivisionRows, 4>& divisions) {
    PageText page;
    page.add(
        PageFrame{.title = "Rinkstar - Division Standings", .opening = "<font face =arial size=2><center>"}
            .text());
    page.line(headerImageBare("DivisionStandings") + "<br/><br/>");
    for (std::size_t division = 0; division < divisions.size(); ++division)
        addDivision(page, division, divisions[division]);
    return page.text();
}

std::string conferenceStandingsPage(const std::array<ConferenceRows, 2>& conferences) {
    PageText page;
    page.add(PageFrame{.title = "Rinkstar - Conference Standings",
                       .styleSheet = "styles.css",
                       .opening = "<font face = arial><center><font size=2>"}
                 .text());
    page.line(headerImageBare("ConferenceStandings") + "<br/><br/>");
    for (std::size_t conference = 0; conference < conferences.size(); ++conference)
        addConference(page, conference, conferences[conference]);
    return page.text();
}

std::string homeAwayStandingsPage(const HomeAwayStandings& standings) {
    PageText page;
    page.add(PageFrame{.title = "Iceline - Home / Away Standings",
                       .opening = "<font face = arial><center><font size=2>"}
                 .text());
    page.line("<br/>" + headerImageBare("HomeAwayStandings") + "<br/>");
    addHomeOrAway(page, "Home Records", standings.home);
    addHomeOrAway(page, "Away Records", standings.away);
    return page.text();
}

std::string versusStandingsPage(const std::array<VersusRankings, 2>& conferences) {
    PageText page;
    page.add(PageFrame{.title = "Rinkstar - vs. Conf Standings"}.text());
    page.line("<br/>" + headerImageBare("vsConfStandings") + "<br/>");
    addVersus(page, 0, conferences[0]);
    page.line("</table><br/></br><br/>");
    addVersus(page, 1, conferences[1]);
    page.line("</table></body></html>");
    return page.text();
}

} // namespace iceline
