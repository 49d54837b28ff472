#pragma once

#include "league/TeamTable.h"

#include <string>

namespace iceline {

/// A star of the game.
struct StarOfGame {
    TeamIndex Team;
    std::string Name;
};

} // namespace iceline
