#include "LeadersSupport.h"
#include "support/NumberedRecord.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

TEST(Fragments, RowsToTheLetter) {
    TestLeague league;
    setSkater(league, Montreal, 4, "Jan O'Neil", numberedRecord<SkaterStats>());
    setGoalie(league, Boston, 0, "Al Masque", numberedRecord<GoalieStats>());
    TeamRecord record = numberedRecord<TeamRecord>();
    record.HomePowerRanking = -1.5;
    league.setRecord(Montreal, PartOfYear::Season, record);

    publishRankings(league);

    EXPECT_EQ(league.page("Rankings/Normal2.php"),
              "<tr><td><center><b>1</b></center></td><td><center><img src=\"../LogoMinis/MTL.gif\"></center>"
              "</td><td>Jan O'Neil<td><center>15.5</center></td><td><center>2</center></td><td><center>4"
              "</center></td><td><center>6</center></td><td><center>7.5</center></td><td><center>12</center>"
              "</td><td><center>13</center></td><td><center>8</center></td><td><center>10.5</center></td>"
              "<td><center>11</center></td><td><center>1</center></td></tr>\r\n");
    EXPECT_EQ(
        league.page("Rankings/Goalies6.php"),
        "<tr><td><b>1</b></center></td><td><img src=\"../LogoMinis/BOS.gif\"></td></center><td>"
        "Al Masque<td><center>15.5</center></td><td><center>1</center></td><td><center>5</center></td>"
        "<td><center>6</center></td><td><center>7</center></td><td><center>9.5</center></td><td><center>"
        "3</center></td><td><center>10.5</center></td><td><center>8</center></td><td><center>2"
        "</center></td><td><center>4</center></td></tr>\r\n");
    EXPECT_EQ(league.page("Rankings/Teams2.php"),
              "<tr><td><center><b>1</b></center></td><td><center><img src=\"../LogoMinis/MTL.gif\"></img>"
              "</center></td><td><center>6</center></td><td><center>12.5</center></td><td><center>-1.5"
              "</center></td><td><center>36.5</center></td><td><center>4</center></td><td><center>5.5"
              "</center></td><td><center>1.17</center></td><td><center>1.33</center></td><td><center>54.5"
              "</center></td><td><center>72.5</center></td><td><center>46.5</center></td><td><center>48.5"
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

    struct Case {
        const char* fragment;
        const char* first;
        const char* second;
    };
    for (const Case& each : {
             Case{"Goalies0", "Leaky", "Tight"},
             Case{"Goalies1", "Tight", "Leaky"},
             Case{"Goalies4", "Leaky", "Tight"},
             Case{"Goalies15", "Tight", "Leaky"},
             Case{"Goalies11", "Tight", "Leaky"},
             Case{"Normal0", "Shooter", "Passer"},
             Case{"Normal11", "Passer", "Shooter"},
             Case{"Normal10", "Passer", "Shooter"},
             Case{"Normal21", "Shooter", "Passer"},
             Case{"Teams0", "BOS", "MTL"},  // natural order
             Case{"Teams1", "BOS", "MTL"},  // games
             Case{"Teams2", "MTL", "BOS"},  // points
             Case{"Teams13", "MTL", "BOS"}, // natural order turned round
             Case{"Teams14", "MTL", "BOS"},
             Case{"Teams15", "BOS", "MTL"},
         }) {
        const std::string text = league.page(std::string("Rankings/") + each.fragment + ".php");
        EXPECT_LT(text.find(each.first), text.find(each.second)) << each.fragment;
        EXPECT_THAT(text, HasSubstr(each.second)) << each.fragment;
    }
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
