#include "leaders/Rankings.h"

#include "leaders/HomePages.h"
#include "leaders/LeaderTables.h"
#include "league/Selection.h"
#include "shell/Application.h"

#include <algorithm>

namespace iceline {

namespace {

constexpr int PlacesInWindow = 20;
constexpr int PlacesOnHomePage = 5;

/// The window shows names in capitals; letters beyond ASCII stay as they are.
std::string inCapitals(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return text;
}

} // namespace

Rankings& Rankings::in(Application& app, PartOfYear part) {
    const bool season = part == PartOfYear::Season;
    return static_cast<Rankings&>(app.windows().use(season ? WindowId::Rankings : WindowId::PlayoffRankings));
}

void Rankings::Form_Load() {
    const BusyPointer busy(app_.platform());
    content_.title = part_ == PartOfYear::Season ? "Rankings" : "Playoff Rankings";
    tmLeadersLoad();
    lgLeadersLoadG();
    lgLeadersLoadN();
    StarLoad();
    if (app_.state.ShowWindows) {
        show();
        return;
    }
    writePlayerFragments();
    writeTeamFragments();
    writeStarFragments();
    writeHomePage();
}

void Rankings::show() {
    TeamSortColumn = 1;
    GoalieSortColumn = 6;
    PlayerSortColumn = 2;
    tmLeadersUpdate();
    lgLeadersUpdateG();
    lgLeadersUpdateN();
    StarUpdate();
}

void Rankings::tmLeadersLoad() {
    app_.state.TeamLeaderTable = readTeamLeaders(app_.files(), part_);
}

void Rankings::lgLeadersLoadN() {
    app_.state.PlayerLeaderTable = readPlayerLeaders(app_.files(), part_);
    PlayerCount = static_cast<int>(app_.state.PlayerLeaderTable.size());
}

void Rankings::lgLeadersLoadG() {
    app_.state.GoalieLeaderTable = readGoalieLeaders(app_.files(), part_);
    GoalieCount = static_cast<int>(app_.state.GoalieLeaderTable.size());
}

void Rankings::StarLoad() {
    app_.state.StarLeaderTable = readStarLeaders(app_.files(), part_);
    StarCount = static_cast<int>(app_.state.StarLeaderTable.size());
}

void Rankings::tmLeadersUpdate() {
    const LeaderSort sort{TeamSortColumn, TeamSortAscending};
    put(TeamRowForm, content_.teams, teamLeaders(app_.state, sort, places(LeagueTeams, LeagueTeams)), sort);
}

void Rankings::lgLeadersUpdateN() {
    const LeaderSort sort{PlayerSortColumn, PlayerSortAscending};
    const int rows = places(PlacesInWindow, PlayerCount);
    put(PlayerRowForm, content_.players, playerLeaders(app_.state, PlayerCount, sort, rows), sort);
}

void Rankings::lgLeadersUpdateG() {
    const LeaderSort sort{GoalieSortColumn, GoalieSortAscending};
    const int rows = places(PlacesInWindow, GoalieCount);
    put(GoalieRowForm, content_.goalies, goalieLeaders(app_.state, GoalieCount, sort, rows), sort);
}

void Rankings::StarUpdate() {
    const LeaderSort sort{0, StarSortAscending};
    const int rows = places(PlacesInWindow, StarCount);
    put(StarRowForm, content_.stars, starLeaders(app_.state, StarCount, sort, rows), sort);
}

int Rankings::places(int inWindow, int inFragment) const {
    if (app_.state.ShowWindows)
        return inWindow;
    return HomePageMode ? PlacesOnHomePage : inFragment;
}

void Rankings::put(const LeaderRowForm& form, Table& table, const LeaderList& list, LeaderSort sort) {
    if (app_.state.ShowWindows) {
        table = {list.lines, "", sort};
        for (LeaderLine& row : table.rows) {
            row.name = inCapitals(row.name);
            table.rowNumbers += std::to_string(row.number) + "\n";
        }
        changed();
        return;
    }
    if (HomePageMode)
        page_.add(leaderBlock(form, list, sort.column,
                              leaderPictureRow(form, list, app_.files(), app_.platform())));
    else
        addLeaderFragment(page_, form, list);
}

void Rankings::tmLeadersCol_Click(int Index) {
    sortByClick(Index - 1, TeamSortColumn, TeamSortAscending);
    tmLeadersUpdate();
}

void Rankings::lColN_Click(int Index) {
    sortByClick(Index, PlayerSortColumn, PlayerSortAscending);
    lgLeadersUpdateN();
}

void Rankings::lColG_Click(int Index) {
    sortByClick(Index, GoalieSortColumn, GoalieSortAscending);
    lgLeadersUpdateG();
}

void Rankings::ThreeStarSort_Click() {
    StarSortAscending = !StarSortAscending;
    StarUpdate();
}

void Rankings::writeFragment(const std::string& name) {
    const std::string folder = part_ == PartOfYear::Season ? "Rankings/" : "PlayoffRankings/";
    writePage(app_.files(), paths::page(folder + name + ".php"), page_.text());
    page_.clear();
}

// A fragment's number stands for its order: from 0 the columns with the highest value first, behind them the
// columns with the lowest value first.

void Rankings::writePlayerFragments() {
    constexpr int Columns = PlayerLeaderColumns.size();
    static_assert(GoalieLeaderColumns.size() == Columns);
    for (const bool ascending : {true, false}) {
        PlayerSortAscending = GoalieSortAscending = ascending;
        for (int column = 0; column < Columns; ++column) {
            const std::string number = std::to_string(ascending ? Columns + column : column);
            PlayerSortColumn = GoalieSortColumn = column;
            lgLeadersUpdateN();
            writeFragment("Normal" + number);
            lgLeadersUpdateG();
            writeFragment("Goalies" + number);
        }
    }
}

void Rankings::writeTeamFragments() {
    // The natural order comes first; the last two columns have no fragment with the lowest value first.
    constexpr int HighestFirst = TeamLeaderColumns.size() + 1;
    constexpr int LowestFirst = HighestFirst - 2;
    for (const bool ascending : {true, false}) {
        TeamSortAscending = ascending;
        for (int order = 0; order < (ascending ? LowestFirst : HighestFirst); ++order) {
            TeamSortColumn = order - 1;
            tmLeadersUpdate();
            writeFragment("Teams" + std::to_string(ascending ? HighestFirst + order : order));
        }
    }
}

void Rankings::writeStarFragments() {
    for (const bool ascending : {true, false}) {
        StarSortAscending = ascending;
        StarUpdate();
        writeFragment(ascending ? "Star0" : "Star1");
    }
}

void Rankings::writeHomePage() {
    constexpr std::array Updates{&Rankings::lgLeadersUpdateN, &Rankings::lgLeadersUpdateG,
                                 &Rankings::tmLeadersUpdate};
    const bool season = part_ == PartOfYear::Season;
    HomePageMode = true;
    page_.add(season ? leagueHomePageOpening(readRecentGames(app_.files())) : playoffHomePageOpening());
    StarUpdate();
    for (std::size_t group = 0; group < Updates.size(); ++group) {
        page_.add(homePageGroupHead(HomePageGroups[group]));
        for (const HomePageBlock& block : HomePageGroups[group].blocks) {
            page_.add(homePageBlockHead(HomePageGroups[group], block));
            PlayerSortColumn = GoalieSortColumn = TeamSortColumn = block.column;
            PlayerSortAscending = GoalieSortAscending = TeamSortAscending = block.ascending;
            (this->*Updates[group])();
        }
    }
    page_.add(homePageEnd());
    HomePageMode = false;
    writePage(app_.files(), paths::page(season ? "index.htm" : "Playoffs.htm"), page_.text());
    page_.clear();
}

} // namespace iceline
