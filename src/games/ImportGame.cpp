#include "files/FileError.h"
#include "games/BookEntry.h"
#include "games/FolderRunNote.h"
#include "games/StatExtractor.h"
#include "playoffs/SeasonEnd.h"
#include "shell/LoggedChange.h"
#include "standings/Standings.h"

namespace iceline {

namespace {

/// Why a game is not imported.
struct Refusal {
    std::string text;
    bool keepsGame = false;  ///< the game stays in hand and can be imported once the reason is gone
    bool seasonEnds = false; ///< a team has played all its games, so the season may be over
};

/// Raises the game number, which was `before`, for an import that broke; it has been raised when only now the
/// import was finished.
void keepTheNumber(Application& app, const FileError& error, int before) {
    LoggedChange change(app);
    if (readNumber32(app.files(), paths::OverallGameNumber) != before)
        return;
    const ImportRefused refused{fileNameOf(app.state.SaveStatePath), error.what()};
    carryOut(app, refused);
    change.commit(refused);
}

/// Keeps the raised number of an import that broke, and has an open window show the standings without its
/// game. Where that breaks as well the first error says enough.
void undoAllButTheNumber(Application& app, StatExtractor& window, const FileError& error, int before) {
    try {
        keepTheNumber(app, error, before);
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

    /// Stages everything that the game changes, or says why it is refused, having staged nothing. The game
    /// has been read just now, but for one that nobody has looked at: its file may have changed since it was
    /// selected.
    std::optional<Refusal> import();

    /// The game as the history tells of it, once it is staged; its number is the raised one.
    const GameImported& entry() const { return entry_; }

private:
    std::optional<Refusal> refusal(const PlayedGame& game);
    std::optional<Refusal> seasonRefusal(const GameSheet& game) const;
    bool hasGamesLeft(TeamIndex team) const;
    void publish();

    Application& app_;
    StatExtractor& window_;
    GameImported entry_;
};

std::optional<Refusal> GameInHand::import() {
    if (window_.lacksCoach())
        return Refusal{"Please select at least one coach first to import exhibition game to", true};
    if (!window_.GameLoaded)
        return Refusal{"Please load a file first!"};
    const PlayedGame& game =
        window_.Force && window_.ImportMode != 1 ? window_.readGameInHand() : window_.gameInHand();
    if (auto refused = refusal(game))
        return refused;
    publish();
    entry_ = window_.bookEntry();
    foldGame(app_, entry_, game.rosters);
    return std::nullopt;
}

std::optional<Refusal> GameInHand::refusal(const PlayedGame& game) {
    if (game.refusal)
        return Refusal{*game.refusal};
    if (auto seasonOver = seasonRefusal(game.sheet))
        return seasonOver;
    readPlayoffRecords(app_.files(), app_.state.PlayoffSeries);
    if (window_.Season && app_.state.PlayoffMode && !openSeries(app_.state, game.sheet))
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

/// Whether the user stays with a game that looks like a mistake. Reads the game. A folder run has passed over
/// such games already.
bool isWanted(Application& app, StatExtractor& window) {
    if (window.Force || window.ImportMode == 1 || !window.GameLoaded || window.lacksCoach())
        return true;
    const auto doubt = window.doubtAbout(window.readGameInHand());
    return !doubt || app.platform().ask({doubt->question(), Buttons::YesNo, "Import", true}) == Answer::Yes;
}

/// How an import ended.
struct Outcome {
    bool unwanted = false; ///< the user thought better of it; nothing has changed
    std::optional<Refusal> refusal = std::nullopt;
    bool seasonEnds = false;      ///< the game was the last of the regular season
    std::string fingerprint = {}; ///< of the game that was imported
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
    requireHigherGameNumber(app.files());
    const int before = readNumber32(app.files(), paths::OverallGameNumber);
    try {
        if (!isWanted(app, window))
            return {.unwanted = true};
        const BusyPointer busy(app.platform());
        LoggedChange change(app);
        GameInHand game(app, window);
        raiseGameNumber(app.files());
        Outcome outcome{.refusal = game.import()};
        if (outcome.refusal) {
            change.commit(ImportRefused{fileNameOf(app.state.SaveStatePath), outcome.refusal->text});
            return outcome;
        }
        outcome.fingerprint = game.entry().fingerprint;
        outcome.seasonEnds = seasonIsOver(app);
        if (window.ImportMode == 1)
            noteFolderRun(app, window);
        window.updateStandings();
        change.commit(game.entry(), outcome.seasonEnds);
        return outcome;
    } catch (const FileError& error) {
        undoAllButTheNumber(app, window, error, before);
        throw;
    }
}

} // namespace

void StatExtractor::ImportStats_Click() {
    const bool single = ImportMode != 1;
    ImportEnd end(app_, *this);
    const Outcome outcome = importGameInHand(app_, *this);
    if (outcome.unwanted) {
        end.keepsGame = true;
        return;
    }
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
    imported_ = outcome.fingerprint;
    if (single)
        app_.platform().say("The game has been imported and stats have been saved.");
    if (outcome.seasonEnds)
        turnToPlayoffs(app_);
    changed();
}

std::optional<std::string> StatExtractor::tryImport(const std::function<void()>& look) {
    /// The shared state as it was.
    struct KeptState {
        ApplicationState& state;
        ApplicationState before = state;
        ~KeptState() { state = before; }
    } const kept{app_.state};
    const Operation operation(app_);
    GameInHand game(app_, *this);
    raiseGameNumber(app_.files());
    if (const auto refused = game.import())
        return refused->text;
    look();
    return std::nullopt;
}

void StatExtractor::updateStandings() {
    Standings& standings = Standings::in(app_);
    standings.HomeAwayStandingsUpdate();
    standings.vsConfLoad();
    standings.EvE_Click();
    standings.WvW_Click();
}

} // namespace iceline
