#include "leaders/HomePages.h"

#include "leaders/LeaderLists.h"
#include "page/PageFrame.h"
#include "page/PageNames.h"
#include "players/PlayerCards.h"

namespace iceline {

namespace {

constexpr int Places = 5; ///< rows of a block

std::string ownCard(std::string_view card) {
    return markup(R"(<tr><td colspan = 4><img src="./PlayerCards/{}.gif"></img></td>)", linked(card));
}

std::string defaultCard(std::string_view card) {
    return markup(R"(<tr><td colspan = 4><center><img src="./PlayerCards/{}.gif"></img></center></td></tr>)",
                  card);
}

std::string skaterPicture(Files& files, Platform& platform, const LeaderLine& leader) {
    if (!hasPlayerCard(files, leader.name))
        return defaultCard(defaultSkaterCard(platform));
    return markup(R"(<tr><td colspan = 4><center><img src="./PlayerCards/{}.gif"></center></td></tr>)",
                  linked(leader.name));
}

std::string goaliePicture(Files& files, Platform&, const LeaderLine& leader) {
    return hasPlayerCard(files, leader.name) ? ownCard(leader.name) : defaultCard(DefaultGoalieCard);
}

/// Of a goalie as of a skater: the three-star table does not tell them apart.
std::string starPicture(Files& files, Platform& platform, const LeaderLine& leader) {
    return hasPlayerCard(files, leader.name) ? ownCard(leader.name)
                                             : defaultCard(defaultSkaterCard(platform));
}

std::string teamPicture(Files&, Platform&, const LeaderLine& leader) {
    return markup(R"(<tr><td colspan = 4><center><img src="./BannerMinis/{}.gif"></center></td></tr>)",
                  TeamAbbr[leader.team]);
}

std::string playerRow(const LeaderLine& line, std::string_view figure) {
    return markup(
        R"(<tr><td><center><b>{}</b></center></td><td><center><img src="./LogoMinis/{}.gif"></center></td>)"
        R"(<td>{}</td><td><center>{}</td></tr>)",
        line.number, TeamAbbr[line.team], shown(line.name), figure);
}

std::string teamRow(const LeaderLine& line, std::string_view figure) {
    return markup(
        R"(<tr><td><center><b>{}</b></center></td><td><center><img src="./LogoMinis/{}.gif"></center></td>)"
        R"(<td><center>{}</td></tr>)",
        line.number, TeamAbbr[line.team], figure);
}

/// A leader table on a home page.
struct Leaders {
    LeaderList (*first)(const ApplicationState& state, LeaderSort sort);
    std::string (*picture)(Files& files, Platform& platform, const LeaderLine& leader);
    std::string (*row)(const LeaderLine& line, std::string_view figure);
};

constexpr Leaders Players{
    [](const ApplicationState& state, LeaderSort sort) { return playerLeaders(state, sort, Places); },
    skaterPicture, playerRow};
constexpr Leaders Goalies{
    [](const ApplicationState& state, LeaderSort sort) { return goalieLeaders(state, sort, Places); },
    goaliePicture, playerRow};
constexpr Leaders Teams{
    [](const ApplicationState& state, LeaderSort sort) { return teamLeaders(state, sort, Places); },
    teamPicture, teamRow};
constexpr Leaders Stars{
    [](const ApplicationState& state, LeaderSort sort) { return starLeaders(state, sort, Places); },
    starPicture, playerRow};

/// The leaders in one figure.
struct Block {
    std::string_view head;
    std::size_t column;
    bool ascending = false;
    std::string_view width = ""; ///< after the column span of the head
};

/// Five blocks side by side.
struct Group {
    std::string_view head;
    Leaders leaders;
    std::array<Block, 5> blocks;
};

constexpr std::array<Group, 3> Groups{{
    {"Player League Leaders",
     Players,
     {{{"Points", columnOf(PlayerLeaderColumns, "Pts.")},
       {"Goals", columnOf(PlayerLeaderColumns, "G")},
       {"Assists", columnOf(PlayerLeaderColumns, "A")},
       {"Shots on Goal", columnOf(PlayerLeaderColumns, "SOG")},
       {"Penalty Minutes", columnOf(PlayerLeaderColumns, "PIM")}}}},
    {"Goalie League Leaders",
     Goalies,
     {{{"Goals Against Average", columnOf(GoalieLeaderColumns, "GAA"), true},
       {"Wins", columnOf(GoalieLeaderColumns, "W")},
       {"Save Percentage", columnOf(GoalieLeaderColumns, "Save%")},
       {"Shutouts", columnOf(GoalieLeaderColumns, "SHO")},
       {"Goals Allowed", columnOf(GoalieLeaderColumns, "GA")}}}},
    {"Team Leaders",
     Teams,
     {{{"Power Ranking", columnOf(TeamLeaderColumns, "P Rank"), false, " width = 100%"},
       {"Points", columnOf(TeamLeaderColumns, "Pts.")},
       {"Win Percentage", columnOf(TeamLeaderColumns, "Win %")},
       {"Goals Per Game", columnOf(TeamLeaderColumns, "GPG")},
       {"SOG Per Game", columnOf(TeamLeaderColumns, "SPG")}}}},
}};

struct PlayoffLink {
    std::string_view caption;
    std::string_view file;
};

constexpr std::array<PlayoffLink, 5> PlayoffLinks{{
    {"Playoff Tree", "PlayoffTree.htm"},
    {"Playoff Player Stats", "PlayoffPlayerStats.htm"},
    {"Playoff Team Stats", "PlayoffTeamStats.htm"},
    {"Playoff League Leaders", "PlayoffLeagueLeaders.htm"},
    {"Playoff All-Time Records", "PlayoffAllTimeRecords.htm"},
}};

void addLastGames(PageText& page, const std::vector<RecentGame>& games) {
    page.line("<table border = 1><tr><th colspan = 6>Last 10 Game Results</th></tr>");
    for (const RecentGame& game : games)
        page.line(R"(<tr><td><img src="./LogoMinis/{}.gif"></img></td><td><b>{}</b></td><td> vs. </td>)"
                  R"(<td><img src="./LogoMinis/{}.gif"></img></td><td><b>{}</b></td>)"
                  R"(<td><a href="./BoxScores/{}"><b> BOX </b></a></td></tr>)",
                  TeamAbbr[game.Away], game.AwayGoals, TeamAbbr[game.Home], game.HomeGoals,
                  linked(game.Page));
    if (games.empty())
        page.line("<tr><td colspan=6>No Games</td></tr>");
    page.line("</table></td></tr></table><br/><br/>");
}

void addLeagueOpening(PageText& page, const std::vector<RecentGame>& lastGames) {
    page.add(PageFrame{.title = "Rinkstar - League Home Page"}.text());
    page.line(R"(<br/><br/><table><tr><td><img src="./Headers/Iceline-Logo.gif"></img></p></td><td>)");
    addLastGames(page, lastGames);
}

void addPlayoffOpening(PageText& page) {
    page.add(PageFrame{.title = "Rinkstar - Playoffs", .start = ""}.text());
    page.line("<br/>{}", headerImage("Headers/", "Playoffs"));
    for (const PlayoffLink& link : PlayoffLinks)
        page.line(R"(<p><a href="./{}"><b>{}</b></a></p>)", link.file, link.caption);
    page.line("<br/><br/>");
}

class HomePage {
public:
    HomePage(Files& files, Platform& platform, const ApplicationState& state)
        : files_(files), platform_(platform), state_(state) {}

