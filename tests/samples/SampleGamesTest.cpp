#include "samples/SampleGames.h"

#include "games/SaveState.h"
#include "games/SaveStateMap.h"
#include "samples/SaveStateWriter.h"
#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <map>
#include <numeric>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace iceline {
namespace {

using test::MemoryFiles;

constexpr std::uint64_t Seeds = 3;
constexpr int GamesPerSeed = 700;

/// The games that the tests look at, played once.
const std::vector<GameSheet>& manyGames() {
    static const std::vector<GameSheet> games = [] {
        const LeagueRosters rosters = builtInRosters();
        std::vector<GameSheet> played;
        for (std::uint64_t seed = 1; seed <= Seeds; ++seed) {
            int number = 0;
            for (const Pairing& pairing : sampleSchedule(GamesPerSeed, seed))
                played.push_back(sampleGame(seed, ++number, pairing, rosters));
        }
        return played;
    }();
    return games;
}

const Roster& rosterOf(const TeamSheet& team) {
    static const LeagueRosters rosters = builtInRosters();
    return rosters[team.team];
}

bool isSideOf(int type, Side side) {
    return (type >= AwaySide) == (side == Side::Away);
}

int kindOf(int type) {
    return type % AwaySide;
}

int playedSeconds(int period, int seconds) {
    return (period - 1) * 1200 + seconds;
}

template <class Entry>
std::vector<Entry> entriesOf(const std::vector<Entry>& entries, Side side) {
    std::vector<Entry> own;
    std::ranges::copy_if(entries, std::back_inserter(own),
                         [side](const Entry& entry) { return isSideOf(entry.type, side); });
    return own;
}

int sumOver(const TeamSheet& team, const TeamSheet::RowFigures& figures, bool goalies) {
    int sum = 0;
    for (int row = 0; row < RosterRows; ++row)
        if (rosterOf(team)[row].isGoalie() == goalies)
            sum += figures[row];
    return sum;
}

bool wentToOvertime(const GameSheet& game) {
    const auto isLate = [](const auto& entry) { return entry.period == 4; };
    return std::ranges::any_of(game.goals, isLate) || std::ranges::any_of(game.penalties, isLate);
}

int goaliesUsed(const TeamSheet& team) {
    int used = 0;
    for (int row = 0; row < RosterRows; ++row)
        used += rosterOf(team)[row].isGoalie() && team.SOG[row] > 0;
    return used;
}

void expectGoalsOfSummaryPlayersAndTeamAgree(const GameSheet& game, Side side) {
    const TeamSheet& team = game.of(side);
    TeamSheet::RowFigures goals{};
    TeamSheet::RowFigures assists{};
    int powerPlayGoals = 0;
    for (const ScoringEntry& goal : entriesOf(game.goals, side)) {
        ++goals[goal.scorer];
        powerPlayGoals += kindOf(goal.type) >= 3;
        for (const int assistant : {goal.assist1, goal.assist2})
            if (assistant != NoAssist)
                ++assists[assistant];
    }
    for (int row = 0; row < RosterRows; ++row)
        EXPECT_TRUE(rosterOf(team)[row].isGoalie() || team.G[row] == goals[row]) << row;
    EXPECT_EQ(team.A, assists);
    EXPECT_EQ(sumOver(team, team.G, false), team.Goals);
    EXPECT_EQ(powerPlayGoals, team.PPG);
}

void expectGoaliesFaceTheOtherTeamsShots(const GameSheet& game, Side side) {
    const TeamSheet& shooting = game.of(side);
    const TeamSheet& defending = game.of(otherSide(side));
    EXPECT_EQ(sumOver(shooting, shooting.SOG, false), shooting.Shots);
    EXPECT_EQ(sumOver(defending, defending.SOG, true), shooting.Shots);
    EXPECT_EQ(sumOver(defending, defending.G, true), shooting.Goals);
    for (int row = 0; row < RosterRows; ++row)
        EXPECT_LE(shooting.G[row], shooting.SOG[row]);
}

void expectPenaltiesOfSummaryPlayersAndTeamAgree(const GameSheet& game, Side side) {
    const TeamSheet& team = game.of(side);
    TeamSheet::RowFigures minutes{};
    int minors = 0;
    const auto penalties = entriesOf(game.penalties, side);
    for (const PenaltyEntry& penalty : penalties) {
        const int length = minutesOf(static_cast<Infraction>(kindOf(penalty.type)));
        minutes[penalty.player] += length;
        minors += length == 2;
    }
    EXPECT_EQ(team.PIM, minutes);
    EXPECT_EQ(team.PenM, std::accumulate(minutes.begin(), minutes.end(), 0));
    EXPECT_EQ(team.Penalties, static_cast<int>(penalties.size()));
    EXPECT_LE(game.of(otherSide(side)).PPA, minors);
    EXPECT_LE(team.PPG, team.PPA);
}

void expectPenaltiesForMenMoreOrLess(const GameSheet& game, Side side) {
    for (const ScoringEntry& goal : entriesOf(game.goals, side)) {
        const int now = playedSeconds(goal.period, goal.seconds);
        const auto running = [&](Side penalised) {
            return std::ranges::count_if(
                entriesOf(game.penalties, penalised), [&](const PenaltyEntry& minor) {
                    const int gone = now - playedSeconds(minor.period, minor.seconds);
                    // A third minor waits for one of the first two.
                    return gone >= 0 && gone <= 2 * 120 &&
                           minutesOf(static_cast<Infraction>(kindOf(minor.type))) == 2;
                });
        };
        const int menMore = kindOf(goal.type) - static_cast<int>(Strength::Even);
        EXPECT_LE(menMore, running(otherSide(side)));
        EXPECT_LE(-menMore, running(side));
    }
}

void expectFightsInPairsWithOneWinner(const GameSheet& game) {
    std::map<int, std::multiset<int>> fights;
    std::map<int, int> sides;
    for (const PenaltyEntry& penalty : game.penalties)
        if (kindOf(penalty.type) == 38 || kindOf(penalty.type) == 40) {
            const int time = playedSeconds(penalty.period, penalty.seconds);
            fights[time].insert(kindOf(penalty.type));
            sides[time] += isSideOf(penalty.type, Side::Away) ? 1 : -1;
        }
    for (const auto& [time, codes] : fights) {
        EXPECT_THAT(codes, testing::ElementsAre(38, 40));
        EXPECT_EQ(sides[time], 0);
    }
}

void expectClocksWithinTheirPeriods(const GameSheet& game) {
    const auto checkClock = [](const auto& entries) {
        int last = 0;
        for (const auto& entry : entries) {
            EXPECT_THAT(entry.period, testing::AllOf(testing::Ge(1), testing::Le(4)));
            EXPECT_THAT(entry.seconds,
                        testing::AllOf(testing::Ge(1), testing::Le(entry.period == 4 ? 300 : 1200)));
            const int now = playedSeconds(entry.period, entry.seconds);
            EXPECT_LE(last, now);
            last = now;
        }
    };
    checkClock(game.goals);
    checkClock(game.penalties);
    const auto inOvertime = std::ranges::count(game.goals, 4, &ScoringEntry::period);
    const int margin = std::abs(game.home.Goals - game.away.Goals);
    EXPECT_LE(inOvertime, 1);
    EXPECT_TRUE(!wentToOvertime(game) || margin == inOvertime);
}

void expectPlausibleFigures(const GameSheet& game, Side side) {
    const TeamSheet& team = game.of(side);
    EXPECT_LE(team.PassComp, team.PassAtt);
    EXPECT_THAT(team.Shots, testing::AllOf(testing::Ge(8), testing::Le(75)));
    EXPECT_THAT(team.AttackZone, testing::AllOf(testing::Ge(400), testing::Le(1800)));
    EXPECT_LE(team.AttackZone + game.of(otherSide(side)).AttackZone, 3 * 1200 + 300);
    EXPECT_LE(team.PairAMade, team.PairAAtt);
    EXPECT_LE(team.PairBMade, team.PairBAtt);
    EXPECT_LE(team.PairCMade, team.PairCAtt);
    EXPECT_LE(team.PairAAtt + team.PairBAtt + team.PairCAtt, team.Shots);
    EXPECT_THAT(game.crowdMeter, testing::AllOf(testing::Ge(60), testing::Le(110)));
    for (int row = 0; row < RosterRows; ++row)
        EXPECT_TRUE(!rosterOf(team)[row].isEmpty() ||
                    team.G[row] + team.A[row] + team.SOG[row] + team.PIM[row] == 0)
            << row;
}

void expectCountersOfOneByte(const GameSheet& game, Side side) {
    const TeamSheet& team = game.of(side);
    for (const int counter : {team.Shots, team.Penalties, team.PenM, team.FaceoffsWon, team.BodyChecks,
                              team.PassAtt, team.PPAux, team.PairBAtt})
        EXPECT_LE(counter, 255);
}

void expectTheLeagueTakesTheFile(const GameSheet& game) {
    const SaveState read("game", saveStateBytes(game));
    EXPECT_EQ(read.refusal(), std::nullopt);
    EXPECT_EQ(read.scoringEntries(), game.goals);
    EXPECT_EQ(read.penaltyEntries(), game.penalties);
}

TEST(SampleGames, AllFiguresOfAGameAgree) {
    int number = 0;
    for (const GameSheet& game : manyGames()) {
        SCOPED_TRACE(testing::Message() << "game " << ++number);
        expectClocksWithinTheirPeriods(game);
        expectFightsInPairsWithOneWinner(game);
        expectTheLeagueTakesTheFile(game);
        for (const Side side : {Side::Home, Side::Away}) {
            expectGoalsOfSummaryPlayersAndTeamAgree(game, side);
            expectGoaliesFaceTheOtherTeamsShots(game, side);
            expectPenaltiesOfSummaryPlayersAndTeamAgree(game, side);
            expectPenaltiesForMenMoreOrLess(game, side);
            expectPlausibleFigures(game, side);
            expectCountersOfOneByte(game, side);
        }
        ASSERT_FALSE(HasFailure());
    }
}

TEST(SampleGames, GamesOfEveryKindOccur) {
    std::map<std::string, int> seen;
    for (const GameSheet& game : manyGames()) {
        const int home = game.home.Goals;
        const int away = game.away.Goals;
        seen["tie without goals"] += home + away == 0;
        seen["tie"] += home == away;
        seen["tie after a penalty in overtime"] += home == away && wentToOvertime(game);
        seen["overtime win"] += home != away && wentToOvertime(game);
        seen["shutout"] += (home == 0) != (away == 0);
        seen["two goalies"] += goaliesUsed(game.home) == 2;
        seen["goalie's assist"] += sumOver(game.home, game.home.A, true) > 0;
        for (const ScoringEntry& goal : game.goals) {
            ++seen["strength " + std::to_string(kindOf(goal.type))];
            ++seen[goal.assist1 == NoAssist   ? "unassisted"
                   : goal.assist2 == NoAssist ? "one assist"
                                              : "two assists"];
        }
        for (const PenaltyEntry& penalty : game.penalties)
            ++seen["penalty " + std::to_string(kindOf(penalty.type))];
    }
    for (const auto& [kind, count] : seen)
        EXPECT_GT(count, 0) << kind;
    EXPECT_EQ(seen.size(), 7u + 5u + 3u + 12u);
    EXPECT_LT(seen["tie without goals"], GamesPerSeed * static_cast<int>(Seeds) / 200);
}

TEST(SampleGames, BetterRostersWinMoreOften) {
    const LeagueRosters rosters = builtInRosters();
    const TeamIndex pittsburgh{15};
    const TeamIndex ottawa{13};
    int lead = 0;
    for (int number = 1; number <= 200; ++number) {
        const GameSheet game = sampleGame(1, number, {ottawa, pittsburgh}, rosters);
        lead += (game.away.Goals > game.home.Goals) - (game.away.Goals < game.home.Goals);
    }
    EXPECT_THAT(lead, testing::AllOf(testing::Gt(60), testing::Lt(180)));
}

TEST(SampleSchedule, GivesEveryTeamOneGameARoundAndHomeAndAwayInTwo) {
    const auto schedule = sampleSchedule(11 * 24, 7);
    for (std::size_t first = 0; first < schedule.size(); first += 24) {
        std::set<TeamIndex> home;
        std::set<TeamIndex> away;
        std::set<TeamIndex> round;
        for (std::size_t game = first; game < first + 24; ++game) {
            home.insert(schedule[game].home);
            away.insert(schedule[game].away);
            if (game < first + 12)
                round.insert({schedule[game].home, schedule[game].away});
        }
        EXPECT_EQ(home.size(), 24u);
        EXPECT_EQ(away.size(), 24u);
        EXPECT_EQ(round.size(), 24u);
    }
}

TEST(SampleSchedule, MeetsEveryPairOnceACycleAndExchangesHomeAndAway) {
    const auto schedule = sampleSchedule(2 * 276, 7);
    std::set<std::pair<TeamIndex, TeamIndex>> pairs;
    for (std::size_t game = 0; game < 276; ++game) {
        const auto [home, away] = schedule[game];
        pairs.insert(std::minmax(home, away));
        EXPECT_EQ(schedule[game + 276], (Pairing{away, home}));
    }
    EXPECT_EQ(pairs.size(), 276u);
}

std::uint64_t checksum(const MemoryFiles& files) {
    std::uint64_t sum = 0xCBF29CE484222325u;
    for (const auto& [path, content] : files.files)
        for (const char byte : path + content)
            sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3u;
    return sum;
}

TEST(WriteSampleGames, NamesFilesInPlayingOrder) {
    MemoryFiles files;
    writeSampleGames(files, "games", DefaultSampleGames, 1);
    const auto names = files.filesIn("games");
    ASSERT_EQ(names.size(), 24u);
    EXPECT_EQ(names.front(), "game-0001.gs0");
    EXPECT_EQ(names.back(), "game-0024.gs0");
    const Pairing last = sampleSchedule(24, 1).back();
    EXPECT_EQ(files.files["games/game-0024.gs0"][SaveStateMap::HomeTeam], last.home);
    EXPECT_EQ(files.files["games/game-0024.gs0"][SaveStateMap::AwayTeam], last.away);
}

TEST(WriteSampleGames, WritesTheSameBytesForASeedOnEveryMachine) {
    MemoryFiles first;
    MemoryFiles again;
    MemoryFiles other;
    writeSampleGames(first, "games", DefaultSampleGames, 1);
    writeSampleGames(again, "games", DefaultSampleGames, 1);
    writeSampleGames(other, "games", DefaultSampleGames, 2);
    EXPECT_EQ(first.files, again.files);
    EXPECT_NE(first.files, other.files);
    EXPECT_EQ(checksum(first), 15115135536822086235u)
        << "new rosters or rules of play change the games: pin them anew, on purpose";
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
