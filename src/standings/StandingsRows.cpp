#include "standings/StandingsRows.h"

#include "league/Numbers.h"
#include "standings/StandingsTable.h"

namespace iceline {

StandingsRow standingsRow(const ApplicationState& state, TeamIndex team) {
    const auto figure = [&state, team](StandingsFigure column) {
        return figureOf(state.StandingsTable, team, column);
    };
    return {team,
            figure(StandingsFigure::Wins),
            figure(StandingsFigure::Losses),
            figure(StandingsFigure::Ties),
            figure(StandingsFigure::Points),
            figure(StandingsFigure::GP),
            figure(StandingsFigure::GF),
            figure(StandingsFigure::GA),
            state.ClinchMark[team]};
}

std::string winPercentText(const SplitRecord& record) {
    return numberText(r3(record.winPercent / 1000.0));
}

} // namespace iceline
