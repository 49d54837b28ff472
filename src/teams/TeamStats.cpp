#include "teams/TeamStats.h"

#include "page/PageFrame.h"
#include "shell/Application.h"

namespace iceline {

namespace {

/// What sets the pages of the two parts of the year apart.
struct PageKind {
    std::string title;
    std::string header;
    std::string folder;
    CrowdColumns crowd;
};

const PageKind& pageKind(PartOfYear part) {
    static const PageKind season{" Rinkstar - Team Stats", "TeamStats", "TStats/", CrowdColumns::No};
    static const PageKind playoffs{" Rinkstar - Playoff Team Stats", "PlayoffTeamStats", "PlayoffTStats/",
                                   CrowdColumns::Yes};
    return part == PartOfYear::Season ? season : playoffs;
}

/// A paragraph of small logos that lead to the pages of teams `first` to `last`.
std::string logoLine(TeamIndex first, TeamIndex last) {
    std::string line = "<p>";
    for (TeamIndex team = first; team <= last; ++team) {
        const std::string abbr(TeamAbbr[team]);
        line += "<a href=\"./" + abbr + ".htm\"><img src=\"../LogoMinis/" + abbr + ".gif\"></img></a>";
    }
    return line + "</p>";
}

} // namespace

std::string teamPage(TeamIndex team, PartOfYear part, const TeamView& view) {
    const PageKind& kind = pageKind(part);
    const std::string abbr(TeamAbbr[team]);
    PageFrame frame{kind.title, "../"};
    frame.opening = "<font face = arial><center><font size=2>";
    PageText page;
    page.add(frame.text());
    page.line(headerImage("../Headers/", kind.header));
    page.line(logoLine(TeamIndex(0), TeamIndex(11)));
    page.line(logoLine(TeamIndex(12), TeamIndex(23)));
    page.line("<br/><br/>");
    page.line("<table border = 5><tr><th><img src=\"../BigBanners/" + abbr +
              ".gif\"></th></tr></table><BR><img src=\"../BigLogos/" + abbr + ".gif\"></img><BR><BR>");
    page.add(teamTables(view, kind.crowd));
    return page.text();
}

void TeamStats::Form_Load() {
    if (app_.state.ShowWindows)
        return;
    for (TeamSelect = 0; TeamSelect < LeagueTeams; ++TeamSelect)
        TeamSelect_Click();
    TeamSelect = LeagueTeams - 1;
}

void TeamStats::TeamSelect_Click() {
    if (TeamSelect < 0)
        return;
    const TeamIndex team(TeamSelect);
    content_ = readTeamView(app_.files(), paths::teamFolder(team) + seasonFolder(part_));
    if (!app_.state.ShowWindows) {
        const std::string path = paths::page(pageKind(part_).folder + std::string(TeamAbbr[team]) + ".htm");
        writePage(app_.files(), path, teamPage(team, part_, *content_));
    }
    changed();
}

} // namespace iceline
