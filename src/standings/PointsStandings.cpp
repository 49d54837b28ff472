#include "standings/PointsStandings.h"

#include "standings/Elimination.h"

namespace iceline {

void orderDivisions(ApplicationState& state) {
    for (std::size_t division = 0; division < Divisions.size(); ++division) {
        const auto teams = teamsOf(static_cast<Division>(division));
        std::ranges::copy(eliminationOrder(state.StandingsTable, teams),
                          (state.*Divisions[division].order).begin());
    }
}

std::array<DivisionRows, 4> divisionRows(const ApplicationState& state) {
    std::array<DivisionRows, 4> rows;
    for (std::size_t division = 0; division < rows.size(); ++division)
        rows[division] = standingsRows(state, state.*Divisions[division].order);
    return rows;
}

} // namespace iceline
