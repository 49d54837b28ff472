#include "games/ThreeStars.h"

#include "games/GameSheetReader.h"
#include "games/SaveStateMap.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace iceline {

namespace {

using Rows = std::vector<int>; ///< in rising order
using Figure = int StarRow::*;

/// Rows at the head of a roster in which the rule of the shutout looks for a goalie.
constexpr int ShutoutRows = 3;

constexpr int firstRow(Side side) {
    return side == Side::Home ? 0 : RosterRows;
}

constexpr Side sideOfRow(int row) {
    return row < RosterRows ? Side::Home : Side::Away;
}

std::optional<int> upper(const Rows& rows) {
    return rows.empty() ? std::nullopt : std::optional(rows.front());
}

std::optional<int> lower(const Rows& rows) {
    return rows.empty() ? std::nullopt : std::optional(rows.back());
}

bool isGoalie(const StarRow& row) {
    return row.goalie;
}

bool isSkater(const StarRow& row) {
    return !row.goalie;
}

bool isFreeSkater(const StarRow& row) {
    return !row.goalie && !row.Used;
}

bool isBusyGoalie(const StarRow& row) {
    return row.goalie && row.SOG > 0;
}

/// The choice of one game's stars while it is made.
class Choice {
public:
    explicit Choice(const StarTable& table) : table_(table) {}

    const StarChoice& stars() const { return stars_; }

    void skaterLadder(int firstStar, int rounds) {
        for (int round = 0; round < rounds; ++round)
            firstStar += fillWithBestSkaters(firstStar);
    }

    void busiestGoalies() {
        stars_[0] = upper(best(rowsFrom(0, StarRows, isGoalie), {&StarRow::SOG}));
        if (stars_[0])
            stars_[1] = upper(best(rowsOf(otherSide(sideOfRow(*stars_[0])), isGoalie), {&StarRow::SOG}));
    }

    void busiestShooter() { stars_[2] = upper(best(rowsFrom(0, StarRows, isSkater), {&StarRow::SOG})); }

    void winningGoal(Side winner, int scorer) {
        if (scorer >= RosterRows)
            return;
        stars_[0] = firstRow(winner) + scorer;
        table_[*stars_[0]].Used = true;
    }

    void winnersGoalie(Side winner) {
        stars_[1] = upper(best(rowsOf(winner, isGoalie), {&StarRow::SOG, &StarRow::A}));
    }

    void losersGoalie(Side loser) {
        const Rows fewestGoals = keep(rowsOf(loser, isBusyGoalie), &StarRow::G, std::ranges::min);
        stars_[2] = lower(best(fewestGoals, {&StarRow::SOG, &StarRow::A}));
    }

    void shutoutGoalie(Side side) {
        const int first = firstRow(side);
        const Rows goalies = rowsFrom(first, first + ShutoutRows, isBusyGoalie);
        stars_[0] = upper(best(goalies, {&StarRow::SOG, &StarRow::A})).value_or(0);
    }

private:
    Rows rowsFrom(int first, int end, bool (*test)(const StarRow&)) const {
        Rows rows;
        for (int row = first; row < end; ++row)
            if (test(table_[row]))
                rows.push_back(row);
        return rows;
    }

    Rows rowsOf(Side side, bool (*test)(const StarRow&)) const {
        return rowsFrom(firstRow(side), firstRow(side) + RosterRows, test);
    }

    /// Keeps the rows whose figure is the extreme one.
    template <class Extreme>
    Rows keep(Rows rows, Figure figure, const Extreme& extreme) const {
        if (rows.empty())
            return rows;
        const auto value = [&](int row) { return table_[row].*figure; };
        const int kept = value(extreme(rows, {}, value));
        std::erase_if(rows, [&](int row) { return value(row) != kept; });
        return rows;
    }

    /// Keeps the rows with the highest first figure, among them those with the highest second, and so on.
    Rows best(Rows rows, std::initializer_list<Figure> figures) const {
        for (const Figure figure : figures)
            rows = keep(std::move(rows), figure, std::ranges::max);
        return rows;
    }

    /// One round of the ladder; returns how many skaters stood level at its top.
    int fillWithBestSkaters(int firstStar) {
        const Rows rows = best(rowsFrom(0, StarRows, isFreeSkater),
                               {&StarRow::Pts, &StarRow::G, &StarRow::A, &StarRow::SOG});
        for (std::size_t i = 0; i < rows.size() && firstStar + i < stars_.size(); ++i) {
            stars_[firstStar + i] = rows[i];
            table_[rows[i]].Used = true;
        }
        return static_cast<int>(rows.size());
    }

    StarTable table_;
    StarChoice stars_;
};

void overtimeStars(Choice& choice, const StarRules& rules) {
    const int home = rules.homeGoals;
    const int away = rules.awayGoals;
    const Side winner = home > away ? Side::Home : Side::Away;
    if (home == 0 && away == 0) {
        choice.busiestGoalies();
        choice.busiestShooter();
    } else if (home == away) {
        choice.skaterLadder(0, 3);
    } else {
        choice.winningGoal(winner, rules.lastScorer);
        if (home > 0 && away > 0) {
            choice.skaterLadder(1, 2);
        } else {
            choice.winnersGoalie(winner);
            choice.losersGoalie(otherSide(winner));
        }
    }
}

void regulationStars(Choice& choice, const StarRules& rules) {
    if (rules.homeGoals > 0 && rules.awayGoals > 0) {
        choice.skaterLadder(0, 3);
    } else {
        choice.shutoutGoalie(rules.homeGoals > rules.awayGoals ? Side::Home : Side::Away);
        choice.skaterLadder(1, 2);
    }
}

StarRow starRow(const TeamSheet& team, int row, const RosterRow& player) {
    const bool empty = player.isEmpty() || player.Name.empty();
    const int goals = team.G[row];
    const int assists = team.A[row];
    return {goals + assists, goals, assists, team.SOG[row], player.isGoalie(), empty};
}

/// The table of a game; empty roster rows are Used.
StarTable starTable(const GameSheet& game, const GameRosters& rosters) {
    StarTable table;
    for (const Side side : {Side::Home, Side::Away})
        for (int row = 0; row < RosterRows; ++row)
            table[firstRow(side) + row] = starRow(game.of(side), row, rosters.of(side)[row]);
    return table;
}

/// The byte in the scorer's place of the entry that ends where the scoring table ends.
int lastScorer(const SaveState& save) {
    constexpr int FromEnd = 3;
    const int end = SaveStateMap::ScoringTable + save.byteAt(SaveStateMap::ScoringLength);
    return save.byteAt(end - FromEnd);
}

} // namespace

StarChoice threeStars(const StarTable& table, const StarRules& rules) {
    Choice choice(table);
    if (rules.GameLastPeriod >= OvertimePeriod)
        overtimeStars(choice, rules);
    else
        regulationStars(choice, rules);
    return choice.stars();
}

void selectStars(ApplicationState& state, const SaveState& save, const GameRosters& rosters) {
    const GameSheet game = readGameSheet(save);
    state.HomeName = TeamName[game.home.team];
    state.AwayName = TeamName[game.away.team];
    const StarChoice stars = threeStars(
        starTable(game, rosters), {state.GameLastPeriod, game.home.Goals, game.away.Goals, lastScorer(save)});
    for (std::size_t k = 0; k < stars.size(); ++k) {
        if (!stars[k])
            continue;
        const Side side = sideOfRow(*stars[k]);
        state.StarSlot[k] = *stars[k] - firstRow(side);
        state.Star[k] = {game.of(side).team, rosters.of(side)[state.StarSlot[k]].Name};
    }
}

} // namespace iceline
