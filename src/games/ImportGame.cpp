#include "books/GameImport.h"
#include "files/FileError.h"
#include "games/FolderRunNote.h"
#include "games/StatExtractor.h"
#include "playoffs/Bracket.h"
#include "playoffs/SeasonEnd.h"
#include "shell/Application.h"
#include "standings/Standings.h"

#include <limits>

namespace iceline {

namespace {

/// Why a game is not imported.
struct Refusal {
    std::string text;
    bool keepsGame = false;  ///< the game stays in hand and can be imported once the reason is gone
    bool seasonEnds = false; ///< a team has played all its games, so the season may be over
};

int raisedGameNumber(Files& files) {
    const int number = readNumber32(files, paths::OverallGameNumber);
    if (number == std::numeric_limits<int>::max())
        throw FileError::about(paths::OverallGameNumber, "the file can hold no higher number");
    return number + 1;
}

/// Keeps the raised number of an import that broke, and has an open window show the standings without its
/// game. Where that breaks as well the first error says enough.
void undoAllButTheNumber(Application& app, StatExtractor& window, const ApplicationState& before,
                         int number) {
    app.state = before;
    try {
        Operation operation(app);
        app.files().write(paths::OverallGameNumber, numberLine(number));
        operation.commit();
        if (!app.windows().isOpen(WindowId::Standings))
            return;
        Standings::in(app).DivisionStandingsUpdate();
        window.updateStandings();
    } catch (const FileError&) {
        return;
    }
}

std::string seasonCompleted(const std::string& teams, const std::string& verb) {
    return "Cannot import file because " + teams + " " + verb +
           " completed the regular season\nTo change the season length check the options window from the "
           "welcome screen";
}

/// The import of the game that the window holds.
class GameInHand {
public:
    GameInHand(Application& app, StatExtractor& window) : app_(app), window_(window) {}

    /// Stages everything that the game changes, or says why it is refused, having staged nothing. A folder
    /// run has read the game just now; a single game is read here, since its file may have changed after it
    /// was selected.
    std::optional<Refusal> import();

    /// To be called once the changes are on the disk.
    void keepSeries() { app_.state.PlayoffSeries = series_; }

private:
    std::optional<Refusal> refusal(const PlayedGame& game);
    std::optional<Refusal> seasonRefusal(const GameSheet& game) const;
    bool hasGamesLeft(TeamIndex team) const;
    void publish();
    void fold(const PlayedGame& played);

    Application& app_;
    StatExtractor& window_;
    PlayoffSeriesTable series_;
    std::optional<SeriesOfGame> seriesOfGame_;
};

std::optional<Refusal> GameInHand::import() {
    if (window_.Exhibition && window_.T1Coach < 1 && window_.T2Coach < 1)
        return Refusal{"Please select at least one coach first to import exhibition game to", true};
    if (!window_.GameLoaded)
        return Refusal{"Please load a file first!"};
    const PlayedGame& game = window_.ImportMode == 1 ? window_.gameInHand() : window_.readGameInHand();
    if (auto refused = refusal(game))
        return refused;
    publish();
    fold(game);
    return std::nullopt;
}

std::optional<Refusal> GameInHand::refusal(const PlayedGame& game) {
    if (game.refusal)
        return Refusal{*game.refusal};
    if (auto seasonOver = seasonRefusal(game.sheet))
        return seasonOver;
    readPlayoffRecords(app_.files(), app_.state.PlayoffSeries);
    series_ = app_.state.PlayoffSeries;
    if (!window_.Season || !app_.state.PlayoffMode)
        return std::nullopt;
    seriesOfGame_ = seriesOfGame(series_, {.home = game.sheet.home.team, .away = game.sheet.away.team});
    if (!seriesOfGame_)
        return Refusal{"Cannot import file because this is not a valid post season game."};
    return std::nullopt;
}

bool GameInHand::hasGamesLeft(TeamIndex team) const {
    return app_.state.TeamLeaderTable[team].GP() < app_.state.SeasonLength;
}

std::optional<Refusal> GameInHand::seasonRefusal(const GameSheet& game) const {
    const bool homePlays = hasGamesLeft(game.home.team);
    const bool awayPlays = hasGamesLeft(game.away.team);
    if ((homePlays && awayPlays) || window_.Exhibition || app_.state.PlayoffMode)
        return std::nullopt;
    const std::string home(TeamName[game.home.team]);
    const std::string away(TeamName[game.away.team]);
    const std::string text = homePlays   ? seasonCompleted(away, "has")
                             : awayPlays ? seasonCompleted(home, "has")
                                         : seasonCompleted(home + " and " + away, "have");
    return Refusal{.text = text, .seasonEnds = true};
}

/// Writes the game's page, its list row and the recent games, and chooses its stars.
void GameInHand::publish() {
    window_.FillWindow = false;
    window_.LoadStats_Click();
    window_.FillWindow = true;
}

void GameInHand::fold(const PlayedGame& played) {
    const ApplicationState& state = app_.state;
    const ImportedGame game{played.sheet,
                            played.rosters,
                            state.partOfYear(),
                            window_.Season,
                            state.GameLastPeriod >= OvertimePeriod,
                            state.SeasonLength,
                            {window_.homeCoach(), window_.awayCoach()},
                            state.Star,
                            state.StarSlot};
    importGame(app_.files(), game);
    if (seriesOfGame_)
        recordResult(series_, *seriesOfGame_, {.home = game.sheet.home.Goals, .away = game.sheet.away.Goals});
    if (window_.Season)
        app_.files().write(paths::PlayoffRecords, textOf(series_));
}

/// The state of the window and the run when an import ends, however it ends.
class ImportEnd {
public:
    ImportEnd(Application& app, StatExtractor& window) : app_(app), window_(window) {}
    ~ImportEnd() {
        window_.FillWindow = true;
        window_.GameLoaded = window_.GameLoaded && keepsGame;
        app_.state.GameLastPeriod = 0;
    }
    ImportEnd(const ImportEnd&) = delete;
    ImportEnd& operator=(const ImportEnd&) = delete;

