#include "history/HistoryChanges.h"

#include "coaches/Coaches.h"
#include "copies/KeptSeason.h"
#include "files/FileError.h"
#include "files/FileTree.h"
#include "games/BookEntry.h"
#include "games/StatExtractor.h"
#include "games/ThreeStars.h"
#include "leaders/Rankings.h"
#include "log/EntryText.h"
#include "shell/LoggedChange.h"
#include "site/OldSeasons.h"
#include "standings/Standings.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

namespace iceline {

std::optional<std::string> contentIn(const FileContents& books, const std::string& path) {
    const auto file = books.find(path);
    return file == books.end() ? std::nullopt : std::optional(file->second);
}

std::optional<std::string> contentIn(Files& files, const std::string& path) {
    return files.isFile(path) ? std::optional(files.read(path)) : std::nullopt;
}

void put(Files& files, const std::string& path, const std::optional<std::string>& content) {
    if (!content)
        return files.remove(path);
    files.makeFolder(folderOf(path));
    files.write(path, *content);
}

void refreshWindows(Application& app) {
    if (app.windows().isLoaded(WindowId::Standings))
        Standings::in(app).Form_Load();
    if (app.windows().isLoaded(WindowId::Rankings))
        Rankings::in(app, PartOfYear::Season).tmLeadersLoad();
}

std::vector<Step> requireHistory(Application& app) {
    std::vector<Step> steps = readHistory(app.files());
    if (steps.empty())
        throw HistoryRefusal("The league has no history yet.");
    return steps;
}

namespace {

/// The league as its history makes it and as it would be with one line more.
struct TwoWays {
    std::unique_ptr<Replay> asIs;
    std::unique_ptr<Replay> changed;
};

bool isSame(const Step& one, const Step& other) {
    return one.undone == other.undone && jsonOf(one.entry) == jsonOf(other.entry);
}

/// Both ways share the steps up to the first that differs.
TwoWays workOut(Application& app, const std::vector<Step>& now, const std::vector<Step>& then) {
    auto asIs = std::make_unique<Replay>(readBaseline(app.files()), app.windows().catalogue());
    std::size_t step = 0;
    for (; step < now.size() && isSame(now[step], then[step]); ++step)
        asIs->carryOut(now[step]);
    auto changed = asIs->fork();
    for (std::size_t i = step; i < now.size(); ++i)
        asIs->carryOut(now[i]);
    for (std::size_t i = step; i < then.size(); ++i)
        changed->carryOut(then[i]);
    return {std::move(asIs), std::move(changed)};
}

std::set<std::string> pathsOf(const FileContents& one, const FileContents& other) {
    std::set<std::string> all;
    for (const auto* books : {&one, &other})
        for (const auto& file : *books)
            all.insert(file.first);
    return all;
}

/// Writes what comes out differently. A file that was changed by hand is not written over.
void writeDifferences(Files& files, const FileContents& asIs, const FileContents& changed) {
    for (const std::string& path : pathsOf(asIs, changed)) {
        const auto before = contentIn(asIs, path);
        const auto after = contentIn(changed, path);
        if (before == after)
            continue;
        if (contentIn(files, path) != before)
            throw HistoryRefusal(path +
                                 " was changed by hand, and this would write over it. \"iceline audit\" "
                                 "says what is different; accept or repair it first.");
        put(files, path, after);
    }
}

/// Coaches whom the books do not know any more lose their folders.
void removeEmptyCoachFolders(Files& files) {
    for (const std::string& coach : coachNames(files))
        removeWhenEmpty(files, paths::coachFolder(coach));
}

/// The copies of a season go with the operation that began the next one.
void moveKeptSeasons(Files& files, const std::vector<Step>& now, const std::vector<Step>& then) {
    for (std::size_t i = 0; i < now.size(); ++i) {
        const auto* season = std::get_if<NewSeason>(&now[i].entry.operation);
        if (!season || now[i].undone == then[i].undone)
            continue;
        if (then[i].undone)
            putSeasonAside(files, *season, now[i].entry.time);
        else
            bringSeasonBack(files, *season, now[i].entry.time);
    }
}

void takeOver(ApplicationState& state, const ApplicationState& worked) {
    state.SeasonLength = worked.SeasonLength;
    state.PlayoffMode = worked.PlayoffMode;
    state.SeasonFolder = worked.SeasonFolder;
    state.PlayoffSeries = worked.PlayoffSeries;
}

/// Adds a line that changes what other lines come to.
void carryOutLogged(Application& app, const LoggedOperation& operation) {
    LoggedChange change(app);
    std::vector<Entry> entries = readLog(app.files());
    const std::vector<Step> now = chronicleOf(entries);
    entries.push_back({.number = static_cast<int>(entries.size()),
                       .time = {},
                       .starts = !app.state.Logged,
                       .playoffs = false,
                       .operation = operation});
    try {
        const std::vector<Step> then = chronicleOf(entries);
        const TwoWays ways = workOut(app, now, then);
        writeDifferences(app.files(), ways.asIs->books(), ways.changed->books());
        removeEmptyCoachFolders(app.files());
        moveKeptSeasons(app.files(), now, then);
        takeOver(app.state, ways.changed->state());
    } catch (const Misfit& misfit) {
        throw HistoryRefusal(misfit.what());
    }
    change.commit(operation);
}

/// The same, and brings what shows it up to date.
void apply(Application& app, const LoggedOperation& operation) {
    carryOutLogged(app, operation);
    renewSeasons(app.files());
    refreshWindows(app);
}

const Step& operationAt(const std::vector<Step>& steps, int number) {
    if (number < 1 || number >= static_cast<int>(steps.size()) ||
        !canBeUndone(steps[static_cast<std::size_t>(number)].entry.operation))
        throw HistoryRefusal("There is no operation " + std::to_string(number) + " in the history.");
    return steps[static_cast<std::size_t>(number)];
}

/// The game of another save state in the place of a game, with the stars that it has.
void replaceGame(Application& app, GameImported& game, const std::string& file) {
    const PlayedGame played = readGame(app.files(), file);
    if (played.refusal)
        throw HistoryRefusal(*played.refusal);
    game.sheet = played.sheet;
    game.lastScorer = played.lastScorer;
    game.fingerprint = fingerprintOf(game.sheet, game.lastScorer);
    game.saveState = fileNameOf(file);
    ApplicationState state;
    state.GameLastPeriod = game.lastPeriod = gameReport(played, 0).GameLastPeriod;
    for (std::size_t k = 0; k < game.stars.size(); ++k) {
        state.Star[k] = {game.stars[k].team, game.stars[k].name};
        state.StarSlot[k] = game.stars[k].row;
    }
    selectStars(state, played);
    for (std::size_t k = 0; k < game.stars.size(); ++k)
        game.stars[k] = {state.Star[k].Team, state.Star[k].Name, state.StarSlot[k]};
}

void applyTo(GameImported& game, const Correction& correction) {
    if (correction.exhibition) {
        game.exhibition = *correction.exhibition;
        game.season = !*correction.exhibition;
    }
    if (correction.homeCoach)
        game.homeCoach = *correction.homeCoach;
    if (correction.awayCoach)
        game.awayCoach = *correction.awayCoach;
    if (game.homeCoach && game.homeCoach == game.awayCoach)
        throw HistoryRefusal("Nobody can coach both teams.");
    if (game.exhibition && !game.homeCoach && !game.awayCoach)
        throw HistoryRefusal("An exhibition game counts for coaches alone, so it needs at least one.");
}

/// The game that an import or a correction puts into the books; null for any other operation.
const GameImported* gameOf(const LoggedOperation& operation) {
    const auto* correction = std::get_if<GameCorrected>(&operation);
    return correction ? &correction->game : std::get_if<GameImported>(&operation);
}

/// A game that was imported again since it was undone would count twice.
void refuseCountingTwice(const std::vector<Step>& steps, int number) {
    const GameImported* game = gameOf(steps[static_cast<std::size_t>(number)].entry.operation);
    const auto undone = std::find_if(steps.rbegin(), steps.rend(), [&](const Step& step) {
        const auto* undo = std::get_if<Undone>(&step.entry.operation);
        return undo && undo->of == number;
    });
    for (auto step = undone.base(); game && step != steps.end(); ++step)
        if (const GameImported* other = gameAt(*step); other && other->fingerprint == game->fingerprint)
            throw HistoryRefusal(
                "This cannot be done again, because the game would count twice: since it was "
                "undone it has been imported as " +
                titleOf(*step) + ".");
}

/// A game put in the place of another would count twice when it is in the books by itself, too.
void refuseGameOfAnother(const std::vector<Step>& steps, int number, const GameImported& game) {
    for (const Step* step : gamesInBooks(steps))
        if (step->entry.number != number && gameAt(*step)->fingerprint == game.fingerprint)
            throw HistoryRefusal("The game of this file is in the books as " + titleOf(*step) + ".");
}

} // namespace

std::string undo(Application& app, std::optional<int> number) {
    const std::vector<Step> steps = requireHistory(app);
    if (!number)
        number = lastToUndo(steps);
    if (!number)
        throw HistoryRefusal("There is nothing to undo.");
    const Step& step = operationAt(steps, *number);
    if (step.undone)
        throw HistoryRefusal("This has been undone already: " + titleOf(step) + ".");
    apply(app, Undone{*number});
    return "Undone: " + titleOf(step) + ".";
}

std::string redo(Application& app) {
    const std::vector<Step> steps = requireHistory(app);
    const auto number = lastToRedo(steps);
    if (!number)
        throw HistoryRefusal("There is nothing to redo.");
    refuseCountingTwice(steps, *number);
    apply(app, Redone{*number});
    return "Done again: " + titleOf(operationAt(steps, *number)) + ".";
}

std::string correct(Application& app, int number, const Correction& correction) {
    const std::vector<Step> steps = requireHistory(app);
    const Step& step = operationAt(steps, number);
    const GameImported* game = gameAt(step);
    if (!game)
        throw HistoryRefusal("Operation " + std::to_string(number) +
                             " of the history is no game in the books.");
    GameCorrected corrected{number, *game};
    corrected.game.gameNumber = step.gameNumber;
    if (correction.file) {
        replaceGame(app, corrected.game, *correction.file);
        refuseGameOfAnother(steps, number, corrected.game);
    }
    applyTo(corrected.game, correction);
    apply(app, corrected);
    Entry now = step.entry;
    now.operation = corrected.game;
    return "Corrected: " + titleOf({now, false, true, step.gameNumber}) + ".";
}

} // namespace iceline
