#pragma once

#include "shell/ApplicationState.h"
#include "store/TeamFiles.h"

namespace iceline {

/// The load step of the leader tables: gathers their figures from the teams' files of a part of the year, in
/// the order of the teams and of their rosters. Every reader throws FileError, also for a figure that is too
/// large for its column.

/// The figures of a team's part of the year, or of a coach. Without games there are no goals per game.
TeamLeader readTeamLeader(Files& files, const RecordFolder& folder);

/// All teams.
std::array<TeamLeader, LeagueTeams> readTeamLeaders(Files& files, PartOfYear part);

/// The skaters who have played.
std::vector<PlayerLeader> readPlayerLeaders(Files& files, PartOfYear part);

/// The goalies who have played.
std::vector<GoalieLeader> readGoalieLeaders(Files& files, PartOfYear part);

/// Whoever has three-star points, goalie or not.
std::vector<StarLeader> readStarLeaders(Files& files, PartOfYear part);

} // namespace iceline
