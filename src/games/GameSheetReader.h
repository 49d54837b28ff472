#pragma once

#include "games/SaveState.h"
#include "league/GameSheet.h"

namespace iceline {

/// All figures of the game that the league takes in: the inverse of saveStateBytes(), but that counters are
/// seen modulo 256. The summaries hold their whole entries.
GameSheet readGameSheet(const SaveState& save);

} // namespace iceline
