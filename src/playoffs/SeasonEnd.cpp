#include "playoffs/SeasonEnd.h"

#include "playoffs/Bracket.h"
#include "shell/Application.h"
#include "standings/Standings.h"
#include "store/TeamFiles.h"

namespace iceline {

namespace {

bool allTeamsAreDone(Application& app) {
    for (const TeamIndex team : AllLeagueTeams)
        if (readTopOfTeamRecord(app.files(), paths::teamFolder(team)).GP < app.state.SeasonLength)
            return false;
    return true;
}

/// The caption of the game window says that the play-offs are on.
void redrawGameWindow(Windows& windows) {
    if (!windows.isLoaded(WindowId::StatExtractor))
        return;
    windows.use(WindowId::StatExtractor).renew();
}

} // namespace

bool seasonIsOver(Application& app) {
    if (app.state.PlayoffMode || !allTeamsAreDone(app))
        return false;
    Standings::in(app).DivisionStandingsUpdate();
    return true;
}

void turnToPlayoffs(Application& app) {
    if (app.state.StartupDone)
        app.platform().say("Regular Season COMPLETE, Playoff Mode now active for the Postseason.");
    app.state.PlayoffMode = true;
    app.state.SeasonFolder = seasonFolder(PartOfYear::Playoffs);
    seedFirstRound(app.state.PlayoffSeries, app.state);
    redrawGameWindow(app.windows());
}

void returnToSeason(Application& app) {
    app.state.PlayoffMode = false;
    app.state.SeasonFolder = seasonFolder(PartOfYear::Season);
    redrawGameWindow(app.windows());
}

void checkSeason(Application& app) {
    if (seasonIsOver(app))
        turnToPlayoffs(app);
}

} // namespace iceline
