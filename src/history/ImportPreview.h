#pragma once

#include "games/StatExtractor.h"
#include "store/TeamRecord.h"

#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// A team's standing at one moment, in the part of the year that the game belongs to.
struct TeamForm {
    TeamRecord record;
    Streak streak;
    int place = 0; ///< in its division, from 1; of the regular season
};

struct TeamOutlook {
    TeamIndex team;
    TeamForm before;
    TeamForm after;
};

/// What the import of a game would change.
struct ImportPreview {
    std::optional<std::string> refusal;
    std::optional<GameDoubt> doubt;   ///< what would be asked first
    std::vector<TeamOutlook> teams;   ///< home, away; empty when the game is refused
    std::vector<std::string> records; ///< that fall: "Player Records, Goals in a Game: Ann Smith (BOS) 5"
    std::string series; ///< "Boston Bruins 3, Montreal Canadiens 2"; empty outside the play-offs
};

/// The preview for the game that the game window has loaded, by its choices. Nothing changes.
ImportPreview previewImport(Application& app);

/// What is to be said of it, a sentence or a team a line: why the game is refused, or what changes.
std::vector<std::string> linesOf(const ImportPreview& preview);

} // namespace iceline
