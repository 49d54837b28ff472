#pragma once

#include <span>
#include <string>

namespace iceline {

/// A data file and what a new league begins it with.
struct InitialFile {
    std::string name;
    std::string (*content)();
    bool isCleared = true; ///< clearing the league writes the content again
};

/// The league-wide files, in the order in which start-up makes them.
std::span<const InitialFile> initialLeagueFiles();

/// The files that a team has for each part of the year, in the order in which start-up makes them.
std::span<const InitialFile> initialTeamFiles();

/// The files of a coach, in the order in which start-up makes them.
std::span<const InitialFile> initialCoachFiles();

} // namespace iceline
