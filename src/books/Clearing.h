#pragma once

#include "files/Files.h"
#include "league/TeamTable.h"

#include <string>

namespace iceline {

/// The clearing of statistics: the initial content is written over the files.
/// Rosters, pages, and the coaches' own files stay as they are, unless a coach is what is cleared.

/// A team's files of both parts of the year.
void clearTeam(Files& files, TeamIndex team);

/// All teams, the league's records and lists, the bracket, game number and season length.
void clearLeague(Files& files);

/// What is a season's own: all teams, the bracket, the lists of games and their number. Records and the
/// season length stay.
void clearSeason(Files& files);

/// A coach's files; also what a new coach begins with. His folder must exist.
void clearCoach(Files& files, const std::string& coach);

} // namespace iceline
