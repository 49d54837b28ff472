#pragma once

#include "store/PlayerFiles.h"
#include "store/TeamRecord.h"

#include <array>
#include <string_view>

namespace iceline {

/// A column of a leader table. The table keeps every figure as a whole number, fractions times their scale,
/// so that one comparison serves all columns; what is shown is divided again.
template <class Stats>
struct LeaderColumn {
    std::string_view caption; ///< "Pts."
    double (*figure)(const Stats&);
    int scale = 1;
};

/// A field as it stands in the record.
template <auto Field, class Stats>
double fieldOf(const Stats& stats) {
    return stats.*Field;
}

inline double perGame(int figure, int games) {
    return games == 0 ? 0 : static_cast<double>(figure) / games;
}

inline double threeStarPoints(const PlayerStatsLine& line) {
    return starPoints(line);
}

inline constexpr std::array<LeaderColumn<SkaterStats>, 11> PlayerLeaderColumns{{
    {"G", fieldOf<&SkaterStats::G>},
    {"A", fieldOf<&SkaterStats::A>},
    {"Pts.", fieldOf<&SkaterStats::Pts>},
    {"PPG", fieldOf<&SkaterStats::PtsPG>, 100},
    {"SOG", fieldOf<&SkaterStats::SOG>},
    {"S%", fieldOf<&SkaterStats::ShotPct>, 10},
    {"PIM", fieldOf<&SkaterStats::PIM>},
    {"GP", fieldOf<&SkaterStats::GP>},
    {"Pow. Rank", fieldOf<&SkaterStats::Rating>, 1000},
    {"SH", fieldOf<&SkaterStats::SHG>},
    {"PP", fieldOf<&SkaterStats::PPG>},
}};

inline constexpr std::array<LeaderColumn<GoalieStats>, 11> GoalieLeaderColumns{{
    {"GP", fieldOf<&GoalieStats::GP>},
    {"W", fieldOf<&GoalieStats::GW>},
    {"L", fieldOf<&GoalieStats::GL>},
    {"T", fieldOf<&GoalieStats::GT>},
    {"GAA", fieldOf<&GoalieStats::GAA>, 100},
    {"SHO", fieldOf<&GoalieStats::SO>},
    {"Save%", fieldOf<&GoalieStats::SvPct>, 1000},
    {"SF", fieldOf<&GoalieStats::SA>},
    {"GA", fieldOf<&GoalieStats::GA>},
    {"A", fieldOf<&GoalieStats::A>},
    {"PR", fieldOf<&GoalieStats::Rating>, 1000},
}};

inline constexpr std::array<LeaderColumn<TeamRecord>, 12> TeamLeaderColumns{{
    {"GP", fieldOf<&TeamRecord::GP>},
    {"Pts.", fieldOf<&TeamRecord::Points>},
    {"Win %", fieldOf<&TeamRecord::WinPercent>, 1000},
    {"GPG", [](const TeamRecord& record) { return perGame(record.GF, record.GP); }, 100},
    {"GAG", [](const TeamRecord& record) { return perGame(record.GA, record.GP); }, 100},
    {"PP%", fieldOf<&TeamRecord::PPPct>, 10},
    {"PK%", fieldOf<&TeamRecord::PKPct>, 10},
    {"SPG", fieldOf<&TeamRecord::SOGPG>, 10},
    {"SAPG", fieldOf<&TeamRecord::SOGAPG>, 10},
    {"P Rank", fieldOf<&TeamRecord::PowerRanking>, 100},
    {"H Rank", fieldOf<&TeamRecord::HomePowerRanking>, 100},
    {"A Rank", fieldOf<&TeamRecord::AwayPowerRanking>, 100},
}};

inline constexpr std::array<LeaderColumn<PlayerStatsLine>, 1> StarLeaderColumns{{
    {"Three Star Pts.", threeStarPoints},
}};

/// Column of the teams' table that holds the games played.
inline constexpr std::size_t TeamGamesColumn = 0;

/// In the place of a column: the natural order of the teams.
inline constexpr int NoColumn = -1;

} // namespace iceline
