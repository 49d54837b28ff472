#pragma once

#include "league/TeamTable.h"
#include "store/LeagueFiles.h"

#include <array>

namespace iceline {

/// The lines of the bracket, top to bottom, hold one team of one series each, 15 for each conference. The
/// final's two teams stand on the middle lines of their conferences.
inline constexpr int BracketLines = 15;

inline constexpr int FinalSeries = 14;

/// Rounds of the play-offs: first round, second round, conference final, final.
inline constexpr int BracketRounds = 4;

/// The first or the second team of a series.
enum class SeriesTeam { A, B };

/// Where a team stands in the bracket.
struct BracketSlot {
    int round = 0; ///< 0 to 3
    int series = 0;
    SeriesTeam team = SeriesTeam::A;
    int place = 0; ///< first round: place among the conference's seeds, from 0
};

/// So many teams that are not yet known.
template <std::size_t Count>
constexpr std::array<TeamIndex, Count> blankTeams() {
    std::array<TeamIndex, Count> teams{};
    teams.fill(BlankTeam);
    return teams;
}

/// The series in which a round of a conference begins; the final is both conferences' series of round 3.
int firstSeriesOf(Conference conference, int round);

/// The slots of a conference's lines, top to bottom.
std::array<BracketSlot, BracketLines> bracketSlots(Conference conference);

/// Puts the seeds into the first round: 1 meets 8, 4 meets 5, 3 meets 6, 2 meets 7.
void seedFirstRound(PlayoffSeriesTable& series, const std::array<TeamIndex, 12>& walesSeeds,
                    const std::array<TeamIndex, 12>& campbellSeeds);

/// The winner of a series, BlankTeam while it is not decided. The final's winner is the champion.
TeamIndex winnerOf(const PlayoffSeriesRecord& series);

} // namespace iceline
