#include "players/PlayerPages.h"

#include "support/NumberedRecord.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

const std::string FrameTitled(const std::string& title) {
    return "<html><head><title>" + title +
           "</title><link rel=\"stylesheet\" href=\"../../styles.css\" type =\"Text/css\"></head>\r\n"
           "<body link = BLACK vlink = BLACK alink = RED><font face = arial size = 2><center>\r\n"
           "<p><a href=\"../../index.htm\"><b> Home</b></a> | ";
}

TEST(RosterPage, ListsPlayersUpToTheFirstEmptyRowOrName) {
    Roster roster;
    roster[0] = {"Al Masque", 1, 83, "G"};
    roster[1] = {"Jan \"/\" Stick", 9, 70, "F"};
    roster[2] = {"", 9, 70, "F"};
    roster[3] = {"Below The Gap", 9, 70, "F"};

    const std::string page = rosterPage(Montreal, roster);

    EXPECT_THAT(page, StartsWith(FrameTitled("Iceline - Montreal Canadiens Team Roster")));
    EXPECT_THAT(
        page, EndsWith("<br/><br/><img src=\"../../Headers/TeamRoster.gif\"></img></p><table border = 5><tr>"
                       "<td><img src=\"../../BigBanners/MTL.gif\"></img></td></tr></table><br><table><tr>"
                       "<td><img src=\"../../BigLogos/MTL.gif\"></img></td></tr></table>\r\n"
                       "<br/><br/><table border = 1><tr><th>Pos.</th><th>#</th><th>Player</th>"
                       "<th>Overall Rating</th></tr>\r\n"
                       "<td>G</td><td>1</td><td><a href=\"./Al Masque.htm\">Al Masque</a></td><td>83</td>"
                       "</tr>\r\n"
                       "<td>F</td><td>9</td><td><a href=\"./Jan ___ Stick.htm\">Jan \"/\" Stick</a></td>"
                       "<td>70</td></tr>\r\n"
                       "</table></center></body></html>\r\n"));

    roster[1] = {};
    EXPECT_THAT(rosterPage(Montreal, roster), Not(HasSubstr("Below The Gap")));
    EXPECT_EQ(listedPlayers(roster).size(), 1u);
}

TEST(PlayerPage, AGoaliesFiguresAreItemsOfTheirOwn) {
    auto stats = numberedRecord<GoalieStats>();
    stats.SvPct = 0.912;

    const std::string page =
        playerPage(PartOfYear::Season, Montreal, {"Al Masque", 1, 83, "G"}, stats, "Goalie1");

    EXPECT_THAT(page, StartsWith(FrameTitled("Iceline - Al Masque Player Profile")));
    EXPECT_THAT(
        page,
        EndsWith("<br/><br/><img src=\"../../Headers/PlayerProfiles.gif\"></img></p><table border = 5><tr>"
                 "<td colspan =2><img src=\"../../BigBanners/MTL.gif\"></img></td></tr><br>\r\n"
                 "<tr><td><img src=\"../../PlayerCards/Goalie1.gif\" width = 200 height = 200></img></td>\r\n"
                 "<td><img src=\"../../BigLogos/MTL.gif\"></img></td></tr></table>\r\n"
                 "<table border = 1><tr><th colspan = 3><font size = 5>Al Masque</font></th></tr><tr>"
                 "<th>#</th><th>Position</th><th>Overall Rating</th></tr><tr><td>1</td><td>G</td><td>83"
                 "</tr></table>\r\n"
                 "<br><table border=1><tr><th>GP</th><th>Pow.Rank</th><th>W</th><th>L</th><th>T</th>"
                 "<th>GAA</th><th>Sv%</th><th>SHO</th><th>SF</th><th>GA</th><th>A</th>"
                 "<th>Three Star Pts.</tr>\r\n"
                 "<tr><td> 1 </td><td> 15.5 </td><td> 5 </td><td> 6 </td><td> 7 </td><td> 9.5 </td>"
                 "<td> .912 </td><td> 3 </td><td> 8 </td><td> 2 </td><td> 4 </td><td> 16 </td></tr>\r\n"
                 "</table></center></body></html>\r\n"));
}

TEST(PlayerPage, ASkatersHasASecondHeadWithTheFiguresAGame) {
    auto stats = numberedRecord<SkaterStats>();
    stats.Rating = -0.5;

    const std::string page =
        playerPage(PartOfYear::Playoffs, Montreal, {"Jan Stick", 9, 70, "F"}, stats, "Jan Stick");

    EXPECT_THAT(page, StartsWith(FrameTitled("Iceline - Jan Stick Playoff Player Profile")));
    EXPECT_THAT(
        page,
        EndsWith("<br><table border=1><tr><th>GP</th><th>Pow.Rank</th><th>G</th><th>A</th><th>Pts.</th>"
                 "<th>PP</th><th>SH</th><th>SOG</th><th>S%</th><th>PIM</th><th>Three Star Pts.</th></tr>\r\n"
                 "<tr><td> 1 </td><td> -.5 </td><td> 2 </td><td> 4 </td><td> 6 </td><td> 12 </td>"
                 "<td> 13 </td><td> 8 </td><td> 10.5 </td><td> 11 </td><td> 16 </td></tr>\r\n"
                 "<tr><th></th><th></th><th>GPG</th><th>APG</th><th>PPG</th><th></th><th></th><th>SOGPG</th>"
                 "<th></th><th>PIMPG</th></tr><tr><td></td><td></td><td> 3.5 </td><td> 5.5 </td>"
                 "<td> 7.5 </td><td></td><td></td><td> 9.5 </td><td></td><td> 14.5 </td></tr>\r\n"
                 "</table></center></body></html>\r\n"));
}

} // namespace
} // namespace iceline
