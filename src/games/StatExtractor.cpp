#include "games/StatExtractor.h"

#include "games/BookEntry.h"
#include "games/BoxScorePage.h"
#include "games/ThreeStars.h"
#include "log/EntryText.h"
#include "playoffs/SeasonEnd.h"
#include "shell/Application.h"
#include "text/Text.h"

#include <algorithm>
#include <set>

namespace iceline {

namespace {

/// Notes the rosters that the import of a game reads, where the history does not know them.
void noteRosters(Application& app, GameImported& game) {
    std::set<TeamIndex> teams{game.sheet.home.team, game.sheet.away.team};
    for (const LoggedStar& star : game.stars)
        teams.insert(star.team);
    for (const TeamIndex team : teams) {
        const std::string abbr(TeamAbbr[team]);
        const std::string roster = app.files().read(paths::playersList(team));
        if (!app.log().knowsRoster(app.files(), abbr, roster))
            game.rosters[abbr] = roster;
    }
}

std::string alreadyCounted(const CountedGame& game) {
    return "This game is in the books as game " + std::to_string(game.gameNumber) +
           (game.season.empty() ? "" : " of season " + game.season) + ": " +
           scoreText(game.home, game.homeGoals, game.away, game.awayGoals) + ", imported on " +
           game.time.substr(0, game.time.find('T')) + ".";
}

} // namespace

std::string fileNameOf(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

StatExtractor& StatExtractor::in(Application& app) {
    return static_cast<StatExtractor&>(app.windows().use(WindowId::StatExtractor));
}

void StatExtractor::Form_Load() {
    const BusyPointer busy(app_.platform());
    content_.coaches = {"No Coach"};
    for (const std::string& coach : app_.files().foldersIn(paths::Coaches))
        content_.coaches.push_back(coach);
    checkSeason();
    GameLoaded = false;
    FillWindow = true;
    changed();
}

void StatExtractor::LoadStats_Click() {
    if (!FillWindow)
        publishGame();
    else if (const auto path = chooseSaveState())
        showGame(*path);
}

void StatExtractor::showGame(const std::string& path) {
    PlayedGame game = readGame(app_.files(), path);
    if (game.refusal) {
        app_.platform().say(*game.refusal);
        return;
    }
    game_ = std::move(game);
    app_.state.SaveStatePath = path;
    content_.FileName = path;
    content_.report = reportGame();
    shown_ = fingerprintOf(game_->sheet, game_->lastScorer);
    imported_.clear();
    IsSlot = false;
    GameLoaded = true;
    changed();
}

std::optional<std::string> StatExtractor::chooseSaveState() {
    const auto path = app_.platform().chooseFile(
        "Open", {{"All Files (*.*)", "*.*"}, {"Game Save Files (*.gs*)", "*.gs*"}});
    return path ? std::optional(std::string(trimmed(*path))) : std::nullopt;
}

const PlayedGame& StatExtractor::readGameInHand() {
    game_ = readGame(app_.files(), app_.state.SaveStatePath);
    return *game_;
}

GameReport StatExtractor::reportGame() {
    ApplicationState& state = app_.state;
    GameReport report = gameReport(*game_, state.GameLastPeriod);
    state.GameLastPeriod = report.GameLastPeriod;
    selectStars(state, *game_);
    report.Star = state.Star;
    return report;
}

/// The name of the save state, with the game's number before its ending where the name is taken.
std::string StatExtractor::nameInBooks() {
    std::string name = fileNameOf(app_.state.SaveStatePath);
    if (!IsSlot || !app_.files().isFile(paths::page("BoxScores/" + boxScorePageName(name))))
        return name;
    const std::string number = std::to_string(readNumber32(app_.files(), paths::OverallGameNumber));
    return name.substr(0, name.rfind('.')) + "-" + number +
           name.substr(std::min(name.rfind('.'), name.size()));
}

void StatExtractor::publishGame() {
    if (ImportMode != 1)
        SaveStateFileName = nameInBooks();
    writeBoxScore(app_.files(),
                  {reportGame(), boxScorePageName(SaveStateFileName), gameKind(), homeCoach(), awayCoach()});
}

GameImported StatExtractor::bookEntry() {
    const ApplicationState& state = app_.state;
    GameImported entry;
    entry.gameNumber = readNumber32(app_.files(), paths::OverallGameNumber);
    entry.part = state.partOfYear();
    entry.season = Season;
    entry.exhibition = Exhibition;
    entry.saveState = SaveStateFileName;
    entry.sheet = game_->sheet;
    entry.lastScorer = game_->lastScorer;
    entry.fingerprint = fingerprintOf(entry.sheet, entry.lastScorer);
    entry.homeCoach = homeCoach();
    entry.awayCoach = awayCoach();
    entry.lastPeriod = state.GameLastPeriod;
    for (std::size_t k = 0; k < entry.stars.size(); ++k)
        entry.stars[k] = {state.Star[k].Team, state.Star[k].Name, state.StarSlot[k]};
    noteRosters(app_, entry);
    return entry;
}

std::optional<GameDoubt> StatExtractor::doubtAbout(const PlayedGame& game) {
    if (game.refusal)
        return std::nullopt;
    if (game.unfinished)
        return GameDoubt{GameDoubt::Kind::Unfinished, *game.unfinished};
    if (const auto counted = countedAs(fingerprintOf(game.sheet, game.lastScorer)))
        return GameDoubt{GameDoubt::Kind::AlreadyCounted, alreadyCounted(*counted)};
    return std::nullopt;
}

std::optional<CountedGame> StatExtractor::countedAs(const std::string& fingerprint) {
    try {
        return app_.log().find(app_.files(), fingerprint);
    } catch (const DamagedHistory&) {
        return std::nullopt;
    }
}

std::string StatExtractor::standing() {
    if (!content_.report)
        return "";
    const auto counted = countedAs(shown_);
    if (!counted)
        return "read \u2013 not imported";
    return (imported_ == shown_ ? "imported as game " : "in the books as game ") +
           std::to_string(counted->gameNumber);
}

void StatExtractor::T1Coach_Click(int listIndex) {
    T1Coach = listIndex;
    if (T1Coach == T2Coach)
        T2Coach = 0;
    changed();
}

void StatExtractor::T2Coach_Click(int listIndex) {
    T2Coach = listIndex;
    if (T1Coach == T2Coach)
        T1Coach = 0;
    changed();
}

void StatExtractor::checkSeason() {
    iceline::checkSeason(app_);
    changed();
}

std::string StatExtractor::caption() const {
    return app_.state.PlayoffMode ? "Stat Extractor     ***** PLAYOFF MODE *****" : "Stat Extractor";
}

std::optional<GameKind> StatExtractor::gameKind() const {
    return iceline::gameKind(Season, Exhibition, app_.state.PlayoffMode);
}

std::optional<std::string> StatExtractor::coachAt(int position) const {
    const auto entry = static_cast<std::size_t>(position);
    const bool chosen = position > 0 && entry < content_.coaches.size();
    return chosen ? std::optional(content_.coaches[entry]) : std::nullopt;
}

} // namespace iceline
