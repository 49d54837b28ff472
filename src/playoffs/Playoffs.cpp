#include "playoffs/Playoffs.h"

#include "playoffs/PlayoffTreePage.h"
#include "playoffs/SeasonEnd.h"
#include "shell/Application.h"
#include "standings/Standings.h"

namespace iceline {

std::string Playoffs::Content::wins(SeriesPlace place) const {
    const PlayoffSeriesRecord& record = series[place.series];
    const bool bothAreKnown = record.TeamA != BlankTeam && record.TeamB != BlankTeam;
    return PlayoffMode && bothAreKnown ? std::to_string(winsAt(series, place)) : "";
}

void Playoffs::Form_Load() {
    checkSeason(app_);
    readPlayoffRecords(app_.files(), app_.state.PlayoffSeries);
    PlayoffTreeUpdate();
}

void Playoffs::readAgain() {
    readPlayoffRecords(app_.files(), app_.state.PlayoffSeries);
    showBracket();
}

void Playoffs::PlayoffTreeUpdate() {
    showBracket();
    writePlayoffTree(app_.files(), content_);
    changed();
}

void Playoffs::showBracket() {
    const ApplicationState& state = app_.state;
    if (!state.PlayoffMode)
        Standings::in(app_).DivisionStandingsUpdate();
    content_ = {state.PlayoffMode ? state.PlayoffSeries : PlayoffSeriesTable(), state.PlayoffMode};
    seedFirstRound(content_.series, state);
}

} // namespace iceline