    bool keepsGame = false;

private:
    Application& app_;
    StatExtractor& window_;
};

/// How an import ended.
struct Outcome {
    std::optional<Refusal> refusal;
    bool seasonEnds = false; ///< the game was the last of the regular season
};

/// Notes that one more game of the run is in, and sees that its closing will find whole standings.
void noteFolderRun(Application& app, const StatExtractor& window) {
    writeFolderRunNote(app.files(),
                       {window.ImportCount + 1, window.SaveStateFileName, folderOf(app.state.SaveStatePath)});
    Standings::in(app).DivisionStandingsUpdate();
}

/// Imports the game in hand with the raised number, all or nothing of it; of a refused game and of one that
/// broke the raised number stays alone. What an import shows afterwards is worked out here, too, before
/// anything reaches the disk: a game that has been imported can then no longer end with an error.
Outcome importGameInHand(Application& app, StatExtractor& window) {
    const BusyPointer busy(app.platform());
    const int number = raisedGameNumber(app.files());
    const ApplicationState before = app.state;
    try {
        Operation operation(app);
        GameInHand game(app, window);
        app.files().write(paths::OverallGameNumber, numberLine(number));
        Outcome outcome{game.import()};
        if (!outcome.refusal) {
            outcome.seasonEnds = seasonIsOver(app);
            if (window.ImportMode == 1)
                noteFolderRun(app, window);
            window.updateStandings();
        }
        operation.commit();
        if (!outcome.refusal)
            game.keepSeries();
        return outcome;
    } catch (const FileError&) {
        undoAllButTheNumber(app, window, before, number);
        throw;
    }
}

} // namespace

void StatExtractor::ImportStats_Click() {
    const bool single = ImportMode != 1;
    ImportEnd end(app_, *this);
    const Outcome outcome = importGameInHand(app_, *this);
    if (const auto& refusal = outcome.refusal) {
        end.keepsGame = refusal->keepsGame;
        const Answer answer = app_.platform().ask({refusal->text, single ? Buttons::Ok : Buttons::OkCancel});
        if (!single)
            ImportAnswer = answer;
        else if (refusal->seasonEnds)
            checkSeason();
        return;
    }
    ++ImportCount;
    if (single)
        app_.platform().say("The game has been imported and stats have been saved.");
    if (outcome.seasonEnds)
        turnToPlayoffs(app_);
    changed();
}

void StatExtractor::updateStandings() {
    Standings& standings = Standings::in(app_);
    standings.HomeAwayStandingsUpdate();
    standings.vsConfLoad();
    standings.EvE_Click();
    standings.WvW_Click();
}

} // namespace iceline
