#include "samples/SaveStateWriter.h"

#include "support/Test.h"

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace iceline {
namespace {

using namespace test;

std::vector<int> bytesAt(const std::string& image, std::size_t offset, std::size_t count) {
    std::vector<int> bytes;
    for (const char byte : image.substr(offset, count))
        bytes.push_back(static_cast<unsigned char>(byte));
    return bytes;
}

TEST(SaveStateWriter, PutsEverythingAtItsPlace) {
    GameSheet game(Montreal, Boston);
    game.addGoal(1, 599, Side::Home, Strength::PowerPlay, 7, 11, 0);
    game.addGoal(4, 300, Side::Away, Strength::Even, 24);
    game.addPenalty(2, 10, Side::Home, Infraction::Boarding, 3);
    game.addPenalty(3, 1200, Side::Away, Infraction::FightInstigator, 24);
    game.crowdMeter = 97;
    static_cast<TeamFigures&>(game.home) = {31, 2, 5, 4, 11, 605, 6, 22, 17, 90, 60};
    game.home.G[0] = 4;
    game.home.PIM[24] = 17;
    game.home.PPAux = 1;
    game.home.PairAMade = 7;
    game.home.PairBAtt = 8;
    game.home.PairBMade = 9;
    game.home.PairCAtt = 10;
    game.home.PairCMade = 2;
    game.away.Shots = 29;
    game.away.AttackZone = game.away.PassComp = 300;
    game.away.A[24] = 5;
    game.away.SOG[1] = 6;
    game.away.AuxFor = 3;
    game.away.PairAAtt = 4;
    game.awayPPTime = 515;
    const std::string image = saveStateBytes(game);
    EXPECT_EQ(image.size(), 65536u);
    const std::vector<std::pair<std::size_t, std::vector<int>>> bytes{
        {59013, {Montreal.number()}},
        {59015, {Boston.number()}},
        {59277, {97}},
        {59319, {12, 0x02, 0x57, 3, 7, 11, 0, 0xC1, 0x2C, 130, 24, 255, 255}},
        {59501, {8, 0x40, 0x0A, 18, 3, 0x84, 0xB0, 170, 24}},
        {59742, {0, 31, 0, 2, 0, 5, 0, 4, 0, 11, 2, 93, 0, 6, 0, 22, 0, 17, 0, 90, 0, 60}},
        {59922, {4}},
        {60024, {17}},
        {60161, {29}},
        {60170, {1, 44}},
        {60180, {1, 44}},
        {60390, {5}},
        {60393, {6}},
        {61083, {1, 0, 0, 0, 0, 0, 7, 0, 8, 0, 9, 0, 10, 0, 2}},
        {61948, {2, 3}},
        {61953, {3}},
        {61955, {4}},
    };
    for (const auto& [offset, expected] : bytes)
        EXPECT_EQ(bytesAt(image, offset, expected.size()), expected) << offset;
    game.scoringLength = 20;
    game.penaltyLength = 255;
    EXPECT_EQ(bytesAt(saveStateBytes(game), 59319, 1), std::vector{20}) << "whether it fits the table or not";
    EXPECT_EQ(bytesAt(saveStateBytes(game), 59501, 1), std::vector{255});
}

TEST(GameSheet, EntriesRaiseEverythingThatTheyTouch) {
    GameSheet game(Montreal, Boston);
    game.away.goalie = RosterIndex(1);
    game.addGoal(1, 60, Side::Home, Strength::TwoManPowerPlay, 5, 6);
    game.addGoal(1, 90, Side::Home, Strength::OneManShort, 5);
    game.addShot(Side::Home, 6);
    game.addPenalty(1, 60, Side::Away, Infraction::Fighting, 9);
    game.addPenalty(1, 60, Side::Away, Infraction::FightInstigator, 9);
    EXPECT_THAT((std::vector{game.home.Goals, game.home.PPG, game.home.Shots, game.home.G[5], game.home.A[6],
                             game.home.SOG[5], game.home.SOG[6], game.home.PenM}),
                testing::ElementsAre(2, 1, 3, 2, 1, 2, 1, 0));
    EXPECT_THAT((std::vector{game.away.G[1], game.away.SOG[1], game.away.Shots, game.away.Penalties,
                             game.away.PenM, game.away.PIM[9]}),
                testing::ElementsAre(2, 3, 0, 2, 7, 7));
}

TEST(SaveStateWriter, RefusesWhatTheFileCannotHold) {
    const auto refuses = [](const auto& change) {
        GameSheet game(Montreal, Boston);
        change(game);
        EXPECT_THROW(saveStateBytes(game), std::out_of_range);
    };
    refuses([](GameSheet& game) { game.goals.resize(GameSheet::MaxGoals + 1); });
    refuses([](GameSheet& game) { game.penalties.resize(GameSheet::MaxPenalties + 1); });
    refuses([](GameSheet& game) { game.away.PIM[3] = 256; });
    refuses([](GameSheet& game) { game.home.Goals = -1; });
}

} // namespace
} // namespace iceline
