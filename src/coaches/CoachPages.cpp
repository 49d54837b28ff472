#include "coaches/CoachPages.h"

#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "page/PageParts.h"

#include <array>
#include <variant>

namespace iceline {

namespace {

/// A column of the table of all coaches: its head, and the counter of the record or column of the leader
/// table that it shows.
struct CoachColumn {
    std::string_view head;
    std::variant<int TeamRecord::*, std::size_t> figure;
};

consteval CoachColumn leaders(std::string_view caption) {
    return {caption, columnOf(TeamLeaderColumns, caption)};
}

constexpr std::array Columns{
    CoachColumn{"GP", &TeamRecord::GP},
    CoachColumn{"W", &TeamRecord::Wins},
    CoachColumn{"L", &TeamRecord::Losses},
    CoachColumn{"T", &TeamRecord::Ties},
    CoachColumn{"Win%", columnOf(TeamLeaderColumns, "Win %")},
    leaders("P Rank"),
    leaders("H Rank"),
    leaders("A Rank"),
    leaders("GPG"),
    leaders("GAG"),
    leaders("PP%"),
    leaders("PK%"),
    leaders("SPG"),
    leaders("SAPG"),
};

std::string figureCells(const LeaderLine& coach, const TeamRecord& record) {
    return centredCells(Columns, [&](const CoachColumn& column) {
        if (const auto* counter = std::get_if<int TeamRecord::*>(&column.figure))
            return std::to_string(record.**counter);
        return coach.figures[std::get<std::size_t>(column.figure)];
    });
}

} // namespace

void writeCoachingStatsPage(Files& files, const LeaderList& coaches) {
    PageFrame frame{"Rinkstar - Coaching Stats"};
    frame.styleSheet = "styles.css";
    frame.opening = "<center><font face = arial size = 2>";
    PageText page;
    page.add(frame.text());
    page.line("<img src='Headers/CoachingStats.gif'></img>");
    page.add("<table border = 1><tr><th><b>Coach</b></th>");
    for (const CoachColumn& column : Columns)
        page.add("<th><b>{}</b></th>", column.head);
    page.line("</tr>");
    for (const LeaderLine& coach : coaches.lines)
        page.line(R"(<tr><td><a href="./CStats/{}.htm" ><b>{}</b></a></td><td><center>{}</center></td>)",
                  linked(coach.name), shown(coach.name),
                  figureCells(coach, readTeamRecord(files, paths::coachFolder(coach.name))));
    page.line("</tr></table></font></center></body></html>");
    writePage(files, paths::page("CoachingStats.htm"), page.text());
}

void writeCoachPage(Files& files, const std::string& coach, const TeamView& view) {
    PageFrame frame{" Rinkstar - Coaching Stats", "../"};
    frame.opening = "<font size =2>";
    PageText page;
    page.add(frame.text());
    page.line(headerImage("../Headers/", "CoachingStats"));
    page.line("<table border = 1><tr><th><font size = 7>{}</font></th></tr></table><BR>", shown(coach));
    page.add(teamTables(view, CrowdColumns::No));
    writePage(files, paths::page("CStats/" + coach + ".htm"), page.text());
}

} // namespace iceline
