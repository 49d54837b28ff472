#include "games/BoxScorePage.h"

#include "files/FileError.h"
#include "store/LeagueFiles.h"
#include "support/MemoryFiles.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

/// Figures that are all different, `by` more on one side than on the other.
TeamGameStats figures(int goals, int by) {
    const std::string mark = std::to_string(by);
    TeamGameStats stats{{25, 1, 4, 11, 16, 0, goals, 33, 44, 80, 57}, "", "", "", ""};
    for (int TeamFigures::*figure : {&TeamFigures::Shots, &TeamFigures::PPG, &TeamFigures::PPA,
                                     &TeamFigures::Penalties, &TeamFigures::PenM, &TeamFigures::FaceoffsWon,
                                     &TeamFigures::BodyChecks, &TeamFigures::PassAtt, &TeamFigures::PassComp})
        stats.*figure += by;
    stats.ShootingPct = "S" + mark;
    stats.FaceWinPct = "F" + mark;
    stats.PassAcc = "P" + mark;
    stats.AttackZoneText = "Z" + mark;
    return stats;
}

/// Boston wins 3 to 0 at New Jersey.
GameReport game() {
    GameReport report;
    report.home.team = NewJersey;
    report.away.team = Boston;
    report.home.stats = figures(0, 0);
    report.away.stats = figures(3, 2);
    for (GameSide* side : {&report.home, &report.away})
        for (GamePlayerRow& player : side->players)
            player.Name = EmptyRowName;
    report.away.players[0] = {"Ivo Stone", 1, 2, 3, 25, 4};
    report.home.players[24] = {"Kit Marsh", 0, 0, 0, 4, 12};
    report.FinalMark = "F/OT";
    report.Star = {{{Boston, "Ivo Stone"}, {NewJersey, "Kit Marsh"}, {Winnipeg, "Old Star"}}};
    report.goals = {{1, 61, 130, 0, 255, 255}};
    report.penalties = {{2, 60, 18, 24}, {3, 60, 18, 24}};
    return report;
}

std::vector<std::string> pageLines(const std::optional<std::string>& homeCoach = std::nullopt,
                                   const std::optional<std::string>& awayCoach = std::nullopt) {
    const GameReport report = game();
    return linesOf(boxScorePage({report, "x.htm", GameKind::Season, homeCoach, awayCoach}));
}

std::vector<std::string> slice(const std::vector<std::string>& lines, std::size_t first, std::size_t count) {
    return {lines.begin() + static_cast<std::ptrdiff_t>(first),
            lines.begin() + static_cast<std::ptrdiff_t>(first + count)};
}

const std::string RosterHead =
    "<tr><th><b>Name</b></th><th><b>G</b></th><th><b>A</b></th><th><b>Pts.</b></th>"
    "<th><b>SOG</b></th><th><b>PIM</b></th></tr>";
const std::string EmptyPlayerRow =
    "<tr><td>&nbsp;</td><td><center>&nbsp;</td><td><center>&nbsp;</td><td><center>&nbsp;</td>"
    "<td><center>&nbsp;</td><td><center>&nbsp;</center></td>";

TEST(BoxScorePage, NameReplacesWhatFollowsTheLastPoint) {
    EXPECT_EQ(boxScorePageName("game1.gs0"), "game1.htm");
    EXPECT_EQ(boxScorePageName("a.b.gs1"), "a.b.htm");
    EXPECT_EQ(boxScorePageName("game1"), "game1.htm");
    EXPECT_EQ(boxScorePageName("game1."), "game1.htm");
    EXPECT_EQ(boxScorePageName(".gs0"), "_.htm");
    EXPECT_EQ(boxScorePageName(""), "_.htm");
}

