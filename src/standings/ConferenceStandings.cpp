#include "standings/ConferenceStandings.h"

#include "standings/Elimination.h"

namespace iceline {

namespace {

std::array<TeamIndex, 2> leadersInOrder(const ApplicationState& state, const ConferenceInfo& conference) {
    const TeamIndex first = (state.*info(conference.firstDivision).order).front();
    const TeamIndex second = (state.*info(conference.secondDivision).order).front();
    const auto points = [&state](TeamIndex team) {
        return figureOf(state.StandingsTable, team, StandingsFigure::Points);
    };
    return points(first) <= points(second) ? std::array{second, first} : std::array{first, second};
}

} // namespace

void seedConferences(ApplicationState& state) {
    for (std::size_t conference = 0; conference < Conferences.size(); ++conference) {
        ConferenceSeeds& seeds = state.*Conferences[conference].seeds;
        const auto leaders = leadersInOrder(state, Conferences[conference]);
        std::vector<TeamIndex> others = teamsOf(static_cast<Conference>(conference));
        for (const TeamIndex leader : leaders)
            std::erase(others, leader);
        const auto place = std::ranges::copy(leaders, seeds.begin()).out;
        std::ranges::copy(eliminationOrder(state.StandingsTable, others), place);
    }
}

std::array<ConferenceRows, 2> conferenceRows(const ApplicationState& state) {
    std::array<ConferenceRows, 2> rows;
    for (std::size_t conference = 0; conference < rows.size(); ++conference)
        rows[conference] = standingsRows(state, state.*Conferences[conference].seeds);
    return rows;
}

} // namespace iceline
