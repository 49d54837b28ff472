#pragma once

#include "files/Files.h"
#include "league/TeamTable.h"
#include "players/PlayerColumns.h"
#include "store/LeaguePaths.h"

#include <string>
#include <string_view>
#include <vector>

namespace iceline {

/// A row as it is shown: the name, and the texts of the columns.
struct PlayerTableRow {
    std::string Name;
    std::vector<std::string> texts;
};

/// A team's skaters or goalies with their figures as whole numbers, in the order of the roster.
class PlayerTable {
public:
    PlayerTable() = default;

    /// The rows of the roster down to the first empty one that are goalies, or that are not.
    static PlayerTable skaters(const Roster& roster, const TeamPlayerStats& stats);
    static PlayerTable goalies(const Roster& roster, const TeamPlayerStats& stats);

    int count() const { return static_cast<int>(rows_.size()); }

    /// In the order of the roster.
    const std::vector<PlayerTableRow>& rows() const { return rows_; }

    /// The places of the rows ordered by a column; of equal values the one higher on the roster comes first.
    /// The column after the last is the name, which means the order of the roster, reversed when ascending.
    std::vector<std::size_t> order(int column, bool ascending) const;

    /// The rows in that order.
    std::vector<PlayerTableRow> ordered(int column, bool ascending) const;

    /// The row with the highest value of a column. There must be one.
    const PlayerTableRow& leader(int column) const;

private:
    template <class Stats>
    static PlayerTable made(std::span<const PlayerColumn<Stats>> columns, const Roster& roster,
                            const TeamPlayerStats& stats);

    std::vector<int> valuesOf(std::size_t column) const;

    std::vector<PlayerTableRow> rows_;
    std::vector<std::vector<int>> values_;
    std::size_t columns_ = 0;
};

/// A team's leader in a category; "" and "0" while the team has no skaters.
struct CategoryLeader {
    std::string_view heading;
    std::string_view control; ///< label of the figure; the name's ends in "Name"
    std::string Name;
    std::string value;
};

/// A team's players in a part of the year.
struct TeamPlayers {
    PlayerTable skaters;
    PlayerTable goalies;
    std::vector<CategoryLeader> leaders; ///< one for each of the LeaderCategories
};

/// Reads a team's roster and statistics.
TeamPlayers readTeamPlayers(Files& files, TeamIndex team, PartOfYear part);

} // namespace iceline
