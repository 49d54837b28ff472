#pragma once

#include "files/Files.h"
#include "shell/ApplicationState.h"

namespace iceline {

/// Writes the fragments of the leader tables as they are filled: every order of the players, goalies, teams
/// and three-star leaders, into `Rankings` or `PlayoffRankings`.
void writeLeaderPages(Files& files, const ApplicationState& state, PartOfYear part);

} // namespace iceline
