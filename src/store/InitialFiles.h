#pragma once

#include <span>
#include <string>

namespace iceline {

/// Games that a team plays in the regular season of a new league.
inline constexpr int SeasonLengthAtStart = 82;

/// How long the content of a data file lasts at most.
enum class Lasts { ForTheSeason, UntilTheLeagueIsCleared, Always };

/// A data file and what a new league begins it with.
struct InitialFile {
    std::string name;
    std::string (*content)();
    Lasts lasts = Lasts::UntilTheLeagueIsCleared;
};

/// The league-wide files, in the order in which start-up makes them.
std::span<const InitialFile> initialLeagueFiles();

/// The files that a team has for each part of the year, in the order in which start-up makes them.
std::span<const InitialFile> initialTeamFiles();

/// The files of a coach, in the order in which start-up makes them.
std::span<const InitialFile> initialCoachFiles();

} // namespace iceline
