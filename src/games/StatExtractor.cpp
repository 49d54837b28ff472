#include "games/StatExtractor.h"

#include "games/BoxScorePage.h"
#include "games/Summaries.h"
#include "games/ThreeStars.h"
#include "playoffs/SeasonEnd.h"
#include "shell/Application.h"
#include "text/Text.h"

namespace iceline {

namespace {

std::string fileNameOf(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

} // namespace

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
    content_.ScoringSummary = scoringSummaryText(*content_.report);
    content_.PenaltySummary = penaltySummaryText(*content_.report);
    changed();
    GameLoaded = true;
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

void StatExtractor::publishGame() {
    if (ImportMode != 1)
        SaveStateFileName = fileNameOf(app_.state.SaveStatePath);
    writeBoxScore(app_.files(),
                  {reportGame(), boxScorePageName(SaveStateFileName), gameKind(), homeCoach(), awayCoach()});
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
    if (Exhibition)
        return GameKind::Exhibition;
    if (Season)
        return GameKind::Season;
    return app_.state.PlayoffMode ? std::optional(GameKind::Playoff) : std::nullopt;
}

std::optional<std::string> StatExtractor::coachAt(int position) const {
    const auto entry = static_cast<std::size_t>(position);
    const bool chosen = position > 0 && entry < content_.coaches.size();
    return chosen ? std::optional(content_.coaches[entry]) : std::nullopt;
}

} // namespace iceline
