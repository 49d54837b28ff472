#include "samples/SaveStateWriter.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace iceline {
namespace {

constexpr TeamIndex Boston{0};
constexpr TeamIndex Montreal{10};

std::vector<int> bytesAt(const std::string& image, std::size_t offset, std::size_t count) {
    std::vector<int> bytes;
    for (const char byte : image.substr(offset, count))
        bytes.push_back(static_cast<unsigned char>(byte));
    return bytes;
}

int byteAt(const std::string& image, std::size_t offset) {
    return bytesAt(image, offset, 1).front();
}

using testing::ElementsAre;

TEST(SaveStateWriter, LaysTeamsAndCrowdIntoAnImageOf64KiB) {
    GameSheet game(Montreal, Boston);
    game.crowdMeter = 97;
    const std::string image = saveStateBytes(game);
    EXPECT_EQ(image.size(), 65536u);
    EXPECT_EQ(byteAt(image, 59013), Montreal);
    EXPECT_EQ(byteAt(image, 59015), Boston);
    EXPECT_EQ(byteAt(image, 59277), 97);
}

TEST(SaveStateWriter, WritesGoalsAsEntriesOfSixBytes) {
    GameSheet game(Montreal, Boston);
    game.addGoal(1, 599, Side::Home, Strength::PowerPlay, 7, 11, 0);
    game.addGoal(4, 300, Side::Away, Strength::Even, 24);
    const std::string image = saveStateBytes(game);
    EXPECT_EQ(byteAt(image, 59319), 12);
    EXPECT_THAT(bytesAt(image, 59320, 6), ElementsAre(0x02, 0x57, 3, 7, 11, 0));
    EXPECT_THAT(bytesAt(image, 59326, 6), ElementsAre(0xC1, 0x2C, 130, 24, 255, 255));
}

TEST(SaveStateWriter, WritesPenaltiesAsEntriesOfFourBytes) {
    GameSheet game(Montreal, Boston);
    game.addPenalty(2, 10, Side::Home, Infraction::Boarding, 3);
    game.addPenalty(3, 1200, Side::Away, Infraction::FightInstigator, 24);
    const std::string image = saveStateBytes(game);
    EXPECT_EQ(byteAt(image, 59501), 8);
    EXPECT_THAT(bytesAt(image, 59502, 4), ElementsAre(0x40, 0x0A, 18, 3));
    EXPECT_THAT(bytesAt(image, 59506, 4), ElementsAre(0x84, 0xB0, 170, 24));
}

TEST(SaveStateWriter, PutsTeamFiguresInTheirBlocks) {
    GameSheet game(Montreal, Boston);
    game.home.Shots = 31;
    game.home.AttackZone = 605;
    game.home.PassComp = 88;
    game.away.Shots = 29;
    game.away.AttackZone = 300;
    game.away.PassComp = 300;
    const std::string image = saveStateBytes(game);
    EXPECT_EQ(byteAt(image, 59743), 31);
    EXPECT_THAT(bytesAt(image, 59752, 2), ElementsAre(2, 93));
    EXPECT_EQ(byteAt(image, 59763), 88);
    EXPECT_EQ(byteAt(image, 60161), 29);
    EXPECT_THAT(bytesAt(image, 60170, 2), ElementsAre(1, 44));
    EXPECT_THAT(bytesAt(image, 60180, 2), ElementsAre(1, 44)) << "a counter's low byte is what is read";
}

TEST(SaveStateWriter, PutsPlayersAndTheSecondBlockAtTheirRows) {
    GameSheet game(Montreal, Boston);
    game.home.G[0] = 4;
    game.home.PIM[24] = 17;
    game.away.A[24] = 5;
    game.away.SOG[1] = 6;
    game.home.PPAux = 1;
    game.home.PairCMade = 2;
    game.away.AuxFor = 3;
    game.away.PairAAtt = 4;
    game.awayPPTime = 515;
    const std::string image = saveStateBytes(game);
    EXPECT_EQ(byteAt(image, 59922), 4);
    EXPECT_EQ(byteAt(image, 60024), 17);
    EXPECT_EQ(byteAt(image, 60390), 5);
    EXPECT_EQ(byteAt(image, 60393), 6);
    EXPECT_EQ(byteAt(image, 61083), 1);
    EXPECT_EQ(byteAt(image, 61097), 2);
    EXPECT_EQ(byteAt(image, 61953), 3);
    EXPECT_EQ(byteAt(image, 61955), 4);
    EXPECT_THAT(bytesAt(image, 61948, 2), ElementsAre(2, 3));
}

TEST(SaveStateWriter, AGoalRaisesEverythingThatItTouches) {
    GameSheet game(Montreal, Boston);
    game.away.goalie = RosterIndex(1);
    game.addGoal(1, 60, Side::Home, Strength::TwoManPowerPlay, 5, 6);
    game.addGoal(1, 90, Side::Home, Strength::OneManShort, 5);
    game.addShot(Side::Home, 6);
    EXPECT_EQ(game.home.Goals, 2);
    EXPECT_EQ(game.home.PPG, 1);
    EXPECT_EQ(game.home.Shots, 3);
    EXPECT_EQ(game.home.G[5], 2);
    EXPECT_EQ(game.home.A[6], 1);
    EXPECT_EQ(game.home.SOG[5], 2);
    EXPECT_EQ(game.away.G[1], 2);
    EXPECT_EQ(game.away.SOG[1], 3);
    EXPECT_EQ(game.away.Shots, 0);
}

TEST(SaveStateWriter, APenaltyRaisesTheMinutesOfItsKind) {
    GameSheet game(Montreal, Boston);
    game.addPenalty(1, 60, Side::Away, Infraction::Fighting, 9);
    game.addPenalty(1, 60, Side::Away, Infraction::FightInstigator, 9);
    EXPECT_EQ(game.away.Penalties, 2);
    EXPECT_EQ(game.away.PenM, 7);
    EXPECT_EQ(game.away.PIM[9], 7);
    EXPECT_EQ(game.home.PenM, 0);
}

TEST(SaveStateWriter, TakesLengthBytesThatDoNotFitTheirTables) {
    GameSheet game(Montreal, Boston);
    game.addGoal(1, 60, Side::Home, Strength::Even, 5);
    game.scoringLength = 20;
    game.penaltyLength = 255;
    const std::string image = saveStateBytes(game);
    EXPECT_EQ(byteAt(image, 59319), 20);
    EXPECT_EQ(byteAt(image, 59501), 255);
}

TEST(SaveStateWriter, RefusesWhatTheFileCannotHold) {
    GameSheet fullTable(Montreal, Boston);
    fullTable.goals.resize(GameSheet::MaxGoals + 1);
    EXPECT_THROW(saveStateBytes(fullTable), std::out_of_range);

    GameSheet wideByte(Montreal, Boston);
    wideByte.away.PIM[3] = 256;
    EXPECT_THROW(saveStateBytes(wideByte), std::out_of_range);

    GameSheet negative(Montreal, Boston);
    negative.home.Goals = -1;
    EXPECT_THROW(saveStateBytes(negative), std::out_of_range);
}

} // namespace
} // namespace iceline
