#include "games/GameSheetReader.h"

#include "league/TeamSheetFields.h"
#include "samples/SaveStateWriter.h"

#include <gmock/gmock.h>

#include <span>

namespace iceline {
namespace {

GameSheet readBack(const GameSheet& game) {
    return readGameSheet(SaveState("game.gs0", saveStateBytes(game)));
}

TEST(GameSheetReader, ReadsWhatTheWriterHasWritten) {
    GameSheet game(TeamIndex(10), TeamIndex(3));
    game.addGoal(1, 599, Side::Home, Strength::PowerPlay, 7, 11, 0);
    game.addGoal(4, 300, Side::Away, Strength::Even, 24);
    game.addPenalty(2, 10, Side::Home, Infraction::Boarding, 3);
    game.crowdMeter = 97;
    game.awayPPTime = 261;
    int figure = 0;
    for (const auto& fields : {std::span<const TeamSheetField>(FirstBlockFields),
                               std::span<const TeamSheetField>(SecondBlockFields)})
        for (const TeamSheetField& field : fields) {
            game.home.*field.member = ++figure;
            game.away.*field.member = 100 + figure;
        }
    game.home.AttackZone = 605;
    const GameSheet read = readBack(game);
    EXPECT_EQ(saveStateBytes(read), saveStateBytes(game));
    EXPECT_EQ(read.home.AttackZone, 605);
    EXPECT_EQ(read.away.PairCMade, 119);
    EXPECT_EQ(read.away.G[24], 1);
}

TEST(GameSheetReader, SeesCountersModulo256) {
    GameSheet game(TeamIndex(0), TeamIndex(1));
    game.home.PassAtt = 300;
    game.away.AuxFor = 256;
    const GameSheet read = readBack(game);
    EXPECT_EQ(read.home.PassAtt, 44);
    EXPECT_EQ(read.away.AuxFor, 0);
}

TEST(GameSheetReader, AnEmptyFileIsAGameOfTeam0AgainstItselfWithoutFigures) {
    const GameSheet read = readGameSheet(SaveState("game.gs0", ""));
    EXPECT_EQ(read.home.team, 0);
    EXPECT_EQ(read.away.team, 0);
    EXPECT_EQ(read.crowdMeter, 0);
    EXPECT_THAT(read.home.G, testing::Each(0));
    EXPECT_TRUE(read.goals.empty());
}

} // namespace
} // namespace iceline
