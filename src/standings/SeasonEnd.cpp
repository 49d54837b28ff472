#include "standings/SeasonEnd.h"

#include "shell/Application.h"
#include "store/TeamFiles.h"

namespace iceline {

namespace {

bool allTeamsAreDone(Application& app) {
    for (TeamIndex team = 0; team < LeagueTeams; ++team)
        if (readTopOfTeamRecord(app.files(), paths::teamFolder(team)).GP < app.state.SeasonLength)
            return false;
    return true;
}

/// Places in a conference's seeds that meet in its first round, in the order of the series.
constexpr std::array<std::array<int, 2>, 4> FirstRound{{{0, 7}, {3, 4}, {2, 5}, {1, 6}}};

void seedFirstRound(ApplicationState& state) {
    for (std::size_t i = 0; i < FirstRound.size(); ++i) {
        const auto [better, worse] = FirstRound[i];
        PlayoffSeriesRecord& wales = state.PlayoffSeries[i];
        wales.TeamA = state.WalesSeeds[better];
        wales.TeamB = state.WalesSeeds[worse];
        PlayoffSeriesRecord& campbell = state.PlayoffSeries[i + FirstRound.size()];
        campbell.TeamA = state.CampbellSeeds[better];
        campbell.TeamB = state.CampbellSeeds[worse];
    }
}

} // namespace

void checkSeason(Application& app) {
    if (app.state.PlayoffMode || !allTeamsAreDone(app))
        return;
    if (app.state.StartupDone)
        app.platform().say("Regular Season COMPLETE, Playoff Mode now active for the Postseason.");
    app.state.PlayoffMode = true;
    app.state.SeasonFolder = seasonFolder(PartOfYear::Playoffs);
    seedFirstRound(app.state);
}

} // namespace iceline
