#pragma once

#include "games/SaveState.h"
#include "league/GameSheet.h"

#include <optional>
#include <string>

namespace iceline {

/// All figures of the game that the league takes in: the inverse of saveStateBytes(), but that counters are
/// seen modulo 256. The summaries hold their whole entries.
GameSheet readGameSheet(const SaveState& save);

/// A game as its save state and the rosters of its teams tell it.
struct PlayedGame {
    GameSheet sheet;
    GameRosters rosters;                ///< empty rows where the game is refused
    int lastScorer = 0;                 ///< byte in the scorer's place of what ends the scoring table
    std::optional<std::string> refusal; ///< why the league cannot take the game, see SaveState::refusal()
    std::optional<std::string> unfinished =
        std::nullopt; ///< why it is no game played to its end, see SaveState::doubt()
};

/// Reads a game, each of its files once. Throws FileError when one cannot be read or a roster is malformed.
PlayedGame readGame(Files& files, const std::string& path);

} // namespace iceline
