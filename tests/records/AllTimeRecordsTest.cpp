#include "records/AllTimeRecords.h"

#include "page/PageText.h"
#include "support/Test.h"
#include "support/TestLeague.h"

namespace iceline::test {

namespace {

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

/// Records that all differ.
AllTimeRecords::Content differentRecords() {
    AllTimeRecords::Content content;
    for (std::size_t i = 0; i < content.players.size(); ++i)
        content.players[i] = {TeamIndex(static_cast<int>(i)), "P" + std::to_string(i), static_cast<int>(i)};
    for (std::size_t i = 0; i < content.goalies.size(); ++i)
        content.goalies[i] = {TeamIndex(static_cast<int>(7 + i)), "K" + std::to_string(i),
                              static_cast<int>(10 + i)};
    for (std::size_t i = 0; i < content.teams.size(); ++i) {
        content.teams[i] = {TeamIndex(static_cast<int>(10 + i)), static_cast<int>(20 + i)};
        content.coaches.pairs[i] = {"C" + std::to_string(i), 40.0 + static_cast<double>(i)};
    }
    return content;
}

TEST(AllTimeRecords, EveryFigureIsUnderItsHeadingOnThePage) {
    const std::string page = allTimeRecordsPage(differentRecords());
    std::string expected =
        "<table border = 1><tr><th colspan = 4><b>Player Records in a Game</b></th></tr>\r\n";
    const auto addPlayer = [&expected](const std::string& heading, const std::string& abbr,
                                       const std::string& name, const std::string& value) {
        expected += "<tr><th><b>" + heading + "</b></th><td><center><img src=\"./LogoMinis/" + abbr +
                    ".gif\"></img></center></td><td>&nbsp;" + name + "</td><td><center>" + value +
                    "</center></tr>";
    };
    const auto addTeam = [&expected](const std::string& heading, const std::string& abbr,
                                     const std::string& value) {
        expected += "<tr><th><b>" + heading + "</b></th><td><center><img src=\"./LogoMinis/" + abbr +
                    ".gif\"></img></center></td><td><center>&nbsp;" + value + "</td></tr>\r\n";
    };
    const auto addCoach = [&expected](const std::string& heading, const std::string& name,
                                      const std::string& value) {
        expected += "<tr><th><b>" + heading + "</b></th><td><center>&nbsp;" + name +
                    "</center></td><td><center>&nbsp;" + value + "</td></tr>\r\n";
    };
    const char* headings[] = {"Goals", "Assists", "Points", "PP Goals", "SH Goals", "SOG", "PIM"};
    const char* teams[] = {"BOS", "BUF", "CGY", "CHI", "DET", "EDM", "HFD"};
    for (std::size_t i = 0; i < std::size(headings); ++i) {
        addPlayer(headings[i], teams[i], "P" + std::to_string(i), std::to_string(i));
        expected += "\r\n";
    }
    expected +=
        "</table><br/><table border = 1><tr><th colspan = 4><b>Goalie Records in a Game</b></th></tr>\r\n";
    addPlayer("Saves", "LI", "K0", "10");
    expected += "\r\n";
    addPlayer("SOG/Shutout", "LA", "K1", "11");
    expected += "\r\n";
    addPlayer("Goals Allowed", "MIN", "K2", "12");
    expected += "\r\n";
    addPlayer("SOG Faced", "MTL", "K3", "13");
    expected += "\r\n";
    addPlayer("Assists", "NJ", "K4", "14");
    expected +=
        "</table>\r\n<br/><table border = 1><tr><th colspan = 3><b>Team Records in a Game</b></th></tr>\r\n";
    addTeam("Goals", "MTL", "20");
    addTeam("SOG", "NJ", "21");
    addTeam("PIM", "OTA", "23");
    addTeam("Body Checks", "NYR", "22");
    addTeam("PP Goals", "PHI", "24");
    addTeam("PP Chances", "PIT", "25");
    expected += "<br/><table border = 1><tr><th colspan = 3><b>Coaches' Records in a Game</b></th></tr>\r\n";
    addCoach("Goals", "C0", "40");
    addCoach("SOG", "C1", "41");
    addCoach("PIM", "C3", "43");
    addCoach("Body Checks", "C2", "42");
    addCoach("PP Goals", "C4", "44");
    addCoach("PP Chances", "C5", "45");
    EXPECT_THAT(page, testing::EndsWith("<br/><br/>" + expected));
}

TEST(AllTimeRecords, EveryFigureIsUnderItsCaptionInTheWindow) {
    const auto sections = recordSections(differentRecords());
    std::vector<std::string> shown;
    for (const RecordSection& section : sections)
        for (const ShownRecord& record : section.records)
            shown.push_back(markup("{}: {} {} {}={}", record.caption, record.teamControl,
                                   record.team ? TeamAbbr[*record.team] : "", record.valueControl,
                                   record.value) +
                            " " + std::string(record.nameControl) + "=" + record.name);
    EXPECT_THAT(
        shown,
        testing::ElementsAre(
            "Goals in a Game: PlyrGRecTeam BOS PlyrGinGame=0 PlyrGRecName=P0",
            "Assists in a Game: PlyrARecTeam BUF PlyrAinGame=1 PlyrARecName=P1",
            "Points in a Game: PlyrPtsRecTeam CGY PlyrPtsinGame=2 PlyrPtsRecName=P2",
            "PP Goals in a Game: PlyrPPRecTeam CHI PlyrPPinGame=3 PlyrPPRecName=P3",
            "SH Goals in a Game: PlyrSHRecTeam DET PlyrSHinGame=4 PlyrSHRecName=P4",
            "SOG in a Game: PlyrSOGRecTeam EDM PlyrSOGinGame=5 PlyrSOGRecName=P5",
            "PIM in a Game: PlyrPIMRecTeam HFD PlyrPIMinGame=6 PlyrPIMRecName=P6",
            "Saves in a Game: GoalieSvRecTeam LI GSavesRec=10 GSavesRecName=K0",
            "Most Shots in a Shutout: GoalieSSHOTeam LA GShotsSHORec=11 GShotsSHORecName=K1",
            "Most Goals Allowed: GoalieGARecTeam MIN GGARec=12 GGARecName=K2",
            "Most Shots Faced: GoalieSFRecTeam MTL GSFRec=13 GSFRecName=K3",
            "Assists in a Game: GoalieAstRecTeam NJ GAstRec=14 GAstRecName=K4",
            "Goals in a Game: TeamGoalsRec MTL GinGame=20 =", "Shots in a Game: TeamShotRec NJ SinGame=21 =",
            "Body Checks in a Game: ByCksRec NYR BCinGame=22 =",
            "Penalties in a Game: TeamPensRec OTA PeninGame=23 =", "PPG in a Game: PPGRec PHI PPGinGame=24 =",
            "PP Opportunities: PPOppRec PIT PPOinGame=25 =", "Goals in a Game:   Label13=40 CoachGName=C0",
            "Shots in a Game:   Label12=41 CoachSOGName=C1",
            "Body Checks in a Game:   Label11=42 CoachByCkName=C2",
            "Penalties in a Game:   Label10=43 CoachPenName=C3", "PPG in a Game:   Label6=44 CoachPPGName=C4",
            "PP Opportunities:   Label7=45 CoachPPOName=C5"));
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
