#include "games/ThreeStars.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace iceline {

namespace {

using Rows = std::vector<std::size_t>; ///< in rising order
using Figure = int StarRow::*;

/// Rows at the head of a roster in which the rule of the shutout looks for a goalie.
constexpr std::size_t ShutoutRows = 3;

constexpr std::size_t firstRow(Side side) {
    return side == Side::Home ? 0 : RosterRows;
}

constexpr Side sideOfRow(std::size_t row) {
    return row < RosterRows ? Side::Home : Side::Away;
}

std::optional<std::size_t> upper(const Rows& rows) {
    return rows.empty() ? std::nullopt : std::optional(rows.front());
}

std::optional<std::size_t> lower(const Rows& rows) {
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

    void skaterLadder(std::size_t firstStar, int rounds) {
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
        const auto row = rosterRow(scorer);
        if (!row)
            return;
        stars_[0] = firstRow(winner) + *row;
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
        const std::size_t first = firstRow(side);
        const Rows goalies = rowsFrom(first, first + ShutoutRows, isBusyGoalie);
        stars_[0] = upper(best(goalies, {&StarRow::SOG, &StarRow::A})).value_or(0);
    }

private:
    Rows rowsFrom(std::size_t first, std::size_t end, bool (*test)(const StarRow&)) const {
        Rows rows;
        for (std::size_t row = first; row < end; ++row)
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
        const auto value = [&](std::size_t row) { return table_[row].*figure; };
        const int kept = value(extreme(rows, {}, value));
        std::erase_if(rows, [&](std::size_t row) { return value(row) != kept; });
        return rows;
    }

    /// Keeps the rows with the highest first figure, among them those with the highest second, and so on.
    Rows best(Rows rows, std::initializer_list<Figure> figures) const {
        for (const Figure figure : figures)
            rows = keep(std::move(rows), figure, std::ranges::max);
        return rows;
    }

    /// One round of the ladder; returns how many skaters were level at its top.
    std::size_t fillWithBestSkaters(std::size_t firstStar) {
        const Rows rows = best(rowsFrom(0, StarRows, isFreeSkater),
                               {&StarRow::Pts, &StarRow::G, &StarRow::A, &StarRow::SOG});
        for (std::size_t i = 0; i < rows.size() && firstStar + i < stars_.size(); ++i) {
            stars_[firstStar + i] = rows[i];
            table_[rows[i]].Used = true;
        }
        return rows.size();
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

StarRow starRow(const TeamSheet& team, RosterIndex row, const RosterRow& player) {
    const bool empty = player.isEmpty() || player.Name.empty();
    const int goals = team.G[row];
    const int assists = team.A[row];
    return {goals + assists, goals, assists, team.SOG[row], player.isGoalie(), empty};
}

/// The table of a game; empty roster rows are Used.
StarTable starTable(const PlayedGame& game) {
    StarTable table;
    for (const Side side : {Side::Home, Side::Away})
        for (const RosterIndex row : AllRosterRows)
            table[firstRow(side) + row] = starRow(game.sheet.of(side), row, game.rosters.of(side)[row]);
    return table;
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

void selectStars(ApplicationState& state, const PlayedGame& game) {
    const StarChoice stars = threeStars(starTable(game), {state.GameLastPeriod, game.sheet.home.Goals,
                                                          game.sheet.away.Goals, game.lastScorer});
    for (std::size_t k = 0; k < stars.size(); ++k) {
        if (!stars[k])
            continue;
        const Side side = sideOfRow(*stars[k]);
        const RosterIndex row(static_cast<int>(*stars[k] - firstRow(side)));
        state.StarSlot[k] = row;
        state.Star[k] = {game.sheet.of(side).team, game.rosters.of(side)[row].Name};
    }
}

} // namespace iceline
