#include "leaders/Rankings.h"

#include "leaders/HomePages.h"
#include "leaders/LeaderPages.h"
#include "leaders/LeaderTables.h"
#include "league/Selection.h"
#include "shell/Application.h"
#include "text/Text.h"

namespace iceline {

namespace {

constexpr int PlacesInWindow = 20;

} // namespace

Rankings& Rankings::in(Application& app, PartOfYear part) {
    const bool season = part == PartOfYear::Season;
    return static_cast<Rankings&>(app.windows().use(season ? WindowId::Rankings : WindowId::PlayoffRankings));
}

void Rankings::Form_Load() {
    const BusyPointer busy(app_.platform());
    content_.title = part_ == PartOfYear::Season ? "Rankings" : "Playoff Rankings";
    loadTables();
    if (app_.state.ShowWindows)
        show();
    else
        writePages();
}

void Rankings::readAgain() {
    loadTables();
    updateTables();
}

void Rankings::loadTables() {
    tmLeadersLoad();
    lgLeadersLoadG();
    lgLeadersLoadN();
    StarLoad();
}

void Rankings::updateTables() {
    tmLeadersUpdate();
    lgLeadersUpdateG();
    lgLeadersUpdateN();
    StarUpdate();
}

void Rankings::show() {
    TeamSortColumn = 1;
    GoalieSortColumn = 6;
    PlayerSortColumn = 2;
    updateTables();
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
    showTable(content_.teams, teamLeaders(app_.state, sort), sort);
}

void Rankings::lgLeadersUpdateN() {
    const LeaderSort sort{PlayerSortColumn, PlayerSortAscending};
    showTable(content_.players, playerLeaders(app_.state, sort, PlacesInWindow, PlayerCount), sort);
}

void Rankings::lgLeadersUpdateG() {
    const LeaderSort sort{GoalieSortColumn, GoalieSortAscending};
    showTable(content_.goalies, goalieLeaders(app_.state, sort, PlacesInWindow, GoalieCount), sort);
}

void Rankings::StarUpdate() {
    const LeaderSort sort{0, StarSortAscending};
    showTable(content_.stars, starLeaders(app_.state, sort, PlacesInWindow, StarCount), sort);
}

void Rankings::showTable(Table& table, LeaderList list, LeaderSort sort) {
    // The window shows names in capitals.
    table = {std::move(list.lines), sort};
    for (LeaderLine& row : table.rows)
        row.name = inCapitals(row.name);
    changed();
}

void Rankings::writePages() {
    writeLeaderPages(app_.files(), app_.state, part_);
    HomePageMode = true;
    writeHomePage(app_.files(), app_.platform(), app_.state, part_);
    HomePageMode = false;
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

} // namespace iceline
