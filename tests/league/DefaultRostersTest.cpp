#include "league/DefaultRosters.h"

#include "league/TeamTable.h"
#include "store/PlayerFiles.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>

namespace iceline {
namespace {

constexpr FirstRows<TeamIndex> AllBuiltIn{AllTeams.number() + 1};

Roster builtIn(TeamIndex row) {
    return rosterFromText(std::string(TeamAbbr[row]), defaultRoster(row));
}

std::string positions(const Roster& roster) {
    std::string positions;
    for (const RosterRow& row : roster)
        positions += row.isEmpty() ? "-" : row.Position;
    return positions;
}

TEST(DefaultRosters, EveryRowIsATextOf25LinesWithoutALastLineEnd) {
    for (const TeamIndex row : AllBuiltIn) {
        const std::string text(defaultRoster(row));
        EXPECT_EQ(std::ranges::count(text, '\n'), RosterRows - 1) << TeamAbbr[row];
        EXPECT_EQ(std::ranges::count(text, '\r'), RosterRows - 1) << TeamAbbr[row];
        EXPECT_THAT(text, testing::Not(testing::EndsWith("\n"))) << TeamAbbr[row];
    }
}

TEST(DefaultRosters, GoaliesComeFirstThenForwardsDefencemenAndEmptyRows) {
    for (const TeamIndex row : AllBuiltIn)
        EXPECT_THAT(positions(builtIn(row)), testing::MatchesRegex("GGG?F+D+-+")) << TeamAbbr[row];
}

TEST(DefaultRosters, NumbersAreUniqueInATeamAndRatingsInTheGamesRange) {
    for (const TeamIndex row : AllBuiltIn) {
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
    for (const TeamIndex team : AllLeagueTeams)
        for (const RosterRow& player : builtIn(team))
            EXPECT_TRUE(player.isEmpty() || names.insert(player.Name).second) << player.Name;
    EXPECT_THAT(names, testing::Contains("J.-P. O'Neil"));
}

TEST(DefaultRosters, RowsOutsideTheBuiltInOnesAreRefused) {
    EXPECT_THROW(defaultRoster(TeamIndex(-1)), std::out_of_range);
    EXPECT_THROW(defaultRoster(TeamIndex(AllTeams.number() + 1)), std::out_of_range);
}

} // namespace
} // namespace iceline
