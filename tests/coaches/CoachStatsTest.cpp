#include "coaches/CoachStats.h"

#include "support/NumberedRecord.h"
#include "support/Test.h"
#include "support/TestLeague.h"

namespace iceline::test {

namespace {

TeamRecord recordOf(int games, int points) {
    auto record = numberedRecord<TeamRecord>();
    record.GP = record.GameCount = games;
    record.Points = points;
    return record;
}

class CoachStatsTest : public testing::Test {
protected:
    CoachStatsTest() {
        league.addCoach("Ann", recordOf(3, 4));
        league.addCoach("Bob", recordOf(3, 4));
        league.addCoach("Cy", recordOf(2, 1));
        league.addCoach("New", recordOf(0, 0));
    }

    CoachStats& open() { return static_cast<CoachStats&>(league.app.windows().use(WindowId::CoachStats)); }

    static std::vector<std::string> ranking(const CoachStats& window) {
        std::vector<std::string> names;
        for (const LeaderLine& line : window.content().ranking.lines)
            names.push_back(std::to_string(line.number) + line.name);
        return names;
    }

    TestLeague league;
};

TEST_F(CoachStatsTest, RanksThoseWhoHaveGames) {
    CoachStats& window = open();
    EXPECT_THAT(ranking(window), ElementsAre("1Ann", "2Bob", "3Cy"));
    window.tmLeadersCol_Click(2);
    EXPECT_THAT(ranking(window), ElementsAre("1Cy", "2Ann", "3Bob"))
        << "of equal points the earlier in the list comes first in both directions";
    window.tmLeadersCol_Click(0);
    EXPECT_THAT(ranking(window), ElementsAre("1Cy", "2Bob", "3Ann"));
    EXPECT_EQ(window.content().ranking.lines[0].figures[3], "3.5") << "goals a game";
}

TEST_F(CoachStatsTest, TheTableOfAllCoachesHasThoseWithoutGamesToo) {
    league.app.state.ShowWindows = false;
    open();
    const std::string page = league.page("CoachingStats.htm");
    EXPECT_THAT(page, HasSubstr("<img src='Headers/CoachingStats.gif'></img>"));
    EXPECT_THAT(
        page, HasSubstr("<tr><td><a href=\"./CStats/Ann.htm\" ><b>Ann</b></a></td><td><center>3</center></td>"
                        "<td><center>1</center></td><td><center>2</center></td><td><center>3</center></td>"
                        "<td><center>5.5</center></td><td><center>12.5</center></td>"
                        "<td><center>25.5</center></td><td><center>36.5</center></td>"
                        "<td><center>2.33</center></td><td><center>2.67</center></td>"
                        "<td><center>54.5</center></td><td><center>72.5</center></td>"
                        "<td><center>46.5</center></td><td><center>48.5</center></td>\r\n"));
    EXPECT_THAT(page,
                HasSubstr("<tr><th><b>Coach</b></th><th><b>GP</b></th><th><b>W</b></th><th><b>L</b></th>"
                          "<th><b>T</b></th><th><b>Win%</b></th><th><b>P Rank</b></th>"));
    EXPECT_THAT(page, HasSubstr("./CStats/New.htm"));
    EXPECT_TRUE(page.ends_with("</center></td>\r\n</tr></table></font></center></body></html>\r\n"));
    EXPECT_FALSE(league.files.isFile("IcelineWebPages/CStats/Ann.htm"));
}

TEST_F(CoachStatsTest, EveryChoiceOfACoachWritesHisPage) {
    CoachStats& window = open();
    window.TeamSelect_Click();
    EXPECT_FALSE(window.content().coach);
    league.files.files["Coaches/Bob/Last 10 Games.txt"] = "\"W\"\r\n\"L\"\r\n\"W\"\r\n";
    bool shownBeforeThePage = false;
    window.onChange = [&] {
        shownBeforeThePage = window.content().coach && !league.files.isFile("IcelineWebPages/CStats/Bob.htm");
    };
    window.TeamSelect = 1;
    window.TeamSelect_Click();
    EXPECT_TRUE(shownBeforeThePage);
    EXPECT_EQ(window.CoachName(), "Bob");
    EXPECT_EQ(window.content().coach->lastTen.wins, 2);
    const std::string page = league.page("CStats/Bob.htm");
    EXPECT_THAT(page,
                HasSubstr("<table border = 1><tr><th><font size = 7>Bob</font></th></tr></table><BR>\r\n"
                          "<table border = 1><tr><th><b>W - L - T</b></th>"));
}

TEST(CoachStats, ALeagueWithoutCoachesHasAnEmptyTable) {
    TestLeague league;
    league.app.state.ShowWindows = false;
    league.app.windows().use(WindowId::CoachStats);
    EXPECT_TRUE(league.page("CoachingStats.htm")
                    .ends_with("</tr>\r\n</tr></table></font></center></body></html>\r\n"));
}

} // namespace

} // namespace iceline::test
