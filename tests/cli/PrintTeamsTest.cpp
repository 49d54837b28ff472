#include "cli/WindowPrinters.h"
#include "players/PlayerStats.h"
#include "support/NumberedRecord.h"
#include "support/Test.h"
#include "support/TestLeague.h"
#include "teams/TeamView.h"

#include <sstream>

namespace iceline::cli {
namespace {

using namespace test;

/// What was printed, with each run of blanks as one.
std::string squeezed(const std::string& printed) {
    std::istringstream lines(printed);
    std::string result;
    for (std::string line; std::getline(lines, line); result += "\n") {
        std::istringstream words(line);
        for (std::string word; words >> word;)
            result += (result.empty() || result.back() == '\n' ? "" : " ") + word;
    }
    return result;
}

TEST(PrintTeamView, EveryFigureIsUnderItsHead) {
    TeamView view;
    view.record = numberedRecord<TeamRecord>();
    view.streak = {"L", 201};
    view.lastTen = {202, 203, 204};
    view.LeagueMeter = 205;
    Printout out(Printout::Format::Text);
    printTeamView(view, out);
    const std::string printed = squeezed(out.result());
    for (const char* table : {"Record W - L - T Pts. Win% GP GF GA GFA GAA Diff Pow.Rank\n"
                              "1 - 2 - 3 4 5.5 6 7 8 9.5 10.5 11.5 12.5\n",
                              "Home W - L - T Win% GP GF GA GFA GAA Diff Pow.Rank\n"
                              "15 - 16 - 17 19.5 18 20 21 22.5 23.5 24.5 25.5\n",
                              "Away W - L - T Win% GP GF GA GFA GAA Diff Pow.Rank\n"
                              "26 - 27 - 28 30.5 29 31 32 33.5 34.5 35.5 36.5\n",
                              "Overtime W - L - T Win% GP Last 10 Streak Crowd dB League dB\n"
                              "40 - 41 - 42 43.5 44 202 - 203 - 204 L 201 107.5 205\n",
                              "Season Totals\nSOG S% SOGA PPG/PPA PP% Pen/PIM PenA/PIMA\n"
                              "45 49.5 47 50 / 52 54.5 60 / 62.5 64.5 / 66.5\n",
                              "PKG/PKO PK% FOW/FOT FOW% ByCks PsC/PsA PsAcc%\n"
                              "68 / 70 72.5 95 / 97 99.5 100 102 / 104 106.5\n",
                              "Season Averages\nSOG SOGA PPG/PPA Pen/PIM PenA/PIMA\n"
                              "46.5 48.5 51.5 / 53.5 61.5 / 63.5 65.5 / 67.5\n",
                              "PKG/PKO Att.Zone FOW/FOT ByCks PsC/PsA\n"
                              "69.5 / 71.5 0 96.5 / 98.5 101.5 103.5 / 105.5\n"})
        EXPECT_THAT(printed, HasSubstr(table));
}

TEST(PrintPlayerStats, EveryFigureIsUnderItsHead) {
    TestLeague league;
    Roster roster;
    roster[0] = {"Gil Keeper", 31, 80, "G"};
    roster[1] = {"Ann First", 99, 70, "F"};
    league.setRoster(Boston, roster);
    league.setPlayerStats(Boston, PartOfYear::Season, 0, numberedRecord<GoalieStats>());
    league.setPlayerStats(Boston, PartOfYear::Season, 1, numberedRecord<SkaterStats>());
    auto& window = static_cast<PlayerStats&>(league.app.windows().use(WindowId::PlayerStats));
    window.PlayersTeamSelect = Boston.number();
    window.PlayersTeamSelect_Click();
    Printout out(Printout::Format::Text);
    printPlayerStats(window, out);
    const std::string printed = squeezed(out.result());
    for (const char* table :
         {"Forwards / Defensemen Pos # Pow.Rank G A Pts. PPG S% SOG PP SH PIM GP\n"
          "Ann First F 99 15.5 2 4 6 7.5 10.5 8 12 13 11 1\n",
          "Goalies Pos # Pow.Rank W L T GAA SV% SHO SF GA A GP\n"
          "Gil Keeper G 31 1.55 5 6 7 9.5 10.5 3 8 2 4 1\n",
          "Pts. Per Game Ann First 7.5\nPower Ranking Ann First 15.5\nPenalty Minutes Ann First 11\n"})
        EXPECT_THAT(printed, HasSubstr(table));
}

} // namespace
} // namespace iceline::cli
