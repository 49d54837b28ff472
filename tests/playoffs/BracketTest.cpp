#include "playoffs/Bracket.h"

#include "standings/StandingsSupport.h"

#include <gmock/gmock.h>

#include <numeric>

namespace iceline::test {
namespace {

/// The lines of a conference's bracket: round, series and side, and in the first round the seed.
std::vector<std::string> lines(Conference conference) {
    std::vector<std::string> lines;
    for (const BracketSlot& slot : bracketSlots(conference)) {
        std::string line = std::to_string(slot.round) + ":" + std::to_string(slot.series) +
                           (slot.team == SeriesTeam::A ? "A" : "B");
        if (slot.round == 0)
            line += " seed " + std::to_string(slot.place + 1);
        lines.push_back(line);
    }
    return lines;
}

TEST(Bracket, LinesOfBothConferences) {
    EXPECT_THAT(lines(Conference::Wales),
                testing::ElementsAre("0:0A seed 1", "1:8A", "0:0B seed 8", "2:12A", "0:1A seed 4", "1:8B",
                                     "0:1B seed 5", "3:14A", "0:2A seed 3", "1:9A", "0:2B seed 6", "2:12B",
                                     "0:3A seed 2", "1:9B", "0:3B seed 7"));
    EXPECT_THAT(lines(Conference::Campbell),
                testing::ElementsAre("0:4A seed 1", "1:10A", "0:4B seed 8", "2:13A", "0:5A seed 4", "1:10B",
                                     "0:5B seed 5", "3:14B", "0:6A seed 3", "1:11A", "0:6B seed 6", "2:13B",
                                     "0:7A seed 2", "1:11B", "0:7B seed 7"));
}

TEST(Bracket, BetterSeedsAreTheFirstTeamsOfTheFirstRound) {
    std::array<TeamIndex, 12> wales{};
    std::iota(wales.begin(), wales.end(), TeamIndex(0));
    std::array<TeamIndex, 12> campbell{};
    std::iota(campbell.begin(), campbell.end(), TeamIndex(12));
    PlayoffSeriesTable series;
    seedFirstRound(series, wales, campbell);
    std::vector<std::pair<int, int>> pairs;
    for (const PlayoffSeriesRecord& record : series)
        pairs.emplace_back(record.TeamA.number(), record.TeamB.number());
    pairs.resize(9);
    EXPECT_THAT(pairs,
                testing::ElementsAre(std::pair(0, 7), std::pair(3, 4), std::pair(2, 5), std::pair(1, 6),
                                     std::pair(12, 19), std::pair(15, 16), std::pair(14, 17),
                                     std::pair(13, 18), std::pair(BlankTeam.number(), BlankTeam.number())));
}

TEST(Bracket, FourWinsDecideASeries) {
    PlayoffSeriesRecord series{3, 3, team("BOS"), team("EDM")};
    EXPECT_EQ(winnerOf(series), BlankTeam);
    series.WinsB = 4;
    EXPECT_EQ(winnerOf(series), team("EDM"));
    EXPECT_EQ(winnerOf({4, 3, team("BOS"), team("EDM")}), team("BOS"));
}

} // namespace
} // namespace iceline::test
