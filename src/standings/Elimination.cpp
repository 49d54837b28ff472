#include "standings/Elimination.h"

#include <algorithm>

namespace iceline {

namespace {

using Teams = std::vector<TeamIndex>;

/// The teams that are level on the best value of a figure; none when all values are negative.
Teams levelOnBest(const LeagueTable& table, const Teams& teams, int TeamStanding::*figure) {
    int best = 0;
    for (const TeamIndex team : teams)
        best = std::max(best, table[team].*figure);
    Teams level;
    std::ranges::copy_if(teams, std::back_inserter(level),
                         [&](TeamIndex team) { return table[team].*figure == best; });
    return level;
}

} // namespace

TeamIndex bestByElimination(const LeagueTable& table, const Teams& candidates) {
    const auto filter = [&table](const Teams& teams, int TeamStanding::*figure) {
        return levelOnBest(table, teams, figure);
    };
    const Teams byPoints = filter(candidates, &TeamStanding::Points);
    const Teams byRanking = filter(filter(byPoints, &TeamStanding::Wins), &TeamStanding::PowerRanking);
    const Teams byGoals = filter(filter(byRanking, &TeamStanding::Difference), &TeamStanding::GF);
    for (const Teams* left : {&byGoals, &byRanking, &byPoints})
        if (!left->empty())
            return left->back();
    return candidates.back();
}

std::vector<TeamIndex> eliminationOrder(const LeagueTable& table, Teams candidates) {
    Teams order;
    while (!candidates.empty()) {
        order.push_back(bestByElimination(table, candidates));
        std::erase(candidates, order.back());
    }
    return order;
}

} // namespace iceline
