#pragma once

#include "league/TeamTable.h"
#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace iceline {

/// Columns of a team's tables: position, number, power ranking and ten figures; a 14th column, the name, has
/// no figure and stands for the roster's order.
inline constexpr int PlayerTableColumns = 13;
inline constexpr int NameColumn = 13;

/// A column of a team's table.
struct PlayerColumn {
    std::string_view caption;
    std::string_view control; ///< label array of its figures
    double scale;             ///< what the figure is multiplied by to become a whole number
    double shownDividedBy;    ///< what the whole number is divided by to be shown
};

std::span<const PlayerColumn> skaterColumns();
std::span<const PlayerColumn> goalieColumns();

/// A row as it is shown: the name, and the texts of the columns.
struct PlayerTableRow {
    std::string Name;
    std::array<std::string, PlayerTableColumns> texts;
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
    std::vector<int> order(int column, bool ascending) const;

    /// The rows in that order.
    std::vector<PlayerTableRow> ordered(int column, bool ascending) const;

    /// Name and text of the row with the highest value of a column, "" and "0" when there is no row.
    std::pair<std::string, std::string> leader(int column) const;

private:
    explicit PlayerTable(std::span<const PlayerColumn> columns) : columns_(columns) {}

    void add(const std::string& name, const std::array<double, PlayerTableColumns>& figures);
    std::vector<int> valuesOf(int column) const;

    std::span<const PlayerColumn> columns_;
    std::vector<PlayerTableRow> rows_;
    std::vector<std::array<int, PlayerTableColumns>> values_;
};

/// The texts of a team's rows as they stand in all its fragments behind the cell of the number.
std::vector<std::string> skaterRowTexts(const PlayerTable& table, TeamIndex team, PartOfYear part);
std::vector<std::string> goalieRowTexts(const PlayerTable& table, TeamIndex team, PartOfYear part);

/// A team's fragment: its rows in an order, numbered from 1.
std::string playerFragment(const std::vector<std::string>& rowTexts, const std::vector<int>& order);

} // namespace iceline