    std::string text(PartOfYear part) {
        if (part == PartOfYear::Season)
            addLeagueOpening(page_, readRecentGames(files_));
        else
            addPlayoffOpening(page_);
        page_.line("<table border = 1><tr><th colspan = 4>Three Star Points Leaders</th></tr>");
        addLeaders(Stars, 0, false);
        for (const Group& group : Groups)
            addGroup(group);
        page_.line("</table></td></tr></font></center>");
        page_.line("</table></body></html>");
        return page_.text();
    }

private:
    void addGroup(const Group& group) {
        page_.line(
            "</table></td></tr></table><table border=1><tr><th colspan = 10>{}</th></tr><tr></font></center>",
            group.head);
        for (const Block& block : group.blocks) {
            if (&block != &group.blocks.front())
                page_.line("</table></td><td></td></font></center>");
            page_.line("<td><table border = 1><tr><th colspan = 4{}>{}</th></tr>", block.width, block.head);
            addLeaders(group.leaders, block.column, block.ascending);
        }
    }

    void addLeaders(const Leaders& leaders, std::size_t column, bool ascending) {
        const LeaderList list = leaders.first(state_, {static_cast<int>(column), ascending});
        if (list.startsWithFirstTurn)
            page_.line(leaders.picture(files_, platform_, list.lines.front()));
        for (const LeaderLine& line : list.lines)
            page_.line(leaders.row(line, line.figures[column]));
    }

    Files& files_;
    Platform& platform_;
    const ApplicationState& state_;
    PageText page_;
};

} // namespace

void writeHomePage(Files& files, Platform& platform, const ApplicationState& state, PartOfYear part) {
    writePageWithCards(files, paths::page(part == PartOfYear::Season ? "index.htm" : "Playoffs.htm"),
                       HomePage(files, platform, state).text(part));
}

} // namespace iceline
