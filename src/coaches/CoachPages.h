#pragma once

#include "leaders/LeaderLists.h"
#include "teams/TeamView.h"

#include <string>
#include <vector>

namespace iceline {

/// A coach's row of the table of all coaches.
struct CoachRow {
    LeaderLine line;
    TeamRecord record;
};

/// The table of all coaches.
std::string coachingStatsPage(const std::vector<CoachRow>& rows);

/// The page of one coach.
std::string coachPage(const std::string& coach, const TeamView& view);

} // namespace iceline
