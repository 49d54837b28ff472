#include "samples/SampleGames.h"

#include "games/SaveState.h"
#include "samples/SaveStateWriter.h"
#include "support/MemoryFiles.h"
#include "support/Test.h"

#include <algorithm>
#include <map>
#include <set>

namespace iceline {
namespace {

using namespace test;

const LeagueRosters& rosters() {
    static const LeagueRosters rosters = builtInRosters();
    return rosters;
}

/// The same game, from its entries alone: goals, their shots and penalties.
GameSheet fromEntries(const GameSheet& game) {
    GameSheet made(game.home.team, game.away.team);
    for (const ScoringEntry& goal : game.goals)
        made.addGoal(goal.period, goal.seconds, sideOf(goal.type), *strengthOf(goal.type), goal.scorer,
                     goal.assist1, goal.assist2);
    for (const PenaltyEntry& penalty : game.penalties)
        made.addPenalty(penalty.period, penalty.seconds, sideOf(penalty.type),
                        static_cast<Infraction>(kindOf(penalty.type)), penalty.player);
    return made;
}

void expectFiguresAgree(const GameSheet& game, Side side) {
    const TeamSheet& team = game.of(side);
    const GameSheet made = fromEntries(game);
    const TeamSheet& entered = made.of(side);
    int shots = 0;
    int shotsFaced = 0;
    int goalsLetIn = 0;
    for (const RosterIndex row : AllRosterRows) {
        const RosterRow& player = rosters()[team.team][row];
        EXPECT_TRUE(player.isGoalie() || team.G[row] == entered.G[row]) << row;
        EXPECT_TRUE(!player.isEmpty() || team.SOG[row] + team.A[row] + team.PIM[row] == 0) << row;
        EXPECT_LE(team.G[row], team.SOG[row]);
        (player.isGoalie() ? shotsFaced : shots) += team.SOG[row];
        goalsLetIn += player.isGoalie() ? team.G[row] : 0;
    }
    EXPECT_EQ(team.A, entered.A);
    EXPECT_EQ(team.PIM, entered.PIM);
    EXPECT_EQ(team.PPG, entered.PPG);
    EXPECT_EQ(team.Goals, entered.Goals);
    EXPECT_EQ(team.PenM, entered.PenM);
    EXPECT_EQ(team.Shots, shots);
    EXPECT_EQ(game.of(otherSide(side)).Shots, shotsFaced);
    EXPECT_EQ(game.of(otherSide(side)).Goals, goalsLetIn);
    const auto isMinor = [side](const PenaltyEntry& penalty) {
        return sideOf(penalty.type) == side && minutesOf(static_cast<Infraction>(kindOf(penalty.type))) == 2;
    };
    EXPECT_LE(game.of(otherSide(side)).PPA, std::ranges::count_if(game.penalties, isMinor));
    EXPECT_LE(team.PPG, team.PPA);
    EXPECT_LE(team.PassComp, team.PassAtt);
    EXPECT_THAT(team.Shots, AllOf(Ge(8), Le(75)));
}

template <class Entry>
void expectClocksCountUp(const std::vector<Entry>& entries) {
    int last = 0;
    for (const Entry& entry : entries) {
        EXPECT_THAT(entry.seconds, AllOf(Ge(1), Le(entry.period == OvertimePeriod ? 300 : 1200)));
        const int now = entry.period * 1200 + entry.seconds;
        EXPECT_LE(last, now);
        last = now;
    }
}

TEST(SampleGames, AllFiguresOfAGameAgreeAndEveryKindOfEntryOccurs) {
    std::set<std::string> seen;
    int number = 0;
    for (const Pairing& pairing : sampleSchedule(700, 1)) {
        const GameSheet game = sampleGame(1, ++number, pairing, rosters());
        SCOPED_TRACE(testing::Message() << "game " << number);
        expectClocksCountUp(game.goals);
        expectClocksCountUp(game.penalties);
        for (const Side side : {Side::Home, Side::Away})
            expectFiguresAgree(game, side);
        const SaveState read("game", saveStateBytes(game));
        EXPECT_EQ(read.refusal(), std::nullopt);
        EXPECT_EQ(read.scoringEntries(), game.goals);
        EXPECT_EQ(read.penaltyEntries(), game.penalties);
        ASSERT_FALSE(HasFailure());
        seen.insert(game.home.Goals == game.away.Goals ? "tie" : "win");
        for (const ScoringEntry& goal : game.goals)
            seen.insert("strength " + std::to_string(kindOf(goal.type)));
        for (const PenaltyEntry& penalty : game.penalties)
            seen.insert("penalty " + std::to_string(kindOf(penalty.type)));
    }
    EXPECT_EQ(seen.size(), 2u + 5u + 12u);
}

TEST(SampleSchedule, MeetsEveryPairOnceACycleWithHomeAndAwayInTurn) {
    const auto schedule = sampleSchedule(2 * 276, 7);
    std::set<std::pair<int, int>> pairs;
    for (std::size_t game = 0; game < 276; ++game) {
        const auto [home, away] = schedule[game];
        pairs.insert(std::minmax({home.number(), away.number()}));
        EXPECT_EQ(schedule[game + 276], (Pairing{away, home}));
    }
    EXPECT_EQ(pairs.size(), 276u);
    for (std::size_t round = 0; round + 1 < 23; round += 2) {
        std::map<int, int> homeGames;
        for (std::size_t game = round * 12; game < (round + 2) * 12; ++game)
            ++homeGames[schedule[game].home.number()];
        EXPECT_EQ(homeGames.size(), 24u) << "each team is at home once in two rounds";
    }
}

TEST(WriteSampleGames, WritesTheSameBytesForASeedOnEveryMachine) {
    MemoryFiles files;
    writeSampleGames(files, "games", DefaultSampleGames, 1);
    EXPECT_EQ(files.filesIn("games").front(), "game-0001.gs0");
    EXPECT_EQ(files.filesIn("games").back(), "game-0024.gs0");
    std::uint64_t sum = 0xCBF29CE484222325u;
    for (const auto& [path, content] : files.files)
        for (const char byte : path + content)
            sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3u;
    EXPECT_EQ(sum, 15115135536822086235u)
        << "new rosters or rules of play change the games: pin them again, on purpose";
}

TEST(WriteSampleGames, AddsToASeriesWithoutChangingItsBeginning) {
    MemoryFiles few;
    MemoryFiles more;
    writeSampleGames(few, "games", 12, 5);
    writeSampleGames(more, "games", 30, 5);
    EXPECT_EQ(more.files.size(), 30u);
    for (const auto& [path, content] : few.files)
        EXPECT_EQ(more.files[path], content) << path;
}

} // namespace
} // namespace iceline
