#include "season/SeasonOperations.h"

#include "books/Clearing.h"
#include "coaches/Coaches.h"
#include "copies/KeptSeason.h"
#include "log/ChosenLength.h"
#include "playoffs/SeasonEnd.h"
#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"

namespace iceline {

namespace {

constexpr int EndedByHand = -1;

void setSeasonLength(Application& app, int length) {
    app.files().write(paths::GamesUntilPlayoffs, numberLine(length));
    app.state.SeasonLength = length;
}

std::optional<std::string> unlessThere(Application& app, const std::string& coach) {
    return findCoach(app.files(), coach) ? std::nullopt : std::optional("there would be no coach " + coach);
}

std::optional<std::string> ifThere(Application& app, const std::string& coach) {
    return findCoach(app.files(), coach) ? std::optional("there would be a coach " + coach + " already")
                                         : std::nullopt;
}

} // namespace

void carryOut(Application& app, const CoachAdded& operation) {
    createCoach(app.files(), operation.coach);
}

void carryOut(Application& app, const CoachRenamed& operation) {
    renameCoach(app.files(), operation.coach, operation.to);
}

void carryOut(Application& app, const CoachDeleted& operation) {
    deleteCoach(app.files(), operation.coach);
}

void carryOut(Application& app, const CoachCleared& operation) {
    clearCoach(app.files(), operation.coach);
}

void carryOut(Application& app, const SeasonLengthSet& operation) {
    setSeasonLength(app, operation.length);
}

void carryOut(Application& app, const GoneToPlayoffs&) {
    setSeasonLength(app, EndedByHand);
}

void carryOut(Application& app, const StatsCleared& operation) {
    if (operation.team == AllTeams)
        clearLeague(app.files());
    else
        clearTeam(app.files(), operation.team);
    returnToSeason(app);
}

void carryOut(Application& app, const NewSeason& operation) {
    carryOut(app, operation, chosenLength(app.files()).games());
}

void carryOut(Application& app, const NewSeason& operation, int chosenLength) {
    Files& files = app.files();
    files.makeFolder(paths::keptSeason(operation.name));
    settleKeptSeason(files);
    clearSeason(files);
    const int length = readNumber16(files, paths::GamesUntilPlayoffs);
    setSeasonLength(app, length == EndedByHand ? chosenLength : length);
    app.state.PlayoffSeries = {};
    returnToSeason(app);
}

std::optional<std::string> misfitOf(Application& app, const CoachAdded& operation) {
    return ifThere(app, operation.coach);
}

std::optional<std::string> misfitOf(Application& app, const CoachRenamed& operation) {
    if (auto missing = unlessThere(app, operation.coach))
        return missing;
    const bool isRespelt = findCoach(app.files(), operation.to) == findCoach(app.files(), operation.coach);
    return isRespelt ? std::nullopt : ifThere(app, operation.to);
}

std::optional<std::string> misfitOf(Application& app, const CoachDeleted& operation) {
    return unlessThere(app, operation.coach);
}

std::optional<std::string> misfitOf(Application& app, const CoachCleared& operation) {
    return unlessThere(app, operation.coach);
}

std::optional<std::string> misfitOf(Application& app, const NewSeason& operation) {
    const bool isThere = seasonNameProblem(app.files(), operation.name).has_value();
    return isThere ? std::optional("there would be a season " + operation.name + " already") : std::nullopt;
}

} // namespace iceline
