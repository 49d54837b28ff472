#include "books/Clearing.h"

#include "page/BoxScoreList.h"
#include "store/InitialFiles.h"
#include "store/LeaguePaths.h"

namespace iceline {

namespace {

void writeInitial(Files& files, const std::string& folder, std::span<const InitialFile> initial) {
    for (const InitialFile& file : initial)
        files.write(folder + "/" + file.name, file.content());
}

} // namespace

void clearTeam(Files& files, TeamIndex team) {
    for (const PartOfYear part : {PartOfYear::Season, PartOfYear::Playoffs})
        writeInitial(files, paths::teamFolder(team) + seasonFolder(part), initialTeamFiles());
}

namespace {

/// All teams, the list of box scores, and the files of the league whose content lasts no longer.
void clearWhatLasts(Lasts atMost, Files& files) {
    for (const InitialFile& file : initialLeagueFiles())
        if (file.lasts <= atMost)
            files.write(file.name, file.content());
    files.write(paths::page("BoxScores.htm"), boxScoreListHead());
    for (const TeamIndex team : AllLeagueTeams)
        clearTeam(files, team);
}

} // namespace

void clearLeague(Files& files) {
    clearWhatLasts(Lasts::UntilTheLeagueIsCleared, files);
}

void clearSeason(Files& files) {
    clearWhatLasts(Lasts::ForTheSeason, files);
}

void clearCoach(Files& files, const std::string& coach) {
    writeInitial(files, paths::coachFolder(coach), initialCoachFiles());
}

} // namespace iceline