TEST(BoxScorePage, OpensWithTheAwayTeam) {
    const auto lines = pageLines();
    EXPECT_THAT(lines[0], StartsWith("<html><head><title>Rinkstar - Box Score: BOS 3 , NJ 0 </title>"
                                     "<link rel=\"stylesheet\" href=\"../styles.css\""));
    EXPECT_THAT(lines[2], HasSubstr("<a href=\"../index.htm\">"));
    EXPECT_THAT(
        slice(lines, 3, 5),
        ElementsAre("<br/><font face= arial><p><img src=\"../Headers/BoxScores.gif\"></img></p><br/><table>"
                    "<tr><td><table cellpadding =2 border = 1><tr><td colspan = 6><center>"
                    "<img src=\"../BigBanners/BOS.gif\"></img></center></td></tr>",
                    "<tr><td colspan = 6><center><font size = 4><b> 3 </b></font></center></td></tr>",
                    RosterHead,
                    "<tr><td>Ivo Stone</td><td><center> 1 </td><td><center> 2 </td><td><center> 3 </td>"
                    "<td><center> 25 </td><td><center> 4 </center></td></tr>",
                    EmptyPlayerRow));
}

TEST(BoxScorePage, CentreHoldsFinalMarkTeamTableAndStars) {
    const auto title = [](const std::string& away, const std::string& text, const std::string& home) {
        return "<tr><td><center>" + away + "</center></td><td><center><b>" + text +
               "</b></center></td><td><center>" + home + "</center></td></tr>";
    };
    const auto star = [](const std::string& place, const std::string& abbr, const std::string& name) {
        return "<tr><th>" + place + "</th><td><center><img src=\"../BannerMinis/" + abbr +
               ".gif\"></img></center></td><td>" + name + "</td></tr>";
    };
    EXPECT_THAT(
        slice(pageLines(), 31, 16),
        ElementsAre("</tr></table></td><td><table border = 1 align = center><tr><td colspan = 6><center><b>"
                    "<font size = 3>F/OT</font></b></center></td></tr>",
                    "<tr><th colspan = 3>Team Stats</th></tr>",
                    "<tr><td><center><img src=\"../BannerMinis/BOS.gif\"></img></center></td><td></td><td>"
                    "<center><img src=\"../BannerMinis/NJ.gif\"></img></center></td></tr>",
                    title(" 3 ", "Score", " 0 "), title(" 27 ", "SOG", " 25 "), title("S2", "S%", "S0"),
                    title(" 3  /  6 ", "Power Plays", " 1  /  4 "),
                    title(" 13  /  18 ", "Penalties", " 11  /  16 "), title(" 35 ", "Faceoffs Won", " 33 "),
                    title(" 46 ", "Body Checks", " 44 "), title("Z2", "Att. Zone", "Z0"),
                    title(" 59  /  82   (P2)", "Passing", " 57  /  80   (P0)") + "</table>",
                    "<table border = 1 align = center><tr><th colspan = 3>Three Star Awards</th></tr>",
                    star("First Star", "BOS", "Ivo Stone"), star("Second Star", "NJ", "Kit Marsh"),
                    star("Third Star", "WPG", "Old Star") + "</table></td>"));
}

TEST(BoxScorePage, EndsWithTheHomeTeamAndBothSummaries) {
    const auto lines = pageLines();
    EXPECT_THAT(slice(lines, 47, 3),
                ElementsAre("<td><table cellpadding = 2  border = 1><tr><td colspan = 6><center>"
                            "<img src=\"../BigBanners/NJ.gif\"></img></center></td></tr>",
                            "<tr><td colspan = 6><center><font size = 4><b> 0 </b></font></center></td></tr>",
                            RosterHead));
    EXPECT_THAT(lines[74], StartsWith("<tr><td>Kit Marsh</td>"));
    EXPECT_EQ(lines[75], "</table></td></tr></table>");
    EXPECT_EQ(lines[76], "<table border = 1 align = left><tr><th colspan = 5>Scoring Summary</th></tr>");
    EXPECT_EQ(lines[77],
              "<tr><th>Period</th><th>Time</th><th>Team</th><th>Goal/Assist</th><th>P/S</th></tr>");
    EXPECT_THAT(lines[78], HasSubstr("<td>Ivo Stone</td>"));
    EXPECT_THAT(lines[79], StartsWith("<tr><td>&nbsp;</td>"));
    EXPECT_THAT(slice(lines, 80, 3),
                ElementsAre("</table>",
                            "<table border = 1 align = right><tr><th colspan = 6>Penalty Summary</th></tr>",
                            "<tr><th>Period</th><th>Time</th><th>Team</th><th>Player</th><th>Penalty</th>"
                            "<th>Minutes</th></tr>"));
    EXPECT_THAT(slice(lines, 83, 2), testing::Each(HasSubstr("Boarding")));
    EXPECT_EQ(lines[85], "</tr></table><BR></center></body></html>");
    EXPECT_EQ(lines.size(), 86u);
}

