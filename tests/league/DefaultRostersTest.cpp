#include "league/DefaultRosters.h"

#include "league/TeamTable.h"
#include "store/PlayerFiles.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>

namespace iceline {
namespace {

Roster builtIn(int row) {
    return rosterFromText(std::string(TeamAbbr[row]), defaultRoster(row));
}

std::string positions(const Roster& roster) {
    std::string positions;
    for (const RosterRow& row : roster)
        positions += row.isEmpty() ? "-" : row.Position;
    return positions;
}

TEST(DefaultRosters, EveryRowIsATextOf25LinesWithoutALastLineEnd) {
    for (int row = 0; row <= AllTeams; ++row) {
        const std::string text(defaultRoster(row));
        EXPECT_EQ(std::ranges::count(text, '\n'), RosterRows - 1) << TeamAbbr[row];
        EXPECT_EQ(std::ranges::count(text, '\r'), RosterRows - 1) << TeamAbbr[row];
        EXPECT_THAT(text, testing::Not(testing::EndsWith("\n"))) << TeamAbbr[row];
    }
}

TEST(DefaultRosters, GoaliesComeFirstThenForwardsDefencemenAndEmptyRows) {
    for (int row = 0; row <= AllTeams; ++row)
        EXPECT_THAT(positions(builtIn(row)), testing::MatchesRegex("GGG?F+D+-+")) << TeamAbbr[row];
}

TEST(DefaultRosters, NumbersAreUniqueInATeamAndRatingsInTheGamesRange) {
    for (int row = 0; row <= AllTeams; ++row) {
        std::set<int> numbers;
        for (const RosterRow& player : builtIn(row)) {
            if (player.isEmpty())
                continue;
            EXPECT_TRUE(numbers.insert(player.Number).second) << TeamAbbr[row] << ' ' << player.Number;
            EXPECT_THAT(player.Rating, testing::AllOf(testing::Ge(40), testing::Le(99))) << player.Name;
        }
    }
}

TEST(DefaultRosters, NoPlayerOfTheLeagueStandsInTwoTeams) {
    std::set<std::string> names;
    for (int team = 0; team < LeagueTeams; ++team)
        for (const RosterRow& player : builtIn(team))
            EXPECT_TRUE(player.isEmpty() || names.insert(player.Name).second) << player.Name;
    EXPECT_THAT(names, testing::Contains("J.-P. O'Neil"));
}

TEST(DefaultRosters, RowsOutsideTheBuiltInOnesAreRefused) {
    EXPECT_THROW(defaultRoster(-1), std::out_of_range);
    EXPECT_THROW(defaultRoster(AllTeams + 1), std::out_of_range);
}

} // namespace
} // namespace iceline
