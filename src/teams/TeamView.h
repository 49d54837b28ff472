#pragma once

#include "files/Files.h"
#include "store/TeamFiles.h"

#include <string>

namespace iceline {

/// Everything that the league knows of a team's part of the year, or of a coach.
struct TeamView {
    TeamRecord record;
    Streak streak;
    LastTen lastTen;
    int LeagueMeter = 0; ///< the league's loudest crowd, dB
};

/// Reads the three files of `folder` and the league's crowd meter.
TeamView readTeamView(Files& files, const RecordFolder& folder);

/// The tables that team and coach pages share, from the record table to the page's end. The play-off pages of
/// teams have two columns more for the crowd meters.
enum class CrowdColumns { No, Yes };
std::string teamTables(const TeamView& view, CrowdColumns crowd);

} // namespace iceline
