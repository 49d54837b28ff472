#pragma once

#include <filesystem>
#include <optional>

namespace iceline::desktop {

/// The folder of the league to open when none is given: beside the program where a league lies or a file
/// `portable` asks for one, as on a stick; else the league opened last; else a folder that the user chooses.
/// None when he chooses none.
std::optional<std::filesystem::path> leagueToOpen();

/// Makes a league the one opened last, in the user's settings.
void rememberLeague(const std::filesystem::path& folder);

} // namespace iceline::desktop
