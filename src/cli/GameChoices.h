#pragma once

#include "cli/Command.h"

#include <string>

namespace iceline::cli {

/// The choices in the game window.
struct GameChoices {
    bool exhibition = false;
    std::string homeCoach; ///< "" for nobody
    std::string awayCoach;
};

/// Adds the options that make the choices to a command.
void addGameChoices(CLI::App& command, GameChoices& choices);

/// Makes the choices in the game window. Throws UsageError for a coach who does not exist, or who would coach
/// both teams.
void choose(Session& session, const GameChoices& choices);

} // namespace iceline::cli
