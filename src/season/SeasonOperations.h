#pragma once

#include "log/Entry.h"
#include "shell/Application.h"

#include <optional>
#include <string>

namespace iceline {

/// The operations of the window Options, the same when they are done and when the books are worked out anew.
/// Each changes the files in force and what the shared state holds of them.

void carryOut(Application& app, const CoachAdded& operation);
void carryOut(Application& app, const CoachRenamed& operation);
void carryOut(Application& app, const CoachDeleted& operation);
void carryOut(Application& app, const CoachCleared& operation);
void carryOut(Application& app, const SeasonLengthSet& operation);

/// Whoever calls this tests whether the season is over then, which it is.
void carryOut(Application& app, const GoneToPlayoffs& operation);

/// The league is back in its regular season.
void carryOut(Application& app, const StatsCleared& operation);

/// The league is in the regular season of the next year. A season that was ended by hand leaves it the length
/// chosen last, which the league's history tells when it is not given.
void carryOut(Application& app, const NewSeason& operation);
void carryOut(Application& app, const NewSeason& operation, int chosenLength);

/// Why the league as it is now has no place for the operation, in a sentence; none when it has.
std::optional<std::string> misfitOf(Application& app, const CoachAdded& operation);
std::optional<std::string> misfitOf(Application& app, const CoachRenamed& operation);
std::optional<std::string> misfitOf(Application& app, const CoachDeleted& operation);
std::optional<std::string> misfitOf(Application& app, const CoachCleared& operation);
std::optional<std::string> misfitOf(Application& app, const NewSeason& operation);

} // namespace iceline
