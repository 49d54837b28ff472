#include "standings/ClinchMarks.h"

#include "standings/Alignment.h"

#include <span>
#include <tuple>

namespace iceline {

namespace {

/// What the marks are worked out from.
struct Race {
    const LeagueTable& table;
    int seasonLength;

    int points(TeamIndex team) const { return table[team].Points; }
    int wins(TeamIndex team) const { return table[team].Wins; }
    bool isDone(TeamIndex team) const { return table[team].GP == seasonLength; }

    int reach(TeamIndex team) const { return points(team) + 2 * (seasonLength - table[team].GP); }

    bool outOfReach(TeamIndex team, TeamIndex rival) const { return points(team) > reach(rival); }

    bool levelAtTheEnd(TeamIndex team, TeamIndex rival) const {
        return isDone(team) && isDone(rival) && points(team) == points(rival);
    }

    bool safeFrom(TeamIndex team, TeamIndex rival) const {
        return outOfReach(team, rival) || (levelAtTheEnd(team, rival) && wins(team) > wins(rival));
    }

    /// Power ranking, goal difference and goals for: what tells teams apart that are level on points and
    /// wins.
    auto tieBreaks(TeamIndex team) const {
        const TeamStanding& own = table[team];
        return std::tuple(own.PowerRanking, own.GF - own.GA, own.GF);
    }

    bool winsTieBreak(TeamIndex team, TeamIndex rival) const {
        return levelAtTheEnd(team, rival) && wins(team) == wins(rival) && tieBreaks(team) > tieBreaks(rival);
    }

    bool clinchedPlayoffs(TeamIndex team, std::span<const TeamIndex> outside) const {
        const auto safe = [this, team](TeamIndex rival) { return safeFrom(team, rival); };
        const auto ahead = [this, team](TeamIndex rival) { return winsTieBreak(team, rival); };
        return std::ranges::all_of(outside, safe) || std::ranges::any_of(outside, ahead);
    }

    /// Whether the first of a table is out of reach of all the others.
    bool clinchedFirst(std::span<const TeamIndex> order) const {
        return std::ranges::all_of(
            order.subspan(1), [this, &order](TeamIndex rival) { return outOfReach(order.front(), rival); });
    }
};

void markConference(ApplicationState& state, const ConferenceInfo& conference) {
    const Race race{state.StandingsTable, state.SeasonLength};
    const std::span<const TeamIndex> seeds = state.*conference.seeds;
    for (const TeamIndex team : seeds.first(PlayoffPlaces))
        if (race.clinchedPlayoffs(team, seeds.subspan(PlayoffPlaces)))
            state.ClinchMark[team] = "x";
    // A clinched division marks the conference's first seed, too, whichever division that team leads.
    for (const Division division : {conference.firstDivision, conference.secondDivision})
        if (const auto& order = state.*info(division).order; race.clinchedFirst(order))
            state.ClinchMark[order.front()] = state.ClinchMark[seeds.front()] = "y";
    if (race.clinchedFirst(seeds))
        state.ClinchMark[seeds.front()] = "z";
}

} // namespace

void markClinched(ApplicationState& state) {
    if (state.SeasonLength == SeasonEndedByHand)
        return;
    for (const ConferenceInfo& conference : Conferences)
        markConference(state, conference);
}

} // namespace iceline
