#pragma once

#include "shell/ApplicationState.h"
#include "shell/LeaderColumns.h"
#include "store/TeamFiles.h"

namespace iceline {

/// The load step of the leader tables: gathers their figures from the teams' files of a part of the year, in
/// the order of the teams and of their rosters. Every reader throws FileError, also for a figure that is too
/// large for its column.

using TeamLeaders = decltype(ApplicationState::TeamLeaderTable);

/// The figures of a team's part of the year, or of a coach. Without games there are no goals a game.
std::array<int, TeamLeaderColumns.size()> readTeamLeaderFigures(Files& files, const RecordFolder& folder);

/// All teams.
TeamLeaders readTeamLeaders(Files& files, PartOfYear part);

/// The skaters who have played.
std::vector<LeaderRow<PlayerLeaderColumns.size()>> readPlayerLeaders(Files& files, PartOfYear part);

/// The goalies who have played.
std::vector<LeaderRow<GoalieLeaderColumns.size()>> readGoalieLeaders(Files& files, PartOfYear part);

/// Whoever has three-star points, goalie or not.
std::vector<LeaderRow<StarLeaderColumns.size()>> readStarLeaders(Files& files, PartOfYear part);

} // namespace iceline
