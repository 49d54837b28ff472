#pragma once

#include "shell/ApplicationState.h"

#include <array>
#include <optional>

namespace iceline {

/// The series that decides the championship.
inline constexpr SeriesIndex FinalSeries{SeriesCount - 1};

/// Rounds of the play-offs: first round, second round, conference final, final.
inline constexpr int BracketRounds = 4;

/// The first or the second team of a series.
enum class SeriesTeam { A, B };

/// One team's place in a series.
struct SeriesPlace {
    SeriesIndex series;
    SeriesTeam team = SeriesTeam::A;

    friend bool operator==(const SeriesPlace&, const SeriesPlace&) = default;
};

TeamIndex teamAt(const PlayoffSeriesTable& table, SeriesPlace place);
int winsAt(const PlayoffSeriesTable& table, SeriesPlace place);

/// The winner of a series, BlankTeam while it is not decided. The final's winner is the champion.
TeamIndex winnerOf(const PlayoffSeriesRecord& series);

/// Where the winner of a series moves on to; nowhere from the final.
std::optional<SeriesPlace> placeOfWinner(SeriesIndex series);

/// The series in which a round of a conference begins; the final is both conferences' series of round 3.
SeriesIndex firstSeriesOf(Conference conference, int round);

/// The lines of the bracket, top to bottom, hold one team of one series each, 15 for each conference. The
/// final's two teams are on the middle lines of their conferences.
inline constexpr std::size_t BracketLines = 15;

/// What a line of the bracket holds.
struct BracketSlot {
    int round = 0; ///< 0 to 3
    SeriesPlace place;
    int seed = 0; ///< first round: 1 to 8
};

/// The slots of a conference's lines, top to bottom.
std::array<BracketSlot, BracketLines> bracketSlots(Conference conference);

/// Puts WalesSeeds and CampbellSeeds into the first round: 1 meets 8, 4 meets 5, 3 meets 6, 2 meets 7.
void seedFirstRound(PlayoffSeriesTable& table, const ApplicationState& state);

/// The teams of a game.
struct GameTeams {
    TeamIndex home;
    TeamIndex away;
};

/// The goals of a game.
struct GameScore {
    int home = 0;
    int away = 0;
};

/// The series that a game belongs to, and which of the series' teams is at home.
struct SeriesOfGame {
    SeriesIndex series;
    SeriesTeam home = SeriesTeam::A;

    friend bool operator==(const SeriesOfGame&, const SeriesOfGame&) = default;
};

/// The series that two teams have open with each other, in either order; the last one where several fit. None
/// when they have none, or theirs is decided.
std::optional<SeriesOfGame> seriesOfGame(const PlayoffSeriesTable& table, const GameTeams& teams);

/// Counts a game in its series and moves the winner of a series that is now decided on. A tie counts for
/// nobody.
void recordResult(PlayoffSeriesTable& table, const SeriesOfGame& game, const GameScore& score);

} // namespace iceline
