#pragma once

namespace iceline {

/// The two teams of a game.
enum class Side { Home, Away };

inline constexpr Side otherSide(Side side) {
    return side == Side::Home ? Side::Away : Side::Home;
}

} // namespace iceline
