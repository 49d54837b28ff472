#include "page/PageFrame.h"
#include "teams/TeamFigures.h"

#include <vector>

namespace iceline {

namespace {

/// A table of one row, without its end. `title` is the row above the heads.
void addTable(PageText& page, const TeamView& view, TeamColumns columns, std::string_view title = "") {
    page.add("<table border = 1>{}<tr>", title);
    for (const TeamColumn& column : columns)
        page.add("<th><b>{}</b></th>", column.head);
    page.line("</tr>");
    std::string_view separator = "<tr><td><center>";
    for (const TeamColumn& column : columns) {
        page.add(separator).add(column.text(view));
        separator = "</center></td><td><center>";
    }
    page.line("</center></td></tr>");
}

std::vector<TeamColumn> recordColumns(CrowdColumns crowd) {
    using namespace teamfigures;
    std::vector<TeamColumn> columns(Record.begin(), Record.end());
    columns.insert(columns.begin() + 1, Points);
    columns.insert(columns.end(), {PageStreak, LastTenGames});
    if (crowd == CrowdColumns::Yes)
        columns.insert(columns.end(), Crowd.begin(), Crowd.end());
    return columns;
}

} // namespace

std::string teamTables(const TeamView& view, CrowdColumns crowd) {
    using namespace teamfigures;
    PageText page;
    addTable(page, view, recordColumns(crowd));
    page.line("</table>");
    addTable(page, view, Overtime, "<tr><th colspan = 3>Overtime Stats</th></tr>");
    page.line("</table>");
    addTable(page, view, Home, "<tr><th colspan = 9>Home Stats</th></tr>");
    page.line("</table>");
    addTable(page, view, Away, "<tr><th colspan = 9>Away Stats</th></tr>");
    page.line("</table><BR><BR>");
    addTable(page, view, Totals, "<tr><th colspan = 21>Season Totals</th></tr>");
    page.line("</table>");
    addTable(page, view, FurtherTotals);
    page.line("</table><BR>");
    addTable(page, view, Averages, "<tr><th colspan = 21>Season Averages</th></tr>");
    page.line("</table>");
    addTable(page, view, FurtherAverages);
    page.line("</table><BR><BR></font></center></body></html>");
    return page.text();
}

} // namespace iceline
