#pragma once

#include "files/Files.h"

#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// A coach is a folder of the league: its name is the coach's name. What sameName() calls the same names is
/// the same coach.

/// Characters that a coach's name may have.
inline constexpr std::size_t CoachNameLimit = 20;

/// The coaches in the order of their names.
std::vector<std::string> coachNames(Files& files);

/// The coach of that name as his folder has it; of several the one that is spelt alike.
std::optional<std::string> findCoach(Files& files, const std::string& name);

/// A name as it is stored: each blank becomes "_".
std::string storedCoachName(std::string name);

/// Why a stored name cannot be a coach's, in a sentence that says what is allowed; none when it can. The name
/// becomes a folder and a page, on any system.
std::optional<std::string> coachNameProblem(const std::string& name);

/// Creates the coach's folder and files. The name must be free and without a problem.
void createCoach(Files& files, const std::string& name);

/// Gives a coach another name, which must be without a problem and free, or his own in another spelling.
void renameCoach(Files& files, const std::string& from, const std::string& to);

/// Removes a coach with all his files.
void deleteCoach(Files& files, const std::string& name);

} // namespace iceline
