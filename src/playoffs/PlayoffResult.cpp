#include "playoffs/PlayoffResult.h"

#include "playoffs/Bracket.h"

namespace iceline {

namespace {

constexpr int SecondRound = 8;
constexpr int ThirdRound = 12;

bool isOpen(const PlayoffSeriesRecord& series) {
    return series.WinsA < WinsToTakeSeries && series.WinsB < WinsToTakeSeries;
}

void moveOn(PlayoffSeriesTable& table, int series, TeamIndex winner) {
    const auto next = nextSeries(series);
    if (!next)
        return;
    (series % 2 == 0 ? table[*next].TeamA : table[*next].TeamB) = winner;
}

} // namespace

std::optional<SeriesOfGame> seriesOfGame(const PlayoffSeriesTable& table, TeamIndex home, TeamIndex away) {
    for (int i = SeriesCount - 1; i >= 0; --i) {
        if (!isOpen(table[i]))
            continue;
        if (table[i].TeamA == home && table[i].TeamB == away)
            return SeriesOfGame{i, true};
        if (table[i].TeamA == away && table[i].TeamB == home)
            return SeriesOfGame{i, false};
    }
    return std::nullopt;
}

std::optional<int> nextSeries(int series) {
    if (series < SecondRound)
        return series / 2 + SecondRound;
    if (series < ThirdRound)
        return (series - SecondRound) / 2 + ThirdRound;
    return series < FinalSeries ? std::optional(FinalSeries) : std::nullopt;
}

void recordResult(PlayoffSeriesTable& table, const SeriesOfGame& game, int homeGoals, int awayGoals) {
    if (homeGoals == awayGoals)
        return;
    PlayoffSeriesRecord& series = table[game.series];
    const bool teamAWon = (homeGoals > awayGoals) == game.homeIsTeamA;
    int& wins = teamAWon ? series.WinsA : series.WinsB;
    if (++wins == WinsToTakeSeries)
        moveOn(table, game.series, teamAWon ? series.TeamA : series.TeamB);
}

} // namespace iceline
