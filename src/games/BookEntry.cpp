#include "games/BookEntry.h"

#include "books/GameImport.h"
#include "files/FileError.h"
#include "games/BoxScorePage.h"

#include <limits>

namespace iceline {

namespace {

ImportedGame importedGame(const ApplicationState& state, const GameImported& game,
                          const GameRosters& rosters) {
    ImportedGame imported{.sheet = game.sheet,
                          .rosters = rosters,
                          .part = state.partOfYear(),
                          .counts = game.season,
                          .overtime = game.lastPeriod >= OvertimePeriod,
                          .seasonLength = state.SeasonLength,
                          .coaches = {game.homeCoach, game.awayCoach},
                          .Star = {},
                          .StarSlot = {}};
    for (std::size_t k = 0; k < game.stars.size(); ++k) {
        imported.Star[k] = {game.stars[k].team, game.stars[k].name};
        imported.StarSlot[k] = game.stars[k].row;
    }
    return imported;
}

} // namespace

std::optional<GameKind> gameKind(bool season, bool exhibition, bool playoffs) {
    if (exhibition)
        return GameKind::Exhibition;
    if (season)
        return GameKind::Season;
    return playoffs ? std::optional(GameKind::Playoff) : std::nullopt;
}

void requireHigherGameNumber(Files& files) {
    if (readNumber32(files, paths::OverallGameNumber) == std::numeric_limits<int>::max())
        throw FileError::about(paths::OverallGameNumber, "the file can hold no higher number");
}

void raiseGameNumber(Files& files) {
    requireHigherGameNumber(files);
    files.write(paths::OverallGameNumber, numberLine(readNumber32(files, paths::OverallGameNumber) + 1));
}

std::optional<SeriesOfGame> openSeries(const ApplicationState& state, const GameSheet& game) {
    return seriesOfGame(state.PlayoffSeries, {.home = game.home.team, .away = game.away.team});
}

void foldGame(Application& app, const GameImported& game, const GameRosters& rosters) {
    ApplicationState& state = app.state;
    importGame(app.files(), importedGame(state, game, rosters));
    if (!game.season)
        return;
    if (state.PlayoffMode)
        recordResult(state.PlayoffSeries, openSeries(state, game.sheet).value(),
                     {.home = game.sheet.home.Goals, .away = game.sheet.away.Goals});
    app.files().write(paths::PlayoffRecords, textOf(state.PlayoffSeries));
}

GameReport reportOf(const GameImported& game, const GameRosters& rosters) {
    GameReport report = gameReport({game.sheet, rosters, game.lastScorer, std::nullopt}, game.lastPeriod);
    for (std::size_t k = 0; k < game.stars.size(); ++k)
        report.Star[k] = {game.stars[k].team, game.stars[k].name};
    return report;
}

GameRosters rostersOf(Files& files, const GameImported& game) {
    return {readRoster(files, paths::playersList(game.sheet.home.team)),
            readRoster(files, paths::playersList(game.sheet.away.team))};
}

std::optional<std::string> misfitOf(Application& app, const GameImported& game) {
    readPlayoffRecords(app.files(), app.state.PlayoffSeries);
    const bool playoffs = game.part == PartOfYear::Playoffs;
    if (!app.state.PlayoffMode && playoffs)
        return "the regular season would not be over before it";
    if (app.state.PlayoffMode && !playoffs)
        return "the regular season would be over before it";
    if (game.season && playoffs && !openSeries(app.state, game.sheet))
        return "its teams would have no open series";
    return std::nullopt;
}

void carryOut(Application& app, const GameImported& game) {
    raiseGameNumber(app.files());
    const GameRosters rosters = rostersOf(app.files(), game);
    writeBoxScore(app.files(), {reportOf(game, rosters), boxScorePageName(game.saveState),
                                gameKind(game.season, game.exhibition, game.part == PartOfYear::Playoffs),
                                game.homeCoach, game.awayCoach});
    foldGame(app, game, rosters);
}

void carryOut(Application& app, const ImportRefused&) {
    raiseGameNumber(app.files());
}

} // namespace iceline
