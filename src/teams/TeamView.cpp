#include "teams/TeamView.h"

#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"

namespace iceline {

TeamView readTeamView(Files& files, const RecordFolder& folder) {
    TeamView view;
    view.record = readTeamRecord(files, folder);
    view.LeagueMeter = readNumber16(files, paths::CrowdMeter);
    view.streak = readStreak(files, folder);
    view.lastTen = readLastTen(files, folder, view.record.GameCount);
    return view;
}

} // namespace iceline
