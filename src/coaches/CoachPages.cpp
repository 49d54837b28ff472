#include "coaches/CoachPages.h"

#include "page/PageFrame.h"

#include <array>

namespace iceline {

namespace {

constexpr std::array Heads{"Coach",  "GP",  "W",   "L",   "T",   "Win%", "P Rank", "H Rank",
                           "A Rank", "GPG", "GAG", "PP%", "PK%", "SPG",  "SAPG"};

/// Columns of the leader table in the order of the page, behind wins, losses and ties.
constexpr std::array FigureOrder{2, 9, 10, 11, 3, 4, 5, 6, 7, 8};

std::string tableRow(const CoachRow& row) {
    const std::string& name = row.line.name;
    const std::string separator = "</center></td><td><center>";
    std::string text = "<tr><td><a href=\"./CStats/" + name + ".htm\" ><b>" + name +
                       "</b></a></td><td><center>" + std::to_string(row.record.GP);
    for (const int figure : {row.record.Wins, row.record.Losses, row.record.Ties})
        text += separator + std::to_string(figure);
    for (const int column : FigureOrder)
        text += separator + row.line.figures[column];
    return text + "</center></td>";
}

} // namespace

std::string coachingStatsPage(const std::vector<CoachRow>& rows) {
    PageFrame frame{"Rinkstar - Coaching Stats"};
    frame.styleSheet = "styles.css";
    frame.opening = "<center><font face = arial size = 2>";
    PageText page;
    page.add(frame.text());
    page.line("<img src='Headers/CoachingStats.gif'></img>");
    page.add("<table border = 1><tr>");
    for (const char* head : Heads)
        page.add("<th><b>" + std::string(head) + "</b></th>");
    page.line("</tr>");
    for (const CoachRow& row : rows)
        page.line(tableRow(row));
    page.line("</tr></table></font></center></body></html>");
    return page.text();
}

std::string coachPage(const std::string& coach, const TeamView& view) {
    PageFrame frame{" Rinkstar - Coaching Stats", "../"};
    frame.opening = "<font size =2>";
    PageText page;
    page.add(frame.text());
    page.line(headerImage("../Headers/", "CoachingStats"));
    page.line("<table border = 1><tr><th><font size = 7>" + coach + "</font></th></tr></table><BR>");
    page.add(teamTables(view, CrowdColumns::No));
    return page.text();
}

} // namespace iceline
