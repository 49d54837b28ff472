#pragma once

#include "league/Numbers.h"
#include "store/PlayerFiles.h"
#include "store/TeamRecord.h"

#include <array>
#include <string>
#include <string_view>

namespace iceline {

/// A column of a leader table. The table keeps every figure as a whole number, fractions times their scale,
/// so that one comparison serves all columns; what is shown is divided again.
template <class Stats>
struct LeaderColumn {
    std::string_view caption; ///< over the column, and what the code calls it by: "Pts."
    double (*figure)(const Stats&);
    const char* control; ///< the window's array of labels
    int scale = 1;
};

/// A field as the record has it.
template <auto Field, class Stats>
double fieldOf(const Stats& stats) {
    return stats.*Field;
}

inline constexpr std::array<LeaderColumn<SkaterStats>, 11> PlayerLeaderColumns{{
    {"G", fieldOf<&SkaterStats::G>, "LeagueLeaderGoals"},
    {"A", fieldOf<&SkaterStats::A>, "LeagueLeaderAssists"},
    {"Pts.", fieldOf<&SkaterStats::Pts>, "LeagueLeaderPoints"},
    {"PPG", fieldOf<&SkaterStats::PtsPG>, "LeagueLeaderPPG", 100},
    {"SOG", fieldOf<&SkaterStats::SOG>, "LeagueLeaderSOG"},
    {"S%", fieldOf<&SkaterStats::ShotPct>, "LeagueLeaderSPct", 10},
    {"PIM", fieldOf<&SkaterStats::PIM>, "LeagueLeaderPIM"},
    {"GP", fieldOf<&SkaterStats::GP>, "LeagueLeaderGP"},
    {"Pow. Rank", fieldOf<&SkaterStats::Rating>, "LeagueLeaderPR", 1000},
    {"SH", fieldOf<&SkaterStats::SHG>, "LeagueLeaderSH"},
    {"PP", fieldOf<&SkaterStats::PPG>, "LeagueLeaderPP"},
}};

inline constexpr std::array<LeaderColumn<GoalieStats>, 11> GoalieLeaderColumns{{
    {"GP", fieldOf<&GoalieStats::GP>, "LeagueLeaderGGP"},
    {"W", fieldOf<&GoalieStats::GW>, "LeagueLeaderGW"},
    {"L", fieldOf<&GoalieStats::GL>, "LeagueLeaderGL"},
    {"T", fieldOf<&GoalieStats::GT>, "LeagueLeaderGT"},
    {"GAA", fieldOf<&GoalieStats::GAA>, "LeagueLeaderGGAA", 100},
    {"SHO", fieldOf<&GoalieStats::SO>, "LeagueLeaderGSHO"},
    {"Save%", fieldOf<&GoalieStats::SvPct>, "LeagueLeaderGSPct", 1000},
    {"SF", fieldOf<&GoalieStats::SA>, "LeagueLeaderGSF"},
    {"GA", fieldOf<&GoalieStats::GA>, "LeagueLeaderGGA"},
    {"A", fieldOf<&GoalieStats::A>, "LeagueLeaderGAst"},
    {"PR", fieldOf<&GoalieStats::Rating>, "LeagueLeaderGPowRanking", 1000},
}};

/// Of the teams, and of the coaches.
inline constexpr std::array<LeaderColumn<TeamRecord>, 12> TeamLeaderColumns{{
    {"GP", fieldOf<&TeamRecord::GP>, "LLTeamGP"},
    {"Pts.", fieldOf<&TeamRecord::Points>, "LLTeamPts"},
    {"Win %", fieldOf<&TeamRecord::WinPercent>, "LLTeamWinPct", 1000},
    {"GPG", [](const TeamRecord& record) { return perGame(record.GF, record.GP); }, "LLTeamGPG", 100},
    {"GAG", [](const TeamRecord& record) { return perGame(record.GA, record.GP); }, "LLTeamGAG", 100},
    {"PP%", fieldOf<&TeamRecord::PPPct>, "LLTeamPPPct", 10},
    {"PK%", fieldOf<&TeamRecord::PKPct>, "LLTeamPKPct", 10},
    {"SPG", fieldOf<&TeamRecord::SOGPG>, "LLTeamSPG", 10},
    {"SAPG", fieldOf<&TeamRecord::SOGAPG>, "LLTeamSAPG", 10},
    {"P Rank", fieldOf<&TeamRecord::PowerRanking>, "LLPowerRanking", 100},
    {"H Rank", fieldOf<&TeamRecord::HomePowerRanking>, "LLHomeRanking", 100},
    {"A Rank", fieldOf<&TeamRecord::AwayPowerRanking>, "LLAwayRanking", 100},
}};

inline constexpr std::array<LeaderColumn<PlayerStatsLine>, 1> StarLeaderColumns{{
    {"Three Star Pts.", [](const PlayerStatsLine& line) -> double { return starPoints(line); }, "LL3StarPts"},
}};

/// The number of the column with that caption; one that is not there does not compile.
template <class Stats, std::size_t Columns>
consteval std::size_t columnOf(const std::array<LeaderColumn<Stats>, Columns>& columns,
                               std::string_view caption) {
    std::size_t column = 0;
    while (columns.at(column).caption != caption)
        ++column;
    return column;
}

/// In the place of a column: the natural order of the table.
inline constexpr int NoColumn = -1;

/// A player's row of a leader table, with his figures by column.
template <std::size_t Columns>
struct LeaderRow {
    TeamIndex Team;
    std::string Name;
    std::array<int, Columns> values{};
};
using PlayerLeader = LeaderRow<PlayerLeaderColumns.size()>;
using GoalieLeader = LeaderRow<GoalieLeaderColumns.size()>;
using StarLeader = LeaderRow<StarLeaderColumns.size()>;

/// The figures of a team or a coach by column.
struct TeamLeader {
    std::array<int, TeamLeaderColumns.size()> values{};

    /// Games played.
    int& GP() { return values[columnOf(TeamLeaderColumns, "GP")]; }
    int GP() const { return values[columnOf(TeamLeaderColumns, "GP")]; }
};

/// A coach's row of the coaches' table, in the order of their names.
using CoachIndex = Index<struct CoachTable>;

} // namespace iceline
