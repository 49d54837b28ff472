#pragma once

#include "league/GameSheet.h"

#include <string>

namespace iceline {

/// The save state of a game: 65,536 bytes, every value at its place and 0 elsewhere. Throws std::out_of_range
/// when a value does not fit its byte or word, or a summary has more entries than room.
std::string saveStateBytes(const GameSheet& game);

} // namespace iceline
