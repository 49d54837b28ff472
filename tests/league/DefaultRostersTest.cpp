#include "league/DefaultRosters.h"

#include "league/TeamTable.h"
#include "store/PlayerFiles.h"
#include "support/Test.h"

#include <algorithm>
#include <set>
#include <string>

namespace iceline {
namespace {

using namespace test;

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

TEST(DefaultRosters, AreWholeTextsOfGoaliesForwardsDefencemenAndEmptyRows) {
    for (const TeamIndex row : AllBuiltIn) {
        SCOPED_TRACE(TeamAbbr[row]);
        const std::string text(defaultRoster(row));
        EXPECT_EQ(std::ranges::count(text, '\n'), RosterRows - 1);
        EXPECT_EQ(std::ranges::count(text, '\r'), RosterRows - 1);
        EXPECT_THAT(text, Not(EndsWith("\n")));
        EXPECT_THAT(positions(builtIn(row)), testing::MatchesRegex("GGG?F+D+-+"));
        std::set<int> numbers;
        for (const RosterRow& player : builtIn(row)) {
            if (player.isEmpty())
                continue;
            EXPECT_TRUE(numbers.insert(player.Number).second) << player.Number;
            EXPECT_THAT(player.Rating, AllOf(Ge(40), Le(99))) << player.Name;
        }
    }
}

TEST(DefaultRosters, NoPlayerOfTheLeagueStandsInTwoTeams) {
    std::set<std::string> names;
    for (const TeamIndex team : AllLeagueTeams)
        for (const RosterRow& player : builtIn(team))
            EXPECT_TRUE(player.isEmpty() || names.insert(player.Name).second) << player.Name;
    EXPECT_THAT(names, Contains("J.-P. O'Neil"));
}

TEST(DefaultRosters, RowsOutsideTheBuiltInOnesAreRefused) {
    EXPECT_THROW(defaultRoster(TeamIndex(-1)), std::out_of_range);
    EXPECT_THROW(defaultRoster(TeamIndex(AllTeams.number() + 1)), std::out_of_range);
}

} // namespace
} // namespace iceline
