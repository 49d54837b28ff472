#include "desktop/TeamLeaderGrid.h"

#include "desktop/QtPlatform.h"

#include <array>

namespace iceline::desktop {

LeaderGridForm teamLeaderForm() {
    static constexpr std::array Labels{"LLTeamGP",   "LLTeamPts",      "LLTeamWinPct",  "LLTeamGPG",
                                       "LLTeamGAG",  "LLTeamPPPct",    "LLTeamPKPct",   "LLTeamSPG",
                                       "LLTeamSAPG", "LLPowerRanking", "LLHomeRanking", "LLAwayRanking"};
    static_assert(Labels.size() == TeamLeaderColumns.size());
    LeaderGridForm form{"Text3", "LeagueLeaderTeam3",     nullptr, "tmLeadersCol", LeagueTeams,
                        {},      QStringLiteral("Teams"), 0};
    for (int column = 0; column < static_cast<int>(Labels.size()); ++column)
        form.columns.push_back({toQt(TeamLeaderColumns[column].caption), column + 1, column, Labels[column]});
    return form;
}

} // namespace iceline::desktop
