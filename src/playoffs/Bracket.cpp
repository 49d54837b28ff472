#include "playoffs/Bracket.h"

#include "standings/Alignment.h"

#include <bit>

namespace iceline {

namespace {

/// The first series of the rounds after the first.
constexpr int SecondRound = 8;
constexpr int ConferenceFinals = 12;

/// Seeds that meet in the first round, in the order of the series; the better one is the first team.
constexpr std::array<std::array<int, 2>, 4> FirstRoundSeeds{{{1, 8}, {4, 5}, {3, 6}, {2, 7}}};

/// The slot on a line, counted from 1: a round's slots are midway between the two that lead to them.
BracketSlot slotOnLine(Conference conference, unsigned line) {
    const int round = std::countr_zero(line);
    const unsigned slot = line >> (round + 1);
    if (round == BracketRounds - 1)
        return {round, {FinalSeries, conference == Conference::Wales ? SeriesTeam::A : SeriesTeam::B}};
    const int number = static_cast<int>(slot / 2);
    return {round,
            {SeriesIndex(firstSeriesOf(conference, round).number() + number),
             slot % 2 == 0 ? SeriesTeam::A : SeriesTeam::B},
            round == 0 ? FirstRoundSeeds[slot / 2][slot % 2] : 0};
}

constexpr auto winsOf(SeriesTeam team) {
    return team == SeriesTeam::A ? &PlayoffSeriesRecord::WinsA : &PlayoffSeriesRecord::WinsB;
}

constexpr auto teamOf(SeriesTeam team) {
    return team == SeriesTeam::A ? &PlayoffSeriesRecord::TeamA : &PlayoffSeriesRecord::TeamB;
}

constexpr SeriesTeam otherTeam(SeriesTeam team) {
    return team == SeriesTeam::A ? SeriesTeam::B : SeriesTeam::A;
}

void moveWinnerOn(PlayoffSeriesTable& table, SeriesIndex series) {
    if (const auto next = placeOfWinner(series))
        table[next->series].*teamOf(next->team) = winnerOf(table[series]);
}

} // namespace

TeamIndex teamAt(const PlayoffSeriesTable& table, SeriesPlace place) {
    return table[place.series].*teamOf(place.team);
}

int winsAt(const PlayoffSeriesTable& table, SeriesPlace place) {
    return table[place.series].*winsOf(place.team);
}

TeamIndex winnerOf(const PlayoffSeriesRecord& series) {
    if (series.WinsA >= WinsToTakeSeries)
        return series.TeamA;
    return series.WinsB >= WinsToTakeSeries ? series.TeamB : BlankTeam;
}

std::optional<SeriesPlace> placeOfWinner(SeriesIndex series) {
    const int number = series.number();
    const SeriesTeam team = number % 2 == 0 ? SeriesTeam::A : SeriesTeam::B;
    if (number < SecondRound)
        return SeriesPlace{SeriesIndex(number / 2 + SecondRound), team};
    if (number < ConferenceFinals)
        return SeriesPlace{SeriesIndex((number - SecondRound) / 2 + ConferenceFinals), team};
    return series < FinalSeries ? std::optional(SeriesPlace{FinalSeries, team}) : std::nullopt;
}

SeriesIndex firstSeriesOf(Conference conference, int round) {
    const int seriesBefore[] = {0, SecondRound, ConferenceFinals, FinalSeries.number()};
    const int seriesOfConference = round == BracketRounds - 1 ? 0 : 4 >> round;
    return SeriesIndex(seriesBefore[round] + (conference == Conference::Wales ? 0 : seriesOfConference));
}

std::array<BracketSlot, BracketLines> bracketSlots(Conference conference) {
    std::array<BracketSlot, BracketLines> slots;
    for (unsigned line = 1; line <= BracketLines; ++line)
        slots[line - 1] = slotOnLine(conference, line);
    return slots;
}

void seedFirstRound(PlayoffSeriesTable& table, const ApplicationState& state) {
    for (const Conference conference : {Conference::Wales, Conference::Campbell}) {
        const ConferenceSeeds& seeds = state.*info(conference).seeds;
        for (const auto& [round, place, seed] : bracketSlots(conference))
            if (round == 0)
                table[place.series].*teamOf(place.team) = seeds[static_cast<std::size_t>(seed - 1)];
    }
}

std::optional<SeriesOfGame> seriesOfGame(const PlayoffSeriesTable& table, const GameTeams& teams) {
    std::optional<SeriesOfGame> found;
    for (const SeriesIndex number : AllSeries) {
        const PlayoffSeriesRecord& series = table[number];
        if (series.WinsA >= WinsToTakeSeries || series.WinsB >= WinsToTakeSeries)
            continue;
        if (series.TeamA == teams.home && series.TeamB == teams.away)
            found = SeriesOfGame{number, SeriesTeam::A};
        else if (series.TeamA == teams.away && series.TeamB == teams.home)
            found = SeriesOfGame{number, SeriesTeam::B};
    }
    return found;
}

void recordResult(PlayoffSeriesTable& table, const SeriesOfGame& game, const GameScore& score) {
    if (score.home == score.away)
        return;
    const SeriesTeam winner = score.home > score.away ? game.home : otherTeam(game.home);
    if (++(table[game.series].*winsOf(winner)) == WinsToTakeSeries)
        moveWinnerOn(table, game.series);
}

} // namespace iceline
