#include "store/InitialFiles.h"

#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"
#include "store/TeamRecord.h"

#include <array>

namespace iceline {

namespace {

template <int Value>
std::string number() {
    return numberLine(Value);
}

/// The name of the file in messages that never come: what is new always fits.
constexpr const char* NewFile = "a new file";

template <class Records>
std::string initialTextOf() {
    return textOf(NewFile, Records());
}

std::string initialSeries() {
    return textOf(PlayoffSeriesTable());
}

template <class Record>
std::string initialLineOf() {
    return lineOf(NewFile, Record());
}

std::string nothing() {
    return "";
}

std::string initialLeagueRecordsText() {
    return textOf(NewFile, initialLeagueRecords());
}

const InitialFile Last10Games{paths::Last10Games, nothing};
const InitialFile PlayerStatsFile{paths::PlayerStats, initialPlayerStatsText};
const InitialFile Records{paths::Records, initialLineOf<TeamRecord>};
const InitialFile StreakFile{paths::Streak, initialLineOf<Streak>};

} // namespace

std::span<const InitialFile> initialLeagueFiles() {
    using enum PartOfYear;
    using enum Lasts;
    static const std::array files{
        InitialFile{paths::Last10Box, nothing, ForTheSeason},
        InitialFile{paths::GamesUntilPlayoffs, number<SeasonLengthAtStart>},
        InitialFile{paths::CrowdMeter, number<CrowdMeterAtStart>},
        InitialFile{paths::twin(Playoffs, paths::CrowdMeter), number<CrowdMeterAtStart>, Always},
        InitialFile{"League Records.txt", initialUnusedLeagueRecordsText, Always},
        InitialFile{"Playoff League Records.txt", initialUnusedLeagueRecordsText, Always},
        InitialFile{paths::PlayoffRecords, initialSeries, ForTheSeason},
        InitialFile{paths::OverallGameNumber, number<0>, ForTheSeason},
        InitialFile{paths::allTimeGoalieRecords(Season), initialTextOf<AllTimeGoalieRecords>},
        InitialFile{paths::allTimeGoalieRecords(Playoffs), initialTextOf<AllTimeGoalieRecords>},
        InitialFile{paths::allTimePlayerRecords(Season), initialTextOf<AllTimePlayerRecords>},
        InitialFile{paths::allTimePlayerRecords(Playoffs), initialTextOf<AllTimePlayerRecords>},
        InitialFile{paths::allTimeLeagueRecords(Season), initialLeagueRecordsText},
        InitialFile{paths::allTimeLeagueRecords(Playoffs), initialLeagueRecordsText},
        InitialFile{paths::coachesLeagueRecords(Season), initialTextOf<CoachesLeagueRecords>},
        InitialFile{paths::coachesLeagueRecords(Playoffs), initialTextOf<CoachesLeagueRecords>},
    };
    return files;
}

std::span<const InitialFile> initialTeamFiles() {
    static const std::array files{Last10Games, PlayerStatsFile, Records, StreakFile};
    return files;
}

std::span<const InitialFile> initialCoachFiles() {
    static const std::array files{Last10Games, Records, StreakFile};
    return files;
}

} // namespace iceline
