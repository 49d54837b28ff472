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
    constexpr std::array Players{"Goals", "Assists", "Points", "PP Goals", "SH Goals", "SOG", "PIM"};
    constexpr std::array PlayersTeams{"BOS", "BUF", "CGY", "CHI", "DET", "EDM", "HFD"};
    for (std::size_t i = 0; i < Players.size(); ++i) {
        addPlayer(Players[i], PlayersTeams[i], "P" + std::to_string(i), std::to_string(i));
        expected += "\r\n";
    }
    expected +=
        "</table><br/><table border = 1><tr><th colspan = 4><b>Goalie Records in a Game</b></th></tr>\r\n";
    constexpr std::array Goalies{"Saves", "SOG/Shutout", "Goals Allowed", "SOG Faced", "Assists"};
    constexpr std::array GoaliesTeams{"LI", "LA", "MIN", "MTL", "NJ"};
    for (std::size_t i = 0; i < Goalies.size(); ++i) {
        addPlayer(Goalies[i], GoaliesTeams[i], "K" + std::to_string(i), std::to_string(10 + i));
        expected += i + 1 < Goalies.size() ? "\r\n" : "</table>\r\n";
    }
    expected += "<br/><table border = 1><tr><th colspan = 3><b>Team Records in a Game</b></th></tr>\r\n";
    constexpr std::array Teams{"Goals", "SOG", "PIM", "Body Checks", "PP Goals", "PP Chances"};
    constexpr std::array TeamsTeams{"MTL", "NJ", "OTA", "NYR", "PHI", "PIT"};
    constexpr std::array Places{0, 1, 3, 2, 4, 5}; // in the data file
    for (std::size_t i = 0; i < Teams.size(); ++i)
        addTeam(Teams[i], TeamsTeams[i], std::to_string(20 + Places[i]));
    expected += "<br/><table border = 1><tr><th colspan = 3><b>Coaches' Records in a Game</b></th></tr>\r\n";
    for (std::size_t i = 0; i < Teams.size(); ++i)
        addCoach(Teams[i], "C" + std::to_string(Places[i]), std::to_string(40 + Places[i]));
    EXPECT_THAT(page, EndsWith("<br/><br/>" + expected));
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
        ElementsAre(
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

} // namespace

} // namespace iceline::test
