#pragma once

#include "league/Index.h"
#include "league/Side.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace iceline {

/// Rows of a roster: the places in which the game holds a team's players.
inline constexpr int RosterRows = 25;

/// A row of a roster, by which the game knows a team's player.
using RosterIndex = Index<struct RosterTable>;

/// The rows of a roster, for a loop over them.
inline constexpr FirstRows<RosterIndex> AllRosterRows{RosterRows};

/// The roster row that a byte of a game names; none for a byte that is no row of a roster.
inline constexpr std::optional<RosterIndex> rosterRow(int byte) {
    return byte < RosterRows ? std::optional(RosterIndex(byte)) : std::nullopt;
}

/// The name that marks an empty roster row.
inline constexpr std::string_view EmptyRowName = "-----------";

/// A line of `Players List.txt`; nothing in it is quoted. The default is the empty row.
struct RosterRow {
    std::string Name{EmptyRowName};
    int Number = 0;             ///< sweater number
    int Rating = 0;             ///< the game's rating of the player, 0 to 99
    std::string Position = "D"; ///< "G", "F" or "D"

    bool isEmpty() const { return Name == EmptyRowName; }
    bool isGoalie() const { return Position == "G"; }
};

using Roster = std::array<RosterRow, RosterRows>;

/// The rosters of the two teams of a game.
struct GameRosters {
    Roster home;
    Roster away;

    const Roster& of(Side side) const { return side == Side::Home ? home : away; }
};

} // namespace iceline
