#include "playoffs/Bracket.h"

#include <bit>

namespace iceline {

namespace {

/// Places among a conference's seeds that meet in the first round, in the order of the series; the better one
/// is the first team.
constexpr std::array<std::array<int, 2>, 4> FirstRoundPairings{{{0, 7}, {3, 4}, {2, 5}, {1, 6}}};

/// The slot on a line, counted from 1: a round's slots stand midway between the two that lead to them.
BracketSlot slotOnLine(Conference conference, int line) {
    const int round = std::countr_zero(static_cast<unsigned>(line));
    const int slot = line >> (round + 1);
    const int series = firstSeriesOf(conference, round) + slot / 2;
    if (series == FinalSeries)
        return {round, series, conference == Conference::Wales ? SeriesTeam::A : SeriesTeam::B, 0};
    return {round, series, slot % 2 == 0 ? SeriesTeam::A : SeriesTeam::B,
            round == 0 ? FirstRoundPairings[slot / 2][slot % 2] : 0};
}

void seedConference(PlayoffSeriesTable& series, Conference conference,
                    const std::array<TeamIndex, 12>& seeds) {
    int number = firstSeriesOf(conference, 0);
    for (const auto& [better, worse] : FirstRoundPairings) {
        series[number].TeamA = seeds[better];
        series[number].TeamB = seeds[worse];
        ++number;
    }
}

} // namespace

int firstSeriesOf(Conference conference, int round) {
    static constexpr std::array<std::array<int, BracketRounds>, 2> First{
        {{0, 8, 12, FinalSeries}, {4, 10, 13, FinalSeries}}};
    return First[static_cast<std::size_t>(conference)][round];
}

std::array<BracketSlot, BracketLines> bracketSlots(Conference conference) {
    std::array<BracketSlot, BracketLines> slots;
    for (int line = 0; line < BracketLines; ++line)
        slots[line] = slotOnLine(conference, line + 1);
    return slots;
}

void seedFirstRound(PlayoffSeriesTable& series, const std::array<TeamIndex, 12>& walesSeeds,
                    const std::array<TeamIndex, 12>& campbellSeeds) {
    seedConference(series, Conference::Wales, walesSeeds);
    seedConference(series, Conference::Campbell, campbellSeeds);
}

TeamIndex winnerOf(const PlayoffSeriesRecord& series) {
    if (series.WinsA >= WinsToTakeSeries)
        return series.TeamA;
    return series.WinsB >= WinsToTakeSeries ? series.TeamB : BlankTeam;
}

} // namespace iceline
