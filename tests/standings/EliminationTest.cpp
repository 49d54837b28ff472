#include "standings/Elimination.h"

#include "standings/Alignment.h"
#include "standings/StandingsSupport.h"
#include "support/Test.h"

#include <random>

namespace iceline::test {
namespace {

/// The league's rule step by step: five stages fill two lists in turn, each by walking the other from its
/// last entry to its first. A list that no team enters keeps what it held.
class FiveStages {
public:
    explicit FiveStages(const LeagueTable& table) : table_(table) {}

    TeamIndex pick(const std::vector<TeamIndex>& candidates) {
        std::ranges::copy(candidates, b_.teams.begin());
        b_.count = candidates.size();
        fill(a_, b_, &TeamStanding::Points);
        fill(b_, a_, &TeamStanding::Wins);
        fill(a_, b_, &TeamStanding::PowerRanking);
        fill(b_, a_, &TeamStanding::Difference);
        fill(a_, b_, &TeamStanding::GF);
        picksFromWhatWasHeld += a_.count == 0;
        return a_.teams.front();
    }

    int picksFromWhatWasHeld = 0;

private:
    struct List {
        std::array<TeamIndex, LeagueTeams> teams{};
        std::size_t count = 0;
    };

    void fill(List& into, const List& from, int TeamStanding::*figure) const {
        int best = 0;
        into.count = 0;
        for (std::size_t place = from.count; place-- > 0;) {
            const TeamIndex team = from.teams[place];
            const int value = table_[team].*figure;
            if (value > best) {
                best = value;
                into.count = 0;
            }
            if (value == best)
                into.teams[into.count++] = team;
        }
    }

    const LeagueTable& table_;
    List a_;
    List b_;
};

TEST(Elimination, AnswersAsTheFiveStagesDoOnAnyTable) {
    std::mt19937 chance(2026); // NOLINT: the same tables every time
    const auto from = [&chance](int lowest, int highest) {
        return lowest + static_cast<int>(chance() % static_cast<unsigned>(highest - lowest + 1));
    };
    int picksFromWhatWasHeld = 0;
    for (int number = 0; number < 2000; ++number) {
        LeagueTable table;
        for (TeamStanding& figures : table)
            figures = {.Wins = from(-1, 1),
                       .Losses = from(0, 9),
                       .Points = from(0, 1),
                       .GP = from(0, 9),
                       .GF = from(-1, 2),
                       .GA = from(0, 9),
                       .Difference = from(-2, 1),
                       .PowerRanking = from(-2, 1)};
        FiveStages stages(table);
        for (const Conference conference : {Conference::Wales, Conference::Campbell}) {
            std::vector<TeamIndex> left = teamsOf(conference);
            for (const TeamIndex team : eliminationOrder(table, left)) {
                ASSERT_EQ(TeamAbbr[team], TeamAbbr[stages.pick(left)]) << "table " << number;
                std::erase(left, team);
            }
        }
        picksFromWhatWasHeld += stages.picksFromWhatWasHeld;
    }
    EXPECT_GT(picksFromWhatWasHeld, 5000);
}

TEST(Elimination, NegativePointsAndWinsStillGiveEveryTeamOnePlace) {
    LeagueTable table;
    for (const std::string_view abbr : {"BOS", "BUF", "HFD"})
        table[team(abbr)] = {.Wins = -1, .Points = -2};
    table[team("MTL")] = {.Wins = -1};
    EXPECT_EQ(abbrs(eliminationOrder(table, teamsOf(Division::Adams))), "QUE OTA MTL HFD BUF BOS");
}

} // namespace
} // namespace iceline::test
