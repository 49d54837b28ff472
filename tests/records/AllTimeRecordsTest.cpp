#include "records/AllTimeRecords.h"

#include "support/TestLeague.h"

#include <gmock/gmock.h>

namespace iceline::test {

namespace {

using testing::HasSubstr;

TEST(AllTimeRecords, ANewLeagueShowsZerosOfTeamNoughtAndNoCoach) {
    TestLeague league;
    league.app.windows().use(WindowId::AllTimeRecords);
    const std::string page = league.page("AllTimeRecords.htm");
    EXPECT_THAT(page, HasSubstr("<link rel=\"stylesheet\" href=\"styles.css\""));
    EXPECT_THAT(
        page,
        HasSubstr("<tr><th><b>Goals</b></th><td><center><img src=\"./LogoMinis/BOS.gif\"></img></center></td>"
                  "<td>&nbsp;</td><td><center>0</center></tr>\r\n"));
    EXPECT_TRUE(page.ends_with("<tr><th><b>PP Chances</b></th><td><center>&nbsp;</center></td>"
                               "<td><center>&nbsp;</td></tr>\r\n"));
}

TEST(AllTimeRecords, EveryFigureStandsUnderItsOwnHeading) {
    TestLeague league;
    AllTimeLeagueRecords teams = initialLeagueRecords();
    for (int i = 0; i < 6; ++i)
        teams[i] = {TeamIndex(i + 1), 10 + i};
    CoachesLeagueRecords coaches;
    coaches.pairs[2] = {"Ann", 33};
    coaches.pairs[3] = {"Bob", 44};
    AllTimeGoalieRecords goalies;
    goalies[4] = {TeamIndex(23), "Al O'Neil", 2};
    const PartOfYear part = PartOfYear::Playoffs;
    league.files.files[paths::allTimeLeagueRecords(part)] = textOf("records", teams);
    league.files.files[paths::coachesLeagueRecords(part)] = textOf("records", coaches);
    league.files.files[paths::allTimeGoalieRecords(part)] = textOf("records", goalies);
    const auto& window =
        static_cast<AllTimeRecords&>(league.app.windows().use(WindowId::PlayoffAllTimeRecords));

    const std::string page = league.page("PlayoffAllTimeRecords.htm");
    const auto teamRow = [](const std::string& heading, const std::string& abbr, const std::string& value) {
        return "<tr><th><b>" + heading + "</b></th><td><center><img src=\"./LogoMinis/" + abbr +
               ".gif\"></img></center></td><td><center>&nbsp;" + value + "</td></tr>\r\n";
    };
    EXPECT_THAT(page, HasSubstr(teamRow("PIM", "DET", "13") + teamRow("Body Checks", "CHI", "12")));
    EXPECT_THAT(
        page,
        HasSubstr(
            "<tr><th><b>PIM</b></th><td><center>&nbsp;Bob</center></td><td><center>&nbsp;44</td></tr>\r\n"
            "<tr><th><b>Body Checks</b></th><td><center>&nbsp;Ann</center></td>"));
    EXPECT_THAT(
        page,
        HasSubstr("<td>&nbsp;Al O'Neil</td><td><center>2</center></tr></table>\r\n<br/><table border = 1>"));

    const auto shown = shownTeamRecords(window.content());
    EXPECT_EQ(shown[2].caption, "Body Checks in a Game");
    EXPECT_EQ(shown[2].value, "12");
    EXPECT_EQ(shownCoachRecords(window.content())[3].name, "Bob");
}

TEST(AllTimeRecords, OpeningTwiceLeavesThePageAlone) {
    TestLeague league;
    league.app.windows().use(WindowId::AllTimeRecords);
    league.app.windows().unloadAll();
    const int writes = league.files.writes;
    league.app.windows().use(WindowId::AllTimeRecords);
    EXPECT_EQ(league.files.writes, writes);
}

} // namespace

} // namespace iceline::test
