#include "games/SaveState.h"

#include "files/FileError.h"
#include "games/SaveStateMap.h"
#include "samples/SaveStateWriter.h"
#include "support/MemoryFiles.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

SaveState saved(const GameSheet& game) {
    return {"evening/game7.gs0", saveStateBytes(game)};
}

TEST(SaveState, ReadsFirst64KiBOfTheFileOnce) {
    MemoryFiles files;
    files.files["game.gs0"] = std::string(70000, '\x05');
    const SaveState save = SaveState::read(files, "game.gs0");
    EXPECT_EQ(save.byteAt(65535), 5);
    EXPECT_EQ(save.byteAt(65536), 0);
    EXPECT_EQ(files.reads, 1);
    EXPECT_THROW(SaveState::read(files, "missing.gs0"), FileError);
}

TEST(SaveState, FiguresOfTheAwayTeamAreReadFromItsOwnBlock) {
    GameSheet game(NewJersey, Boston);
    game.home.Goals = 6;
    game.away.AttackZone = 605;
    const SaveState save = saved(game);
    EXPECT_EQ(save.byteAt(59755), 6);
    EXPECT_EQ(save.team(Side::Home), NewJersey);
    EXPECT_EQ(save.wordAt(60170), 605);
    EXPECT_EQ(save.figure(Side::Home, 59755), 6);
    EXPECT_EQ(save.figure(Side::Away, 59753), 605 % 256);
}

TEST(SaveState, CutFileReadsAsZeroAfterItsEnd) {
    GameSheet game(NewJersey, NewJersey);
    game.addGoal(1, 30, Side::Home, Strength::Even, 12);
    game.addGoal(2, 30, Side::Home, Strength::Even, 12);
    const std::string whole = saveStateBytes(game);
    const SaveState cut("cut", whole.substr(0, SaveStateMap::ScoringTable + 9));
    EXPECT_EQ(cut.team(Side::Home), NewJersey);
    EXPECT_THAT(cut.scoringEntries(), ElementsAre(game.goals[0], ScoringEntry{2, 30, 2, 0, 0, 0}));

    const SaveState empty("empty", "");
    EXPECT_EQ(empty.team(Side::Away), Boston);
    EXPECT_THAT(empty.scoringEntries(), IsEmpty());
    EXPECT_EQ(empty.refusal(), std::nullopt);
}

TEST(SaveState, DecodesSummaryEntries) {
    GameSheet game(NewJersey, Boston);
    game.goals = {{1, 1200, 130, 24, 255, 0}, {4, 300, 4, 0, 7, 255}};
    game.penalties = {{3, 16383, 170, 19}, {2, 0, 20, 3}};
    const SaveState save = saved(game);
    EXPECT_EQ(save.byteAt(59326), 0xC1) << "5:00 of overtime is C1 2C";
    EXPECT_THAT(save.scoringEntries(), testing::ElementsAreArray(game.goals));
    EXPECT_THAT(save.penaltyEntries(), testing::ElementsAreArray(game.penalties));
}

TEST(SaveState, OnlyWholeEntriesCount) {
    GameSheet game(NewJersey, Boston);
    game.goals.assign(4, {1, 60, 2, 8, 255, 255});
    game.goals[3].scorer = 99;
    game.scoringLength = 23;
    game.penalties.assign(2, {1, 60, 18, 8});
    game.penalties[1].player = 99;
    game.penaltyLength = 7;
    const SaveState save = saved(game);
    EXPECT_EQ(save.scoringEntries().size(), 3u);
    EXPECT_EQ(save.penaltyEntries().size(), 1u);
    EXPECT_EQ(save.refusal(), std::nullopt) << "the broken rows are in entries that do not count";
}

TEST(SaveState, RefusesTeamsOutsideTheLeague) {
    EXPECT_EQ(saved(GameSheet(TeamIndex(23), TeamIndex(23))).refusal(), std::nullopt);
    EXPECT_THAT(
        saved(GameSheet(TeamIndex(24), Boston)).refusal(),
        Optional(Eq("evening/game7.gs0: the home team is number 24, but the league's teams are 0 to 23; "
                    "a game outside the league cannot be read")));
    EXPECT_THAT(saved(GameSheet(Boston, TeamIndex(255))).refusal(),
                Optional(testing::HasSubstr("the away team is number 255")));
}

TEST(SaveState, RefusesRosterRowsThatNoRosterHas) {
    const auto refusalOf = [](const ScoringEntry& second) {
        GameSheet game(NewJersey, Boston);
        game.goals = {{1, 60, 2, 24, 24, 255}, second};
        return saved(game).refusal().value_or("");
    };
    EXPECT_EQ(refusalOf({1, 60, 99, 25, 255, 255}),
              "evening/game7.gs0: goal 2 names roster row 25 as scorer, but a roster has rows 0 to 24")
        << "whatever the entry's type";
    EXPECT_THAT(refusalOf({1, 60, 2, 255, 255, 255}), testing::HasSubstr("row 255 as scorer"));
    EXPECT_THAT(refusalOf({1, 60, 2, 3, 254, 255}), testing::HasSubstr("row 254 as first assist"));
    EXPECT_THAT(refusalOf({1, 60, 2, 3, 255, 25}), testing::HasSubstr("row 25 as second assist"));

    GameSheet game(NewJersey, Boston);
    game.penalties = {{1, 60, 20, 25}};
    EXPECT_THAT(saved(game).refusal(),
                Optional(testing::HasSubstr("penalty 1 names roster row 25 as player")));
}

} // namespace
} // namespace iceline
