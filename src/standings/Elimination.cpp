#include "standings/Elimination.h"

#include <algorithm>

namespace iceline {

namespace {

/// Teams still in the running. A list that is emptied keeps what stands in its places until it is written
/// from the first one again.
struct RunningList {
    std::array<TeamIndex, LeagueTeams> teams{};
    int count = 0;

    void add(TeamIndex team) { teams[count++] = team; }
};

void keepBest(const StandingsTable& table, StandingsFigure key, const RunningList& from, RunningList& into) {
    int best = 0;
    into.count = 0;
    for (int place = from.count - 1; place >= 0; --place) {
        const int value = figureOf(table, from.teams[place], key);
        if (value < best)
            continue;
        if (value > best)
            into.count = 0;
        best = value;
        into.add(from.teams[place]);
    }
}

RunningList listOf(const std::vector<TeamIndex>& teams) {
    RunningList list;
    std::ranges::for_each(teams, [&list](TeamIndex team) { list.add(team); });
    return list;
}

} // namespace

TeamIndex bestByElimination(const StandingsTable& table, const std::vector<TeamIndex>& candidates) {
    RunningList odd = listOf({candidates.rbegin(), candidates.rend()});
    RunningList even;
    keepBest(table, StandingsFigure::Points, listOf(candidates), odd);
    keepBest(table, StandingsFigure::Wins, odd, even);
    keepBest(table, StandingsFigure::PowerRanking, even, odd);
    keepBest(table, StandingsFigure::Diff, odd, even);
    keepBest(table, StandingsFigure::GF, even, odd);
    return odd.teams.front();
}

std::vector<TeamIndex> eliminationOrder(const StandingsTable& table, std::vector<TeamIndex> candidates) {
    std::vector<TeamIndex> order;
    while (!candidates.empty()) {
        order.push_back(bestByElimination(table, candidates));
        std::erase(candidates, order.back());
    }
    return order;
}

} // namespace iceline
