#pragma once

#include "files/Files.h"
#include "games/GameReport.h"

#include <optional>
#include <string>

namespace iceline {

/// What the site tells of a game, besides its report.
struct BoxScore {
    const GameReport& report;     ///< with its stars
    std::string page;             ///< file name of the game's page
    std::optional<GameKind> kind; ///< a game without one has no row in the list
    std::optional<std::string> homeCoach;
    std::optional<std::string> awayCoach;
};

/// The file name of a game's page: that of its save state, with what follows the last point replaced by
/// "htm". A name without a point gets ".htm", and one with nothing before the point is "_.htm".
std::string boxScorePageName(const std::string& saveStateFileName);

/// The game's page.
std::string boxScorePage(const BoxScore& game);

/// The row of a game, which must have a kind, in the list of box scores, ended by CR LF. `gameNumber` is its
/// running number.
std::string boxScoreListRow(const BoxScore& game, int gameNumber);

/// Writes the game's page, its row in the list (none for a game without a kind) and `Last 10 Box.txt`, and
/// reads `Overall Game Number.txt` for the row.
void writeBoxScore(Files& files, const BoxScore& game);

} // namespace iceline
