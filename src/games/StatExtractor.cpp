#include "games/StatExtractor.h"

#include "games/BoxScorePage.h"
#include "games/SaveStateMap.h"
#include "games/Summaries.h"
#include "games/ThreeStars.h"
#include "playoffs/SeasonEnd.h"
#include "shell/Application.h"

namespace iceline {

namespace {

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string fileNameOf(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

void takeNames(const Roster& roster, std::array<std::string, RosterRows>& names) {
    for (std::size_t row = 0; row < names.size(); ++row)
        names[row] = roster[row].Name;
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
    const std::optional<std::string> path = FillWindow ? chooseSaveState() : app_.state.SaveStatePath;
    if (!path)
        return;
    const SaveState save = SaveState::read(app_.files(), *path);
    if (const auto refusal = save.refusal()) {
        app_.platform().say(*refusal);
        return;
    }
    const GameRosters rosters = readRosters(app_.files(), save);
    if (FillWindow)
        content_.FileName = *path;
    app_.state.SaveStatePath = *path;
    loadGame(save, rosters);
}

std::optional<std::string> StatExtractor::chooseSaveState() {
    const auto path = app_.platform().chooseFile(
        "Open", {{"All Files (*.*)", "*.*"}, {"Game Save Files (*.gs*)", "*.gs*"}});
    return path ? std::optional(trimmed(*path)) : std::nullopt;
}

void StatExtractor::loadGame(const SaveState& save, const GameRosters& rosters) {
    ApplicationState& state = app_.state;
    state.HomeName = save.ReadTeamAbbr(SaveStateMap::HomeTeam, state.LastTeamByte);
    state.AwayName = save.ReadTeamAbbr(SaveStateMap::AwayTeam, state.LastTeamByte);
    GameReport report = gameReport(save, rosters, state.GameLastPeriod);
    state.GameLastPeriod = report.GameLastPeriod;
    takeNames(rosters.home, HomeNames);
    takeNames(rosters.away, AwayNames);
    selectStars(state, save, rosters);
    report.Star = state.Star;
    if (FillWindow)
        show(report);
    else
        publish(report);
    GameLoaded = true;
}

void StatExtractor::show(const GameReport& report) {
    content_.ScoringSummary = scoringSummaryText(report);
    content_.PenaltySummary = penaltySummaryText(report);
    content_.report = report;
    changed();
}

void StatExtractor::publish(const GameReport& report) {
    if (ImportMode != 1)
        SaveStateFileName = fileNameOf(app_.state.SaveStatePath);
    writeBoxScore(app_.files(),
                  {report, boxScorePageName(SaveStateFileName), gameKind(), homeCoach(), awayCoach()});
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
    const bool chosen = position > 0 && position < static_cast<int>(content_.coaches.size());
    return chosen ? std::optional(content_.coaches[position]) : std::nullopt;
}

} // namespace iceline
