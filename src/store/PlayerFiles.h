#pragma once

#include "files/Files.h"
#include "league/Roster.h"
#include "store/Fields.h"

#include <array>
#include <string>
#include <string_view>
#include <variant>

namespace iceline {

template <>
inline std::span<const Field<RosterRow>> fieldsOf<RosterRow>() {
    static constexpr std::array Fields{
        item("Name", &RosterRow::Name),
        i16("Number", &RosterRow::Number),
        i16("Rating", &RosterRow::Rating),
        item("Position", &RosterRow::Position),
    };
    return Fields;
}

/// Reads the 25 rows of a `Players List.txt`. A name that holds a double quote is an error: the league's
/// files could not hold it.
Roster readRoster(Files& files, const std::string& path);

/// The same from the text of such a file; `file` is the name used in messages.
Roster rosterFromText(const std::string& file, std::string_view content);

/// A skater's line of `Player Stats.txt`. Figures a game are rounded to 2 decimals.
struct SkaterStats {
    int GP = 0;
    int G = 0;
    double GPG = 0;
    int A = 0;
    double APG = 0;
    int Pts = 0;
    double PtsPG = 0;
    int SOG = 0;
    double SOGPG = 0;
    double ShotPct = 0; ///< goals per shot in percent, r1
    int PIM = 0;
    int PPG = 0; ///< power-play goals
    int SHG = 0; ///< shorthanded goals
    double PIMPG = 0;
    double Rating = 0; ///< r3
    int StarPoints = 0;

    friend bool operator==(const SkaterStats&, const SkaterStats&) = default;
};

template <>
inline std::span<const Field<SkaterStats>> fieldsOf<SkaterStats>() {
    using R = SkaterStats;
    static constexpr std::array Fields{
        counter("GP", &R::GP),      counter("G", &R::G),
        item("GPG", &R::GPG),       counter("A", &R::A),
        item("APG", &R::APG),       counter("Pts", &R::Pts),
        item("PtsPG", &R::PtsPG),   counter("SOG", &R::SOG),
        item("SOGPG", &R::SOGPG),   item("ShotPct", &R::ShotPct),
        counter("PIM", &R::PIM),    counter("PPG", &R::PPG),
        counter("SHG", &R::SHG),    item("PIMPG", &R::PIMPG),
        item("Rating", &R::Rating), counter("StarPoints", &R::StarPoints),
    };
    return Fields;
}

/// A goalie's line of `Player Stats.txt`.
struct GoalieStats {
    int GP = 0;
    int GA = 0; ///< goals allowed
    int SO = 0; ///< shutouts
    int A = 0;
    int GW = 0;
    int GL = 0;
    int GT = 0;
    int SA = 0;          ///< shots faced
    double GAA = 0;      ///< goals allowed a game, r2
    double SvPct = 0;    ///< saves per shot, a fraction, r3
    double Unused11 = 0; ///< always written as 0: a goalie's penalty minutes are not kept
    int PPG = 0;
    int SHG = 0;
    double Unused14 = 0; ///< always written as 0
    double Rating = 0;   ///< r3
    int StarPoints = 0;

    friend bool operator==(const GoalieStats&, const GoalieStats&) = default;
};

template <>
inline std::span<const Field<GoalieStats>> fieldsOf<GoalieStats>() {
    using R = GoalieStats;
    static constexpr std::array Fields{
        counter("GP", &R::GP),          counter("GA", &R::GA),
        counter("SO", &R::SO),          counter("A", &R::A),
        counter("GW", &R::GW),          counter("GL", &R::GL),
        counter("GT", &R::GT),          counter("SA", &R::SA),
        item("GAA", &R::GAA),           item("SvPct", &R::SvPct),
        item("Unused11", &R::Unused11), counter("PPG", &R::PPG),
        counter("SHG", &R::SHG),        item("Unused14", &R::Unused14),
        item("Rating", &R::Rating),     counter("StarPoints", &R::StarPoints),
    };
    return Fields;
}

/// The stat line of a roster row; the position in the same row of the roster decides which it is.
using PlayerStatsLine = std::variant<SkaterStats, GoalieStats>;
using TeamPlayerStats = std::array<PlayerStatsLine, RosterRows>;

int gamesPlayed(const PlayerStatsLine& line);
int starPoints(const PlayerStatsLine& line);
void addStarPoints(PlayerStatsLine& line, int points);

/// Reads the 25 lines of a `Player Stats.txt` in step with the team's roster.
TeamPlayerStats readPlayerStats(Files& files, const std::string& path, const Roster& roster);

/// The text of a `Player Stats.txt`, whose name is `file`. Throws FileError naming the field when a figure
/// does not fit.
std::string playerStatsText(const std::string& file, const TeamPlayerStats& stats);

/// The text of a new `Player Stats.txt`: 25 lines of sixteen zeros.
std::string initialPlayerStatsText();

} // namespace iceline
