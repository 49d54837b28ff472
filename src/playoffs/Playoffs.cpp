#include "playoffs/Playoffs.h"

#include "page/PageFrame.h"
#include "playoffs/PlayoffTreePage.h"
#include "playoffs/SeasonEnd.h"
#include "shell/Application.h"
#include "standings/Standings.h"

namespace iceline {

TeamIndex Playoffs::Content::team(Conference conference, const BracketSlot& slot) const {
    if (slot.round == 0)
        return (conference == Conference::Wales ? EastFirstRound : WestFirstRound)[slot.place];
    return (slot.team == SeriesTeam::A ? T1 : T2)[slot.series - FirstRoundSeries];
}

const std::string& Playoffs::Content::wins(const BracketSlot& slot) const {
    return (slot.team == SeriesTeam::A ? W1 : W2)[slot.series];
}

void Playoffs::Form_Load() {
    checkSeason(app_);
    readPlayoffRecords(app_.files(), app_.state.PlayoffSeries);
    PlayoffTreeUpdate();
}

void Playoffs::PlayoffTreeUpdate() {
    if (!app_.state.PlayoffMode)
        Standings::in(app_).DivisionStandingsUpdate();
    content_ = {};
    content_.PlayoffMode = app_.state.PlayoffMode;
    std::copy_n(app_.state.WalesSeeds.begin(), content_.EastFirstRound.size(),
                content_.EastFirstRound.begin());
    std::copy_n(app_.state.CampbellSeeds.begin(), content_.WestFirstRound.size(),
                content_.WestFirstRound.begin());
    if (content_.PlayoffMode) {
        for (int number = 0; number < SeriesCount; ++number)
            showSeries(number);
        content_.StanleyCup = content_.winner[FinalSeries];
    }
    writePage(app_.files(), paths::page("PlayoffTree.htm"), playoffTreePage(content_));
    changed();
}

void Playoffs::showSeries(int number) {
    const PlayoffSeriesRecord& series = app_.state.PlayoffSeries[number];
    content_.winner[number] = winnerOf(series);
    if (number >= FirstRoundSeries) {
        content_.T1[number - FirstRoundSeries] = series.TeamA;
        content_.T2[number - FirstRoundSeries] = series.TeamB;
        if (series.TeamA == BlankTeam || series.TeamB == BlankTeam)
            return;
    }
    content_.W1[number] = std::to_string(series.WinsA);
    content_.W2[number] = std::to_string(series.WinsB);
}

} // namespace iceline
