#include "standings/DivisionStandings.h"

#include "standings/Elimination.h"

namespace iceline {

void orderDivisions(ApplicationState& state) {
    for (std::size_t division = 0; division < Divisions.size(); ++division) {
        const auto teams = teamsOf(static_cast<Division>(division));
        std::ranges::copy(eliminationOrder(state.StandingsTable, teams),
                          (state.*Divisions[division].order).begin());
    }
}

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

std::array<DivisionRows, 4> divisionRows(const ApplicationState& state) {
    std::array<DivisionRows, 4> rows;
    for (std::size_t division = 0; division < rows.size(); ++division)
        std::ranges::transform(state.*Divisions[division].order, rows[division].begin(),
                               [&state](TeamIndex team) { return standingsRow(state, team); });
    return rows;
}

} // namespace iceline
