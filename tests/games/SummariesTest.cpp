#include "games/Summaries.h"

#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

constexpr int None = NoAssist;

const std::string ScoringHead =
    "Per Time Team             Goal/Assist                                     P/S\r\n";
const std::string PenaltyHead =
    "Per Time Team    Player                           Penalty             Minutes\r\n";

/// Los Angeles at home to Boston.
GameReport game() {
    GameReport report;
    report.home.team = LosAngeles;
    report.away.team = Boston;
    for (GameSide* side : {&report.home, &report.away})
        for (GamePlayerRow& player : side->players)
            player.Name = EmptyRowName;
    report.home.players[3].Name = "Ann Lee";
    report.home.players[24].Name = "J.-P. O'Neil";
    report.away.players[0].Name = "Bo";
    report.away.players[5].Name = "Maximilian Vanderhoeven-Castellano";
    return report;
}

GameReport with(const ScoringEntry& goal) {
    GameReport report = game();
    report.goals = {goal};
    return report;
}

GameReport with(const PenaltyEntry& penalty) {
    GameReport report = game();
    report.penalties = {penalty};
    return report;
}

std::string goalLine(const ScoringEntry& goal) {
    return scoringSummaryText(with(goal)).substr(ScoringHead.size());
}

std::string penaltyLine(const PenaltyEntry& penalty) {
    return penaltySummaryText(with(penalty)).substr(PenaltyHead.size());
}

TEST(SummaryText, GameWithoutEntriesHasTheHeadsAlone) {
    EXPECT_EQ(scoringSummaryText(game()), ScoringHead);
    EXPECT_EQ(penaltySummaryText(game()), PenaltyHead);
}

TEST(SummaryText, GoalStandsInColumns) {
    EXPECT_EQ(goalLine({2, 599, 130, 0, None, None}), " 2  9:59  BOS  Bo\r\n");
    EXPECT_EQ(goalLine({4, 723, 2, 3, 24, None}), "OT 12:03  LA   Ann Lee, J.-P. O'Neil\r\n");
    EXPECT_EQ(goalLine({1, 5, 129, 0, None, 5}), " 1  0:05  BOS  Bo, Maximilian Vanderhoeven-Castellano" +
                                                     std::string(58 - 38, ' ') + " SH\r\n");
}

TEST(SummaryText, MarkIsSetOffAtTheSameColumn) {
    for (const auto& [type, mark] : {std::pair(0, " SH2"), {1, " SH"}, {3, " PP"}, {4, " PP2"}})
        EXPECT_EQ(goalLine({3, 60, type, 3, None, None}),
                  " 3  1:00  LA   Ann Lee" + std::string(51, ' ') + mark + "\r\n");
    EXPECT_EQ(goalLine({3, 60, 131, 5, 5, 0}),
              " 3  1:00  BOS  Maximilian Vanderhoeven-Castellano, Maximilian Vanderhoeven-Castellano, Bo"
              "  PP\r\n")
        << "names that fill the room";
}

TEST(SummaryText, PenaltyStandsInColumnsWithTheMinutesOfItsKind) {
    EXPECT_EQ(penaltyLine({2, 599, 160, 0}),
              " 2  9:59  BOS  Bo" + std::string(33, ' ') + "Tripping              2:00\r\n");
    EXPECT_EQ(penaltyLine({4, 600, 40, 24}),
              "OT 10:00  LA   J.-P. O'Neil" + std::string(23, ' ') + "Fighting *            5:00\r\n");
    EXPECT_EQ(penaltyLine({1, 60, 42, 3}),
              " 1  1:00  LA   Ann Lee" + std::string(28, ' ') + "Fight Instigator      2:00\r\n");
}

TEST(SummaryText, EmptyRosterRowHasNoNameInTheWindow) {
    EXPECT_EQ(goalLine({1, 60, 2, 7, 8, None}), " 1  1:00  LA   , \r\n");
    EXPECT_EQ(scoringRows(with(ScoringEntry{1, 60, 2, 7, 8, None})),
              "<tr><td><center>1</td><td><center>1:00</td><td><center>LA</td><td>-----------, -----------"
              "</td><td><center>&nbsp;</td></tr>\r\n");
}

TEST(SummaryText, TypeOfNoKindShowsPeriodAndTimeAlone) {
    for (const int type : {5, 127, 133, 255})
        EXPECT_EQ(goalLine({3, 1199, type, 3, 24, None}), " 3 19:59\r\n");
    for (const int type : {0, 20, 19, 44, 148, 255})
        EXPECT_EQ(penaltyLine({3, 1199, type, 3}), " 3 19:59\r\n");
}

TEST(SummaryRows, GoalAndPenaltyAreOneRowEach) {
    EXPECT_EQ(scoringRows(with(ScoringEntry{2, 599, 132, 5, 0, None})),
              "<tr><td><center>2</td><td><center>9:59</td><td><center>BOS</td>"
              "<td>Maximilian Vanderhoeven-Castellano, Bo</td><td><center>PP2</td></tr>\r\n");
    EXPECT_EQ(penaltyRows(with(PenaltyEntry{4, 61, 42, 3})),
              "<tr><td><center>OT</td><td><center>1:01</td><td><center>LA</td><td>Ann Lee</td>"
              "<td><center>Fight Instigator</td><td><center>5:00</td></tr>\r\n");
}

TEST(SummaryRows, TypeOfNoKindClosesItsRowWithEmptyCells) {
    EXPECT_EQ(scoringRows(with(ScoringEntry{2, 600, 5, 3, 24, None})),
              "<tr><td><center>2</td><td><center>10:00</td><td><center>"
              "</td><td></td><td><center></td></tr>\r\n");
    EXPECT_EQ(penaltyRows(with(PenaltyEntry{2, 600, 20, 3})),
              "<tr><td><center>2</td><td><center>10:00</td><td><center>"
              "</td><td></td><td><center></td><td><center></td></tr>\r\n");
}

TEST(SummaryRows, ShorterTableIsFilledToTheHeightOfTheOther) {
    GameReport report = game();
    report.penalties.assign(2, {1, 60, 18, 3});
    const std::string fiveCells =
        "<tr><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td></tr>\r\n";
    EXPECT_EQ(scoringRows(report), fiveCells + fiveCells);

    report.goals.assign(3, {1, 60, 2, 3, None, None});
    const std::string rows = penaltyRows(report);
    const std::string sixCells = fiveCells.substr(0, 4) + "<td>&nbsp;</td>" + fiveCells.substr(4);
    EXPECT_EQ(rows.find(sixCells), rows.size() - sixCells.size());
}

} // namespace
} // namespace iceline
