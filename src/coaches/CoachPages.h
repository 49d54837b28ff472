#pragma once

#include "leaders/LeaderLists.h"
#include "teams/TeamView.h"

#include <string>

namespace iceline {

/// Writes the table of all coaches, `CoachingStats.htm`, in the order of the list. Reads each coach's record.
void writeCoachingStatsPage(Files& files, const LeaderList& coaches);

/// Writes the page of one coach, `CStats/<coach>.htm`.
void writeCoachPage(Files& files, const std::string& coach, const TeamView& view);

} // namespace iceline
