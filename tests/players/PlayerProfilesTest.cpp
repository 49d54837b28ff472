#include "players/PlayerProfiles.h"

#include "support/Test.h"
#include "support/TestLeague.h"

namespace iceline::test {

namespace {

std::string shown(const PlayerProfiles& window, std::string_view control) {
    for (const PlayerProfiles::Figure& figure : window.content().player->figures)
        if (figure.name == control)
            return figure.text;
    return "no such control";
}

class PlayerProfilesTest : public testing::Test {
protected:
    PlayerProfilesTest() {
        Roster roster;
        roster[0] = {"Gil Keeper", 31, 80, "G"};
        roster[1] = {"Ann First", 9, 70, "F"};
        roster[2] = {"", 0, 0, "F"};
        roster[3] = {"Di Hidden", 5, 73, "F"};
        league.setRoster(Boston, roster);
        GoalieStats goalie;
        goalie.Rating = 7.25;
        goalie.SvPct = 0.912;
        for (const PartOfYear part : {PartOfYear::Season, PartOfYear::Playoffs})
            league.setPlayerStats(Boston, part, 0, goalie);
    }

    PlayerProfiles& open(WindowId id) {
        auto& window = static_cast<PlayerProfiles&>(league.app.windows().use(id));
        window.PlayersTeamSelect = Boston;
        window.PlayersTeamSelect_Click();
        return window;
    }

    static void choose(PlayerProfiles& window, int row) {
        window.PlayersNameSelect = row;
        window.PlayersNameSelect_Click();
    }

    TestLeague league;
};

TEST_F(PlayerProfilesTest, ListsThePlayersAboveTheFirstRowWithoutAName) {
    const PlayerProfiles& window = open(WindowId::PlayerProfiles);
    ASSERT_EQ(window.content().roster.size(), 2U);
    EXPECT_EQ(window.content().roster[1].Name, "Ann First");
    EXPECT_FALSE(window.content().player);
}

TEST_F(PlayerProfilesTest, ShowsATenthOfAGoaliesRatingInTheSeasonAlone) {
    PlayerProfiles& season = open(WindowId::PlayerProfiles);
    choose(season, 0);
    EXPECT_EQ(shown(season, "GoaliePowRanking"), "0.725");
    EXPECT_EQ(shown(season, "GoalieSavePct"), "0.912");
    PlayerProfiles& playoffs = open(WindowId::PlayoffPlayerProfiles);
    choose(playoffs, 0);
    EXPECT_EQ(shown(playoffs, "GoaliePowRanking"), "7.25");
}

TEST_F(PlayerProfilesTest, ShowsAPlayersCardOrADefaultOne) {
    PlayerProfiles& window = open(WindowId::PlayerProfiles);
    choose(window, 0);
    EXPECT_EQ(window.content().player->card, "IcelineWebPages/PlayerCards/Goalie1.gif");
    league.platform.randomNumber = 0.99;
    choose(window, 1);
    EXPECT_EQ(window.content().player->card, "IcelineWebPages/PlayerCards/Skater2.gif");
    league.platform.randomNumber = 0.49;
    choose(window, 1);
    EXPECT_EQ(window.content().player->card, "IcelineWebPages/PlayerCards/Skater1.gif");
    league.files.makeFolder("IcelineWebPages/PlayerCards");
    league.files.files["IcelineWebPages/PlayerCards/Ann First.gif"] = "GIF";
    choose(window, 1);
    EXPECT_EQ(window.content().player->card, "IcelineWebPages/PlayerCards/Ann First.gif");
}

} // namespace

} // namespace iceline::test
