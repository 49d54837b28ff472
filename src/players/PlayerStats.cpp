#include "players/PlayerStats.h"

#include "league/Numbers.h"
#include "league/Selection.h"
#include "page/PageFrame.h"
#include "shell/Application.h"
#include "store/TeamFiles.h"

namespace iceline {

namespace {

/// A category of team leaders: its heading, the label of the figure, and its column among the skaters.
struct LeaderCategory {
    std::string_view heading;
    std::string_view control;
    int column;
};

constexpr std::array<LeaderCategory, 10> LeaderCategories{{
    {"Goals", "PlayerLeaderG", 3},
    {"Assists", "PlayerLeaderA", 4},
    {"Points", "PlayerLeaderPts", 5},
    {"Pts. Per Game", "PlayerLeaderPPG", 6},
    {"Power Ranking", "PlayerLeaderPR", 2},
    {"Penalty Minutes", "PlayerLeaderPIM", 11},
    {"PP Goals", "PlayerLeaderPP", 9},
    {"SH Goals", "PlayerLeaderSH", 10},
    {"Shots on Goal", "PlayerLeaderSOG", 8},
    {"Shot %", "PlayerLeaderSPct", 7},
}};

constexpr int Orders = NameColumn + 1;

std::string recordLine(const TeamRecord& record) {
    PageText page;
    page.add("<tr><td><center>" + itemText(record.Wins));
    for (const double value : {double(record.Losses), double(record.Ties), double(record.Points),
                               record.WinPercent, double(record.GP)})
        page.add("</center></td><td><center>" + itemText(value));
    return page.line("</center></td></tr>").text();
}

std::string leadersText(const std::vector<PlayerStats::Leader>& leaders) {
    PageText page;
    for (const PlayerStats::Leader& leader : leaders) {
        page.line("<tr><th colspan = 2><center><b>" + std::string(leader.heading) + "</th></tr>");
        page.line("<tr><td>" + leader.Name + "</td><td><center>" + leader.value + "</center></td></tr>");
    }
    return page.text();
}

} // namespace

void PlayerStats::Form_Load() {
    if (!app_.state.ShowWindows)
        writeFragments();
    app_.state.ShowWindows = true;
}

void PlayerStats::PlayersTeamSelect_Click() {
    content_ = {};
    if (PlayersTeamSelect == NotChosen) {
        changed();
        return;
    }
    const TeamIndex team(PlayersTeamSelect);
    const Roster roster = readRoster(app_.files(), paths::playersList(team));
    const std::string statsPath = paths::teamFile(team, part_, paths::PlayerStats);
    const TeamPlayerStats stats = readPlayerStats(app_.files(), statsPath, roster);
    skaterTable_ = PlayerTable::skaters(roster, stats);
    goalieTable_ = PlayerTable::goalies(roster, stats);
    if (app_.state.ShowWindows) {
        SkaterUpdate();
        GoalieUpdate();
    }
    for (const LeaderCategory& category : LeaderCategories) {
        const auto [name, value] = skaterTable_.leader(category.column);
        content_.leaders.push_back({category.heading, category.control, name, value});
    }
    changed();
}

void PlayerStats::SkaterUpdate() {
    content_.skaters = skaterTable_.ordered(SkaterSortColumn, SkaterSortAscending);
}

void PlayerStats::GoalieUpdate() {
    content_.goalies = goalieTable_.ordered(TeamGoalieSortColumn, TeamGoalieSortAscending);
}

void PlayerStats::PlayerStatsN_Click(int Index) {
    if (PlayersTeamSelect == NotChosen)
        return;
    sortByClick(Index, SkaterSortColumn, SkaterSortAscending);
    SkaterUpdate();
    changed();
}

void PlayerStats::GPlayerStatsN_Click(int Index) {
    if (PlayersTeamSelect == NotChosen)
        return;
    sortByClick(Index, TeamGoalieSortColumn, TeamGoalieSortAscending);
    GoalieUpdate();
    changed();
}

void PlayerStats::writeFragments() {
    const std::string folder = part_ == PartOfYear::Season ? "PStats/" : "PlayoffPStats/";
    for (const TeamIndex team : AllLeagueTeams) {
        Files& files = app_.files();
        const std::string stem = paths::page(folder + std::string(TeamAbbr[team]));
        const TeamRecord record = readTopOfTeamRecord(files, paths::teamFolder(team) + seasonFolder(part_));
        writePage(files, stem + "_records.php", recordLine(record));
        PlayersTeamSelect = team.number();
        PlayersTeamSelect_Click();
        writePage(files, stem + "_leaders.php", leadersText(content_.leaders));
        const auto skaters = skaterRowTexts(skaterTable_, team, part_);
        const auto goalies = goalieRowTexts(goalieTable_, team, part_);
        for (const bool ascending : {true, false}) {
            SkaterSortAscending = TeamGoalieSortAscending = ascending;
            writeOrders(stem, skaters, goalies);
        }
    }
}

/// The fragments of all orders in the direction of the sort state: 0 to 13 descending, 14 to 27 ascending.
void PlayerStats::writeOrders(const std::string& stem, const std::vector<std::string>& skaters,
                              const std::vector<std::string>& goalies) {
    for (int column = 0; column < Orders; ++column) {
        const std::string number = std::to_string(SkaterSortAscending ? column + Orders : column) + ".php";
        SkaterSortColumn = TeamGoalieSortColumn = column;
        writePage(app_.files(), stem + "_N" + number,
                  playerFragment(skaters, skaterTable_.order(column, SkaterSortAscending)));
        writePage(app_.files(), stem + "_G" + number,
                  playerFragment(goalies, goalieTable_.order(column, TeamGoalieSortAscending)));
    }
}

} // namespace iceline
