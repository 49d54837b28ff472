#include "teams/TeamStats.h"

#include "page/PageFrame.h"
#include "shell/Application.h"

namespace iceline {

namespace {

/// What sets the pages of the two parts of the year apart.
struct PageKind {
    const char* title;
    const char* header;
    const char* folder;
    CrowdColumns crowd;
};

constexpr PageKind SeasonPage{" Rinkstar - Team Stats", "TeamStats", "TStats", CrowdColumns::No};
constexpr PageKind PlayoffPage{" Rinkstar - Playoff Team Stats", "PlayoffTeamStats", "PlayoffTStats",
                               CrowdColumns::Yes};

constexpr const PageKind& pageKind(PartOfYear part) {
    return part == PartOfYear::Season ? SeasonPage : PlayoffPage;
}

/// A paragraph of small logos that lead to the pages of teams `first` to `last`.
std::string logoLine(TeamIndex first, TeamIndex last) {
    PageText line;
    for (TeamIndex team = first; team <= last; ++team)
        line.add(R"(<a href="./{0}.htm"><img src="../LogoMinis/{0}.gif"></img></a>)", TeamAbbr[team]);
    return markup("<p>{}</p>", line.text());
}

void writeTeamPage(Files& files, TeamIndex team, PartOfYear part) {
    const TeamView view = readTeamView(files, paths::teamFolder(team) + seasonFolder(part));
    writePage(files, paths::page(markup("{}/{}.htm", pageKind(part).folder, TeamAbbr[team])),
              teamPage(team, part, view));
}

} // namespace

std::string teamPage(TeamIndex team, PartOfYear part, const TeamView& view) {
    const PageKind& kind = pageKind(part);
    PageFrame frame{kind.title, "../"};
    frame.opening = "<font face = arial><center><font size=2>";
    PageText page;
    page.add(frame.text());
    page.line(headerImage("../Headers/", kind.header));
    page.line(logoLine(TeamIndex(0), TeamIndex(11)));
    page.line(logoLine(TeamIndex(12), TeamIndex(23)));
    page.line("<br/><br/>");
    page.line(R"(<table border = 5><tr><th><img src="../BigBanners/{0}.gif"></th></tr></table><BR>)"
              R"(<img src="../BigLogos/{0}.gif"></img><BR><BR>)",
              TeamAbbr[team]);
    page.add(teamTables(view, kind.crowd));
    return page.text();
}

void TeamStats::Form_Load() {
    if (!app_.state.ShowWindows)
        for (const TeamIndex team : AllLeagueTeams)
            writeTeamPage(app_.files(), team, part_);
}

void TeamStats::TeamSelect_Click() {
    if (TeamSelect < 0)
        return;
    readAgain();
    changed();
}

void TeamStats::readAgain() {
    if (TeamSelect >= 0)
        content_ = readTeamView(app_.files(), paths::teamFolder(TeamIndex(TeamSelect)) + seasonFolder(part_));
}

} // namespace iceline
