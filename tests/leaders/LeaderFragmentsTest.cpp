#include "LeadersSupport.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

TEST(PlayerFragment, RowToTheLetter) {
    TestLeague league;
    SkaterStats stats{.GP = 12, .G = 3, .A = 4, .Pts = 7, .SOG = 30, .PIM = 8, .PPG = 2, .SHG = 1};
    stats.PtsPG = 0.58;
    stats.ShotPct = 10;
    stats.Rating = 1.125;
    setSkater(league, Montreal, 4, "Jan O'Neil", stats);

    publishRankings(league);

    EXPECT_EQ(league.page("Rankings/Normal2.php"),
              "<tr><td><center><b>1</b></center></td><td><center><img src=\"../LogoMinis/MTL.gif\"></center>"
              "</td><td>Jan O'Neil<td><center>1.125</center></td><td><center>3</center></td><td><center>4"
              "</center></td><td><center>7</center></td><td><center>0.58</center></td><td><center>2</center>"
              "</td><td><center>1</center></td><td><center>30</center></td><td><center>10</center></td>"
              "<td><center>8</center></td><td><center>12</center></td></tr>\r\n");
}

TEST(GoalieFragment, RowToTheLetter) {
    TestLeague league;
    GoalieStats stats{.GP = 10, .GA = 25, .SO = 4, .A = 2, .GW = 6, .GL = 3, .GT = 1, .SA = 250};
    stats.GAA = 2.5;
    stats.SvPct = 0.9;
    stats.Rating = 0.75;
    setGoalie(league, Boston, 0, "Al Masque", stats);

    publishRankings(league);

    EXPECT_EQ(
        league.page("Rankings/Goalies6.php"),
        "<tr><td><b>1</b></center></td><td><img src=\"../LogoMinis/BOS.gif\"></td></center><td>"
        "Al Masque<td><center>0.75</center></td><td><center>10</center></td><td><center>6</center></td>"
        "<td><center>3</center></td><td><center>1</center></td><td><center>2.5</center></td><td><center>"
        "4</center></td><td><center>0.9</center></td><td><center>250</center></td><td><center>25"
        "</center></td><td><center>2</center></td></tr>\r\n");
}

TEST(TeamFragment, RowToTheLetter) {
    TestLeague league;
    TeamRecord record = teamRecord(8, 15, 30, 20);
    record.WinPercent = 0.875;
    record.PowerRanking = 21.37;
    record.HomePowerRanking = -1.5;
    record.AwayPowerRanking = 20;
    record.PPPct = 33.3;
    record.PKPct = 80;
    record.SOGPG = 30.5;
    record.SOGAPG = 25.1;
    league.setRecord(Montreal, PartOfYear::Season, record);

    publishRankings(league);

    EXPECT_EQ(league.page("Rankings/Teams2.php"),
              "<tr><td><center><b>1</b></center></td><td><center><img src=\"../LogoMinis/MTL.gif\"></img>"
              "</center></td><td><center>8</center></td><td><center>21.37</center></td><td><center>-1.5"
              "</center></td><td><center>20</center></td><td><center>15</center></td><td><center>0.875"
              "</center></td><td><center>3.75</center></td><td><center>2.5</center></td><td><center>33.3"
              "</center></td><td><center>80</center></td><td><center>30.5</center></td><td><center>25.1"
              "</center></td></tr>\r\n");
}

TEST(StarFragment, RowToTheLetterInBothOrders) {
    TestLeague league;
    setSkater(league, Boston, 4, "Most", {.StarPoints = 15});
    setGoalie(league, Montreal, 0, "Fewest", {.StarPoints = 5});

    publishRankings(league);

    const auto most = linesOf(league.page("Rankings/Star1.php"));
    EXPECT_THAT(most, ElementsAre("<tr><td><center><b>1</b></center></td><td><center><img "
                                  "src=\"../LogoMinis/BOS.gif\"></img></center></td><td><center>Most</td>"
                                  "<td><center>15</center></td></tr>",
                                  HasSubstr("<b>2</b>")));
    const auto fewest = linesOf(league.page("Rankings/Star0.php"));
    EXPECT_THAT(fewest, ElementsAre(HasSubstr("Fewest"), HasSubstr("Most")));
}

/// The order of two teams' rows in a fragment, by a text that one row of each holds.
std::string orderIn(TestLeague& league, const std::string& fragment, const std::string& one,
                    const std::string& other) {
    const std::string text = league.page(fragment);
    const auto places = std::pair(text.find(one), text.find(other));
    EXPECT_TRUE(places.first != std::string::npos && places.second != std::string::npos) << text;
    return places.first < places.second ? one : other;
}