TEST(BoxScorePage, ChosenCoachIsNamedBelowHisTeamsGoals) {
    const std::string smith =
        "<tr><td colspan = 6><center><font size = 4><b>Smith</b></font></center></td></tr>";
    EXPECT_EQ(pageLines(std::nullopt, "Smith")[5], smith);
    EXPECT_EQ(pageLines("Smith")[49], smith);
    EXPECT_THAT(pageLines(), Not(testing::Contains(smith)));
}

TEST(BoxScoreList, RowLeadsToThePage) {
    const GameReport report = game();
    EXPECT_EQ(
        boxScoreListRow({report, "a b.htm", GameKind::Playoff, {}, {}}, 112),
        "<tr><td><b> 112 </b></td><td><b>P</b></td><td><img src=\"./BannerMinis/BOS.gif\"><b><font size = 5> "
        "3 , "
        "<img src=\"./BannerMinis/NJ.gif\"> 0 </font><a href=\"./BoxScores/a b.htm\" > Box Score </b></a>"
        "</td></tr>\r\n");
}

class BoxScoreFiles : public testing::Test {
protected:
    BoxScoreFiles() {
        files.makeFolder("IcelineWebPages/BoxScores");
        files.files["IcelineWebPages/BoxScores.htm"] = "head";
        files.files["Overall Game Number.txt"] = "7\r\n";
        files.files["Last 10 Box.txt"] = "";
    }

    void write(const std::string& page, std::optional<GameKind> kind = GameKind::Exhibition) {
        writeBoxScore(files, {report, page, kind, std::nullopt, std::nullopt});
    }

    MemoryFiles files;
    GameReport report = game();
};

TEST_F(BoxScoreFiles, GameLeavesPageRowAndEntry) {
    write("one.htm");
    EXPECT_THAT(files.files["IcelineWebPages/BoxScores/one.htm"], StartsWith("<html>"));
    EXPECT_THAT(files.files["IcelineWebPages/BoxScores.htm"],
                StartsWith("head<tr><td><b> 7 </b></td><td><b>E</b></td>"));
    EXPECT_EQ(files.files["Last 10 Box.txt"], "11,0\r\n0,3\r\n\"one.htm\"\r\n");
}

TEST_F(BoxScoreFiles, GameWithoutAKindHasNoRow) {
    write("one.htm", std::nullopt);
    EXPECT_EQ(files.files["IcelineWebPages/BoxScores.htm"], "head");
    EXPECT_TRUE(files.isFile("IcelineWebPages/BoxScores/one.htm"));
    EXPECT_THAT(files.files["Last 10 Box.txt"], HasSubstr("one.htm"));
}

TEST_F(BoxScoreFiles, RecentGamesAreTheLastTenNewestFirst) {
    for (int number = 1; number <= 11; ++number)
        write("g" + std::to_string(number) + ".htm");
    const std::vector<RecentGame> games = readRecentGames(files);
    ASSERT_EQ(games.size(), 10u);
    EXPECT_EQ(games.front().Page, "g11.htm");
    EXPECT_EQ(games.back().Page, "g2.htm");
}

} // namespace
} // namespace iceline
