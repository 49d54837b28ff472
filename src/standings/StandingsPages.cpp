#include "standings/StandingsPages.h"

#include "page/PageFrame.h"
#include "standings/StandingsColumns.h"
#include "store/LeaguePaths.h"

namespace iceline {

namespace {

constexpr std::string_view TableStart = "<table cellpadding = 2 border = 1>";

std::string headerImageBare(std::string_view name) {
    return markup(R"(<img src="./Headers/{}.gif"></img>)", name);
}

std::string conferenceTitle(std::size_t conference) {
    return markup("{} Conference", Conferences[conference].name);
}

template <class Columns>
std::string headCells(const Columns& columns) {
    std::string cells = "<th></th><th><b>Team</b></th>";
    for (const auto& column : columns)
        cells += markup("<th><b>{}</b></th>", column.caption);
    return cells;
}

/// The figures of a record's columns with a separator between them.
template <class Columns, class Record>
std::string figures(const Columns& columns, const Record& record, std::string_view separator) {
    std::string cells;
    for (const auto& column : columns)
        cells.append(cells.empty() ? "" : separator).append(column.item(record));
    return cells;
}

/// The cells of a team's logo and of its link.
std::string teamCells(TeamIndex team) {
    const std::string_view abbr = TeamAbbr[team];
    return markup(R"(<td><center><img src="./LogoMinis/{}.gif"></img></center></td>)"
                  R"(<td><a href="./PStats/index.php?team={}"><b>{} </b></a></center></td>)",
                  abbr, abbr, abbr);
}

std::string splitCells(const auto& columns, TeamIndex team, const SplitRecord& record) {
    return markup("{}<td><center>{}</center></td>", teamCells(team),
                  figures(columns, record, "</td><td><center>"));
}

void addPointsHeads(PageText& page, std::string_view title) {
    page.line("<tr><th colspan = 10><b>{}</b></th></tr>", title);
    page.line("<tr><th></th>{}</tr>", headCells(PointsColumns));
}

/// What differs from division to division on the page.
struct DivisionOnPage {
    std::string_view conferenceTitle; ///< over the first division of a conference
    std::string_view afterTeam;
    std::string_view tableEnd;
};

constexpr std::array<DivisionOnPage, Divisions.size()> DivisionsOnPage{{
    {"Wales Conference", "", "</table><BR>"},
    {"", "", "</td></tr></table></tr></table><br/><br/><br/>"},
    {"Campbell Conference", "", "</table><br/>"},
    {"", "</td>", "</table><br/></br>"},
}};

void addDivision(PageText& page, std::size_t division, const DivisionRows& rows) {
    const auto& [conferenceTitle, afterTeam, tableEnd] = DivisionsOnPage[division];
    page.line(TableStart);
    if (!conferenceTitle.empty())
        page.line("<tr><th colspan = 10><b>{}</b></th></tr>", conferenceTitle);
    addPointsHeads(page, markup("{} Division", Divisions[division].name));
    for (const PointsRow& row : rows)
        page.line("<tr><td><b>{}</b></td>{}{}<td><center>{}</center></td></tr>", row.mark,
                  teamCells(row.team), afterTeam,
                  figures(PointsColumns, row.figures, "</center></td><td><center>"));
    page.line(tableEnd);
}

void addConference(PageText& page, std::size_t conference, const ConferenceRows& rows) {
    page.line(TableStart);
    addPointsHeads(page, conferenceTitle(conference));
    for (const PointsRow& row : rows)
        page.line("<tr><center><td><b>{}</b></td>{}<td><center>{}</td></center></tr>", row.mark,
                  teamCells(row.team), figures(PointsColumns, row.figures, "</td><td><center>"));
    page.line("</table><br/></br>");
}

void addHomeOrAway(PageText& page, std::string_view title, const HomeAwayRows& rows) {
    page.line(TableStart);
    page.line("<tr><th colspan = 8><b>{}</b></th></tr>", title);
    page.line("<tr>{}</tr>", headCells(HomeAwayColumns));
    for (const HomeAwayRow& row : rows)
        page.line("<tr>{}</tr>", splitCells(HomeAwayColumns, row.team, row.record));
    page.line("</table><br/></br>");
}

std::string versusCells(const VersusRow& row, Conference opponents) {
    return splitCells(VersusColumns, row.team, row.recordAgainst(opponents));
}

void addVersus(PageText& page, std::size_t index, const VersusRows& rows) {
    const auto own = static_cast<Conference>(index);
    const Conference other = otherConference(own);
    const VersusRows left = ranked(rows, own);
    const VersusRows right = ranked(rows, other);
    const std::string heads = headCells(VersusColumns);
    page.line(TableStart);
    page.line("<tr><th colspan = 17><b>{} Conference</b></th></tr>", info(own).name);
    page.line(
        "<tr><th colspan = 6><b>vs. {} Conference</b></th><th colspan = 6><b>vs. {} Conference</b></th></tr>",
        info(own).name, info(other).name);
    page.line("<tr>{}{}</tr>", heads, heads);
    for (std::size_t place = 0; place < rows.size(); ++place)
        page.line("<tr>{}{}</tr>", versusCells(left[place], own), versusCells(right[place], other));
}

} // namespace

void writeDivisionStandings(Files& files, const std::array<DivisionRows, Divisions.size()>& divisions) {
    PageText page;
    page.add(
        PageFrame{.title = "Rinkstar - Division Standings", .opening = "<font face =arial size=2><center>"}
            .text());
    page.line("{}<br/><br/>", headerImageBare("DivisionStandings"));
    for (std::size_t division = 0; division < divisions.size(); ++division)
        addDivision(page, division, divisions[division]);
    writePage(files, paths::page("DivisionStandings.htm"), page.text());
}

void writeConferenceStandings(Files& files,
                              const std::array<ConferenceRows, Conferences.size()>& conferences) {
    PageText page;
    page.add(PageFrame{.title = "Rinkstar - Conference Standings",
                       .styleSheet = "styles.css",
                       .opening = "<font face = arial><center><font size=2>"}
                 .text());
    page.line("{}<br/><br/>", headerImageBare("ConferenceStandings"));
    for (std::size_t conference = 0; conference < conferences.size(); ++conference)
        addConference(page, conference, conferences[conference]);
    writePage(files, paths::page("ConferenceStandings.htm"), page.text());
}

void writeHomeAwayStandings(Files& files, const HomeAwayStandings& standings) {
    PageText page;
    page.add(PageFrame{.title = "Iceline - Home / Away Standings",
                       .opening = "<font face = arial><center><font size=2>"}
                 .text());
    page.line("<br/>{}<br/>", headerImageBare("HomeAwayStandings"));
    addHomeOrAway(page, "Home Records", standings.home);
    addHomeOrAway(page, "Away Records", standings.away);
    writePage(files, paths::page("HomeAwayStandings.htm"), page.text());
}

void writeVersusStandings(Files& files, const std::array<VersusRows, Conferences.size()>& conferences) {
    PageText page;
    page.add(PageFrame{.title = "Rinkstar - vs. Conf Standings"}.text());
    page.line("<br/>{}<br/>", headerImageBare("vsConfStandings"));
    addVersus(page, 0, conferences[0]);
    page.line("</table><br/></br><br/>");
    addVersus(page, 1, conferences[1]);
    page.line("</table></body></html>");
    writePage(files, paths::page("vsConfStandings.htm"), page.text());
}

} // namespace iceline
