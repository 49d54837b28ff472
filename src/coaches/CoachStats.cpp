#include "coaches/CoachStats.h"

#include "coaches/CoachPages.h"
#include "coaches/Coaches.h"
#include "leaders/LeaderTables.h"
#include "league/Selection.h"
#include "shell/Application.h"

namespace iceline {

void CoachStats::Form_Load() {
    const BusyPointer busy(app_.platform());
    tmLeadersLoad();
    tmLeadersUpdate();
}

void CoachStats::tmLeadersLoad() {
    content_.coaches = coachNames(app_.files());
    if (content_.coaches.empty())
        return;
    auto& table = app_.state.CoachLeaderTable;
    table.clear();
    for (const std::string& coach : content_.coaches)
        table.push_back(readTeamLeader(app_.files(), paths::coachFolder(coach)));
}

void CoachStats::tmLeadersUpdate() {
    if (!app_.state.ShowWindows)
        writeCoachingStatsPage(app_.files(),
                               coachLeaders(app_.state, content_.coaches, sort(), CoachesListed::All));
    showRanking();
    changed();
}

void CoachStats::showRanking() {
    content_.ranking = coachLeaders(app_.state, content_.coaches, sort(), CoachesListed::WithGames);
}

void CoachStats::readAgain() {
    Files& files = app_.files();
    const auto isThere = [&](const std::string& coach) { return files.isFolder(paths::coachFolder(coach)); };
    auto& table = app_.state.CoachLeaderTable;
    table.clear();
    for (const std::string& coach : content_.coaches)
        table.push_back(isThere(coach) ? readTeamLeader(files, paths::coachFolder(coach)) : TeamLeader());
    showRanking();
    if (TeamSelect != NotChosen && isThere(CoachName()))
        content_.coach = readTeamView(files, paths::coachFolder(CoachName()));
}

void CoachStats::tmLeadersCol_Click(int Index) {
    sortByClick(Index - 1, CoachSortColumn, CoachSortAscending);
    tmLeadersUpdate();
}

std::string CoachStats::CoachName() const {
    return TeamSelect == NotChosen ? "" : content_.coaches.at(CoachIndex(TeamSelect));
}

void CoachStats::TeamSelect_Click() {
    if (TeamSelect == NotChosen)
        return;
    content_.coach = readTeamView(app_.files(), paths::coachFolder(CoachName()));
    changed();
    writeCoachPage(app_.files(), CoachName(), *content_.coach);
}

} // namespace iceline
