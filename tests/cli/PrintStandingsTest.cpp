#include "cli/WindowPrinters.h"
#include "playoffs/Playoffs.h"
#include "standings/Standings.h"
#include "support/Test.h"
#include "support/TestLeague.h"

#include <nlohmann/json.hpp>
#include <sstream>

namespace iceline::cli {
namespace {

using namespace test;

class PrintStandings : public testing::Test {
protected:
    PrintStandings() {
        TeamRecord record;
        for (const TeamIndex team : AllLeagueTeams) {
            record.Points = LeagueTeams - team.number();
            league.setRecord(team, PartOfYear::Season, record);
        }
    }

    std::string print(WindowId id, Printout::Format format = Printout::Format::Text) {
        Printout out(format);
        league.app.windows().unload(id);
        windowPrinter(id)(league.app.windows().use(id), out);
        return out.result();
    }

    TestLeague league;
};

TEST_F(PrintStandings, FourViewsUnderTheirHeads) {
    TeamRecord record = league.record(Boston);
    record.HW = 3;
    record.HL = 2;
    record.HWinPercent = 0.6;
    record.HGP = 5;
    record.OtherConfW = 12;
    record.OtherConfL = 4;
    league.setRecord(Boston, PartOfYear::Season, record);
    league.app.state.ClinchMark[Boston] = "x";
    const std::string text = print(WindowId::Standings);
    EXPECT_THAT(text, HasSubstr("   Adams Division         W  L  T  Pts.  GF  GA  GP\n"
                                "x  Boston Bruins          0  0  0    24   0   0   0\n"
                                "   Buffalo Sabres         0  0  0    23   0   0   0\n"));
    EXPECT_THAT(text, HasSubstr("\nBoston Bruins          3  2  0   0.6   5    Boston Bruins  "));
    EXPECT_THAT(text, HasSubstr("Boston Bruins                             0  0  0     0"
                                "                    12  4  0  0.75\n"));

    const auto parts = nlohmann::json::parse(print(WindowId::Standings, Printout::Format::Json));
    EXPECT_EQ(parts.at(0), "Division Standings");
    EXPECT_EQ(parts.at(1).at("title"), "Adams Division");
    EXPECT_EQ(parts.at(1).at("rows").at(0), nlohmann::json::parse(R"({"Mark": "x", "Team": "Boston Bruins",
        "W": 0, "L": 0, "T": 0, "Pts.": 24, "GF": 0, "GA": 0, "GP": 0})"));
    EXPECT_THAT(print(WindowId::Standings, Printout::Format::Json), HasSubstr("\"vs. Western Conf. T\": 0"));
}

TEST_F(PrintStandings, BracketLeadsWinnersToTheirPlaces) {
    league.app.state.SeasonLength = -1;
    print(WindowId::Playoffs);
    auto& series = league.app.state.PlayoffSeries;
    for (int game = 0; game < 4; ++game) {
        recordResult(series, {SeriesIndex(0), SeriesTeam::A}, {.home = 2, .away = 1});
        recordResult(series, {SeriesIndex(1), SeriesTeam::A}, {.home = 1, .away = 2});
    }
    recordResult(series, {SeriesIndex(8), SeriesTeam::A}, {.home = 2, .away = 1});
    league.files.files[paths::PlayoffRecords] = textOf(series);
    const std::string text = print(WindowId::Playoffs);
    EXPECT_THAT(text, StartsWith("Playoff Tree\n"
                                 "\n"
                                 "EASTERN CONFERENCE\n"
                                 "\n"
                                 "1  Boston Bruins          4 --+\n"
                                 "                              +-- BOS 1 --+\n"
                                 "8  Ottawa Senators        0 --+           |\n"
                                 "                                          +-- ---   --+\n"
                                 "4  Hartford Whalers       0 --+           |           |\n"
                                 "                              +-- MTL 0 --+           |\n"
                                 "5  Montreal Canadiens     4 --+                       |\n"
                                 "                                                      +-- ---\n"
                                 "3  Buffalo Sabres         0 --+                       |\n"));
    EXPECT_THAT(text, EndsWith("7  San Jose Sharks        0 --+\n"
                               "\n"
                               "Stanley Cup Champions: ---\n"));

    const auto rows =
        nlohmann::json::parse(print(WindowId::Playoffs, Printout::Format::Json)).at(1).at("rows");
    EXPECT_EQ(rows.size(), 15u);
    EXPECT_EQ(rows.at(0), nlohmann::json::parse(R"({"Conference": "Wales", "Round": 1,
        "Team": "Boston Bruins", "Wins": 4, "Opponent": "Ottawa Senators", "Opponent Wins": 0})"));
}

} // namespace
} // namespace iceline::cli
