#pragma once

#include "files/Files.h"
#include "league/TeamTable.h"
#include "store/Fields.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// A single-game record of a player: who holds it and the figure. In a new league the holder is team 0
/// without a name and the figure 0.
struct PlayerRecord {
    TeamIndex Team;
    std::string Name;
    int Value = 0;
};

template <>
std::span<const Field<PlayerRecord>> fieldsOf<PlayerRecord>();

/// Groups of `All-Time Player Records.txt`, in file order.
enum class PlayerRecordOf { Goals, Assists, Points, PowerPlayGoals, ShorthandedGoals, Shots, PenaltyMinutes };
inline constexpr auto PlayerRecordCount = static_cast<std::size_t>(PlayerRecordOf::PenaltyMinutes) + 1;

/// Groups of `All-Time Goalie Records.txt`, in file order.
enum class GoalieRecordOf { Saves, ShutoutSaves, GoalsAllowed, ShotsFaced, Assists };
inline constexpr auto GoalieRecordCount = static_cast<std::size_t>(GoalieRecordOf::Assists) + 1;

using AllTimePlayerRecords = std::array<PlayerRecord, PlayerRecordCount>;
using AllTimeGoalieRecords = std::array<PlayerRecord, GoalieRecordCount>;

/// A single-game record of a team.
struct LeagueRecord {
    TeamIndex Team;
    int Value = 0;
};

template <>
std::span<const Field<LeagueRecord>> fieldsOf<LeagueRecord>();

/// The league's records of teams, in file order; the crowd meter is the home team's.
enum class LeagueRecordOf {
    Goals,
    Shots,
    BodyChecks,
    Penalties,
    PowerPlayGoals,
    PowerPlays,
    PPAux,
    AuxFor,
    PairAMade,
    PairAAtt,
    PairBMade,
    PairBAtt,
    CrowdMeter
};
inline constexpr auto LeagueRecordCount = static_cast<std::size_t>(LeagueRecordOf::CrowdMeter) + 1;

using AllTimeLeagueRecords = std::array<LeagueRecord, LeagueRecordCount>;

/// The coach of a league record: blank until a coach's team breaks it.
struct CoachRecord {
    std::optional<std::string> Name;
    std::optional<double> Value;
};

template <>
std::span<const Field<CoachRecord>> fieldsOf<CoachRecord>();

/// `Coaches League Records.txt`: a pair for each league record, and 36 items that are passed on as they
/// are.
struct CoachesLeagueRecords {
    CoachesLeagueRecords();

    std::array<CoachRecord, LeagueRecordCount> pairs;
    std::array<RawItem, 36> passedOn;
};

/// The record of a kind among the records of its file.
template <class Records, class Kind>
auto& recordOf(Records& records, Kind kind) {
    return records[static_cast<std::size_t>(kind)];
}

/// Wins that take a series.
inline constexpr int WinsToTakeSeries = 4;

/// A best-of-seven series.
struct PlayoffSeriesRecord {
    int WinsA = 0;
    int WinsB = 0;
    TeamIndex TeamA = BlankTeam;
    TeamIndex TeamB = BlankTeam;

    friend bool operator==(const PlayoffSeriesRecord&, const PlayoffSeriesRecord&) = default;
};

inline constexpr int SeriesCount = 15;
inline constexpr int FirstRoundSeries = 8;
using PlayoffSeriesTable = std::array<PlayoffSeriesRecord, SeriesCount>;

/// A series by its row in PlayoffSeriesTable; those of the first round come first.
using SeriesIndex = Index<struct SeriesTable>;
inline constexpr FirstRows<SeriesIndex> AllSeries{SeriesCount};

inline constexpr bool isFirstRound(SeriesIndex series) {
    return series.number() < FirstRoundSeries;
}

/// An entry of `Last 10 Box.txt`.
struct RecentGame {
    TeamIndex Home;
    TeamIndex Away;
    int HomeGoals = 0;
    int AwayGoals = 0;
    std::string Page; ///< file name of the box score page
};

/// Readers and texts of the league-wide files. Every reader throws FileError as ItemReader does; a TeamIndex
/// outside the league is an error, too. A text is made for the file of that name.
AllTimePlayerRecords readAllTimePlayerRecords(Files& files, const std::string& path);
AllTimeGoalieRecords readAllTimeGoalieRecords(Files& files, const std::string& path);
AllTimeLeagueRecords readAllTimeLeagueRecords(Files& files, const std::string& path);
CoachesLeagueRecords readCoachesLeagueRecords(Files& files, const std::string& path);

std::string textOf(const std::string& file, const AllTimePlayerRecords& records);
std::string textOf(const std::string& file, const AllTimeGoalieRecords& records);
std::string textOf(const std::string& file, const AllTimeLeagueRecords& records);
std::string textOf(const std::string& file, const CoachesLeagueRecords& records);

/// The records of a new league: all 0 but the crowd meter, which starts at 80 dB.
AllTimeLeagueRecords initialLeagueRecords();

/// Takes the wins of all series, and the teams of series 8 to 14, from `Playoff Records.txt`. The teams of
/// the first round are not in the file and stay as they are.
void readPlayoffRecords(Files& files, PlayoffSeriesTable& series);
std::string textOf(const PlayoffSeriesTable& series);

/// A file that holds one whole number of 16 bits (`Games Until Playoffs.txt`, the crowd meter) or 32 bits
/// (`Overall Game Number.txt`).
int readNumber16(Files& files, const std::string& path);
int readNumber32(Files& files, const std::string& path);
std::string numberLine(int value);

/// Up to ten entries of `Last 10 Box.txt`, newest first.
std::vector<RecentGame> readRecentGames(Files& files);
std::string textOf(const std::vector<RecentGame>& games);

/// The text of a new `League Records.txt`, which is written at start-up and never read.
std::string initialUnusedLeagueRecordsText();

} // namespace iceline
