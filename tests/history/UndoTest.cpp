#include "history/HistoryLeague.h"
#include "log/HistoryLog.h"

#include <algorithm>
#include <functional>
#include <random>

namespace iceline {
namespace {

using test::HistoryLeague;
using testing::HasSubstr;
using testing::IsEmpty;

/// One thing that a user does.
using Deed = std::function<void(HistoryLeague&)>;

/// A deed of any kind, by chance; games have ever new numbers.
Deed anyDeed(std::mt19937& chance, int number) {
    const auto below = [&chance](int limit) { return std::uniform_int_distribution(0, limit - 1)(chance); };
    const std::string coach = "Coach" + std::to_string(below(3));
    const std::string other = "Coach" + std::to_string(3 + below(2));
    const int team = below(LeagueTeams);
    const int length = below(4);
    switch (below(14)) {
    case 0:
        return [=](HistoryLeague& league) { league.addCoach(coach); };
    case 1:
        return [=](HistoryLeague& league) { league.deleteCoach(coach); };
    case 2:
        return [=](HistoryLeague& league) { league.clearCoach(coach); };
    case 3:
        return [=](HistoryLeague& league) { league.renameCoach(coach, other); };
    case 4:
        return [=](HistoryLeague& league) { league.clear(team); };
    case 5:
        return [=](HistoryLeague& league) { league.setSeasonLength(std::to_string(80 + length)); };
    case 6:
        return [=](HistoryLeague& league) { league.import(number, true, coach); };
    case 7:
        return [](HistoryLeague& league) { league.restart(); };
    case 8:
        return [=](HistoryLeague& league) { league.clear(length == 0 ? LeagueTeams : team); };
    default:
        return [=](HistoryLeague& league) { league.import(number, false, coach); };
    }
}

int linesOf(HistoryLeague& league) {
    return static_cast<int>(readHistory(league.files()).size());
}

/// The paths whose contents differ.
std::vector<std::string> differing(const std::map<std::string, std::string>& one,
                                   const std::map<std::string, std::string>& other) {
    std::vector<std::string> paths;
    for (const auto& [path, content] : one)
        if (!other.contains(path) || other.at(path) != content)
            paths.push_back(path);
    for (const auto& [path, content] : other)
        if (!one.contains(path))
            paths.push_back(path);
    return paths;
}

/// Deeds by chance, each with the number of its line, 0 for one without.
struct Played {
    HistoryLeague league;
    std::vector<Deed> deeds;
    std::vector<int> lines;
};

void play(Played& played, unsigned seed, int count) {
    std::mt19937 chance(seed);
    for (int i = 0; i < count; ++i) {
        const int before = linesOf(played.league);
        played.deeds.push_back(anyDeed(chance, i));
        played.deeds.back()(played.league);
        const int after = linesOf(played.league);
        played.lines.push_back(after > before ? after - 1 : 0);
    }
}

/// The league on which all deeds were done but those left out.
std::map<std::string, std::string> booksWithout(const Played& played, const std::vector<bool>& leftOut) {
    HistoryLeague league;
    for (std::size_t i = 0; i < played.deeds.size(); ++i)
        if (!leftOut[i])
            played.deeds[i](league);
    return league.books();
}

TEST(UndoTest, GivesTheLeagueThatNeverHadTheOperation) {
    int undone = 0;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        Played played;
        play(played, seed, 14);
        EXPECT_THAT(auditBooks(played.league.app()).differences, IsEmpty());
        const auto all = played.league.books();
        std::vector<bool> leftOut(played.deeds.size(), false);
        std::mt19937 chance(seed);
        for (int tries = 0; tries < 6; ++tries) {
            const auto deed = std::uniform_int_distribution<std::size_t>(0, played.deeds.size() - 1)(chance);
            if (played.lines[deed] == 0 || leftOut[deed])
                continue;
            const auto before = played.league.books();
            try {
                undo(played.league.app(), played.lines[deed]);
            } catch (const HistoryRefusal& refusal) {
                EXPECT_THAT(refusal.what(), HasSubstr("would not hold any more"));
                EXPECT_EQ(played.league.books(), before);
                continue;
            }
            leftOut[deed] = true;
            ++undone;
            EXPECT_THAT(differing(played.league.books(), booksWithout(played, leftOut)), IsEmpty());
        }
        while (std::ranges::count(leftOut, true) > 0) {
            redo(played.league.app());
            leftOut[static_cast<std::size_t>(std::ranges::find(leftOut, true) - leftOut.begin())] = false;
        }
        EXPECT_THAT(differing(played.league.books(), all), IsEmpty());
        EXPECT_THAT(auditBooks(played.league.app()).differences, IsEmpty());
    }
    EXPECT_GT(undone, 20);
}

} // namespace
} // namespace iceline
