#include "playoffs/Bracket.h"

#include "standings/StandingsSupport.h"
#include "support/Test.h"

namespace iceline::test {
namespace {

constexpr SeriesIndex Third{3};
const TeamIndex Boston = team("BOS");
const TeamIndex Edmonton = team("EDM");

/// "8A": the first team of series 8.
std::string text(SeriesPlace place) {
    return std::to_string(place.series.number()) + (place.team == SeriesTeam::A ? "A" : "B");
}

PlayoffSeriesTable tableWith(SeriesIndex series, const PlayoffSeriesRecord& record) {
    PlayoffSeriesTable table;
    table[series] = record;
    return table;
}

TEST(Bracket, BetterSeedsAreTheFirstTeamsOfTheFirstRound) {
    ApplicationState state;
    const auto seed = [](ConferenceSeeds& seeds, std::initializer_list<std::string_view> abbrs) {
        std::ranges::transform(abbrs, seeds.begin(), team);
    };
    seed(state.WalesSeeds,
         {"WSH", "BUF", "PIT", "BOS", "NJ", "MTL", "OTA", "HFD", "QUE", "LI", "NYR", "PHI"});
    seed(state.CampbellSeeds,
         {"DET", "WPG", "CGY", "STL", "LA", "TOR", "EDM", "CHI", "SJ", "TB", "VAN", "MIN"});
    PlayoffSeriesTable table;
    seedFirstRound(table, state);
    std::vector<std::string> teams;
    for (const PlayoffSeriesRecord& series : table)
        teams.push_back(abbrs(std::array{series.TeamA, series.TeamB}));
    EXPECT_THAT(teams, ElementsAre("WSH HFD", "BOS NJ", "PIT MTL", "BUF OTA", "DET CHI", "STL LA", "CGY TOR",
                                   "WPG EDM", "Blank Blank", "Blank Blank", "Blank Blank", "Blank Blank",
                                   "Blank Blank", "Blank Blank", "Blank Blank"));
}

TEST(Bracket, EveryWinnerHasAPlaceInTheNextRound) {
    std::vector<std::string> places;
    for (const SeriesIndex series : AllSeries) {
        const auto place = placeOfWinner(series);
        places.push_back(place ? text(*place) : "none");
    }
    EXPECT_THAT(places, ElementsAre("8A", "8B", "9A", "9B", "10A", "10B", "11A", "11B", "12A", "12B", "13A",
                                    "13B", "14A", "14B", "none"));
}

TEST(Bracket, FourWinsDecideASeries) {
    EXPECT_EQ(winnerOf({3, 3, Boston, Edmonton}), BlankTeam);
    EXPECT_EQ(winnerOf({3, 4, Boston, Edmonton}), Edmonton);
    EXPECT_EQ(winnerOf({4, 3, Boston, Edmonton}), Boston);
}

TEST(SeriesOfGame, IsTheLastOpenSeriesOfTheTwoTeamsInEitherOrder) {
    const GameTeams inBoston{.home = Boston, .away = Edmonton};
    const GameTeams inEdmonton{.home = Edmonton, .away = Boston};
    auto table = tableWith(Third, {3, 3, Boston, Edmonton});
    EXPECT_EQ(seriesOfGame(table, inBoston), (SeriesOfGame{Third, SeriesTeam::A}));
    EXPECT_EQ(seriesOfGame(table, inEdmonton), (SeriesOfGame{Third, SeriesTeam::B}));
    EXPECT_EQ(seriesOfGame(table, {.home = Boston, .away = team("BUF")}), std::nullopt);
    EXPECT_EQ(seriesOfGame(table, {.home = team("BUF"), .away = Edmonton}), std::nullopt);

    table[FinalSeries] = {0, 0, Edmonton, Boston};
    EXPECT_EQ(seriesOfGame(table, inBoston), (SeriesOfGame{FinalSeries, SeriesTeam::B}));

    for (const PlayoffSeriesRecord& closed :
         {PlayoffSeriesRecord{4, 0, Boston, Edmonton}, {0, 4, Boston, Edmonton}, {0, 0, Boston, BlankTeam}})
        EXPECT_EQ(seriesOfGame(tableWith(Third, closed), inBoston), std::nullopt);
}

TEST(PlayoffResult, GivesTheGameToTheWinnerAndATieToNobody) {
    auto table = tableWith(Third, {0, 0, Boston, Edmonton});
    const SeriesOfGame inBoston{Third, SeriesTeam::A};
    const SeriesOfGame inEdmonton{Third, SeriesTeam::B};
    recordResult(table, inBoston, {.home = 2, .away = 1});
    recordResult(table, inEdmonton, {.home = 0, .away = 5});
    recordResult(table, inEdmonton, {.home = 3, .away = 2});
    recordResult(table, inBoston, {.home = 3, .away = 3});
    EXPECT_EQ(table[Third], (PlayoffSeriesRecord{2, 1, Boston, Edmonton}));
    EXPECT_EQ(table[9], PlayoffSeriesRecord());
}

TEST(PlayoffResult, TheFourthWinMovesTheTeamOnAndLeavesTheOtherOfTheNextSeries) {
    const TeamIndex waiting = team("PIT");
    for (const SeriesIndex from : AllSeries) {
        const auto next = placeOfWinner(from);
        if (!next)
            continue;
        auto table = tableWith(from, {3, 3, Boston, Edmonton});
        table[next->series] = {0, 0, waiting, waiting};
        recordResult(table, {from, SeriesTeam::A}, {.home = 0, .away = 1});
        const bool asTeamA = next->team == SeriesTeam::A;
        EXPECT_EQ(table[next->series],
                  (PlayoffSeriesRecord{0, 0, asTeamA ? Edmonton : waiting, asTeamA ? waiting : Edmonton}))
            << from.number();
    }
}

TEST(PlayoffResult, TheFinalEndsTheYear) {
    auto table = tableWith(FinalSeries, {3, 0, Boston, Edmonton});
    recordResult(table, {FinalSeries, SeriesTeam::A}, {.home = 1, .away = 0});
    EXPECT_EQ(table, tableWith(FinalSeries, {4, 0, Boston, Edmonton}));
}

} // namespace
} // namespace iceline::test