TEST(Fragments, AreNumberedByColumnHighestFirstThenLowestFirst) {
    TestLeague league;
    GoalieStats leaky{.GP = 5, .GW = 1};
    leaky.GAA = 4;
    GoalieStats tight{.GP = 4, .GW = 2};
    tight.GAA = 1.5;
    setGoalie(league, Boston, 0, "Leaky", leaky);
    setGoalie(league, Montreal, 0, "Tight", tight);
    setSkater(league, Boston, 5, "Shooter", {.GP = 1, .G = 2, .PPG = 0});
    setSkater(league, Montreal, 5, "Passer", {.GP = 1, .G = 1, .PPG = 1});
    league.setRecord(Boston, PartOfYear::Season, teamRecord(5, 2));
    league.setRecord(Montreal, PartOfYear::Season, teamRecord(4, 9));

    publishRankings(league);

    const auto goalieFirst = [&](const std::string& number) {
        return orderIn(league, "Rankings/Goalies" + number + ".php", "Leaky", "Tight");
    };
    EXPECT_EQ(goalieFirst("0"), "Leaky");
    EXPECT_EQ(goalieFirst("1"), "Tight");
    EXPECT_EQ(goalieFirst("4"), "Leaky");
    EXPECT_EQ(goalieFirst("15"), "Tight");
    EXPECT_EQ(goalieFirst("11"), "Tight");
    const auto skaterFirst = [&](const std::string& number) {
        return orderIn(league, "Rankings/Normal" + number + ".php", "Shooter", "Passer");
    };
    EXPECT_EQ(skaterFirst("0"), "Shooter");
    EXPECT_EQ(skaterFirst("11"), "Passer");
    EXPECT_EQ(skaterFirst("10"), "Passer");
    EXPECT_EQ(skaterFirst("21"), "Shooter");
    const auto teamFirst = [&](const std::string& number) {
        return orderIn(league, "Rankings/Teams" + number + ".php", "BOS", "MTL");
    };
    EXPECT_EQ(teamFirst("0"), "BOS");  // natural order
    EXPECT_EQ(teamFirst("1"), "BOS");  // games
    EXPECT_EQ(teamFirst("2"), "MTL");  // points
    EXPECT_EQ(teamFirst("13"), "MTL"); // natural order turned round
    EXPECT_EQ(teamFirst("14"), "MTL");
    EXPECT_EQ(teamFirst("15"), "BOS");
}

TEST(Fragments, EveryOrderHasAllRowsAndEmptyTablesGiveEmptyFiles) {
    TestLeague league;
    for (int row = 2; row < 25; ++row)
        setSkater(league, Boston, row, "Skater", {.GP = 1, .Pts = row % 5});

    publishRankings(league);

    EXPECT_THAT(league.files.filesIn("IcelineWebPages/Rankings"), SizeIs(22 + 22 + 24 + 2));
    EXPECT_THAT(league.files.filesIn("IcelineWebPages/PlayoffRankings"), SizeIs(0));
    for (int number = 0; number < 22; ++number) {
        EXPECT_THAT(linesOf(league.page("Rankings/Normal" + std::to_string(number) + ".php")), SizeIs(23));
        EXPECT_EQ(league.page("Rankings/Goalies" + std::to_string(number) + ".php"), "");
    }
    for (int number = 0; number < 24; ++number)
        EXPECT_EQ(league.page("Rankings/Teams" + std::to_string(number) + ".php"), "");
}

TEST(Fragments, ThePlayoffsHaveTheirOwnFilesAndFigures) {
    TestLeague league;
    setSkater(league, Boston, 5, "Clutch", {.GP = 80, .Pts = 1});
    league.setPlayerStats(Boston, PartOfYear::Playoffs, 5, SkaterStats{.GP = 4, .Pts = 9});

    publishRankings(league, PartOfYear::Playoffs);

    EXPECT_THAT(league.page("PlayoffRankings/Normal2.php"), HasSubstr("<center>9</center>"));
    EXPECT_THAT(league.files.filesIn("IcelineWebPages/PlayoffRankings"), SizeIs(70));
    EXPECT_TRUE(league.files.isFile("IcelineWebPages/Playoffs.htm"));
    EXPECT_FALSE(league.files.isFile("IcelineWebPages/index.htm"));
}

} // namespace
} // namespace iceline
