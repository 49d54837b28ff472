#include "coaches/CoachStats.h"

#include "coaches/CoachPages.h"
#include "coaches/Coaches.h"
#include "leaders/LeaderTables.h"
#include "league/Selection.h"
#include "page/PageFrame.h"
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
        table.push_back(readTeamLeaderFigures(app_.files(), paths::coachFolder(coach)));
}

void CoachStats::tmLeadersUpdate() {
    content_.ranking = coachLeaders(app_.state, content_.coaches, sort(), CoachesListed::WithGames);
    if (!app_.state.ShowWindows) {
        std::vector<CoachRow> rows;
        for (LeaderLine& line :
             coachLeaders(app_.state, content_.coaches, sort(), CoachesListed::All).lines) {
            const TeamRecord record = readTeamRecord(app_.files(), paths::coachFolder(line.name));
            rows.push_back({std::move(line), record});
        }
        writePage(app_.files(), paths::page("CoachingStats.htm"), coachingStatsPage(rows));
    }
    changed();
}

void CoachStats::tmLeadersCol_Click(int Index) {
    sortByClick(Index - 1, CoachSortColumn, CoachSortAscending);
    tmLeadersUpdate();
}

std::string CoachStats::CoachName() const {
    return TeamSelect == NotChosen ? "" : content_.coaches.at(TeamSelect);
}

void CoachStats::TeamSelect_Click() {
    if (TeamSelect == NotChosen)
        return;
    content_.coach = readTeamView(app_.files(), paths::coachFolder(CoachName()));
    writePage(app_.files(), paths::page("CStats/" + CoachName() + ".htm"),
              coachPage(CoachName(), *content_.coach));
    changed();
}

} // namespace iceline
