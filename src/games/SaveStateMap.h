#pragma once

/// Where a save state of the game keeps what the league reads: byte offsets into the file, counted from 0.
///
/// Counters are 16-bit big-endian words of which the low byte is read, so they are seen modulo 256. Read
/// whole, as big-endian pairs of high and low byte, are the attack-zone times, the power-play time and the
/// time stamps.
namespace iceline::SaveStateMap {

/// A save state is read up to here; everything the league reads lies before it.
inline constexpr int MaxBytes = 65536;

inline constexpr int HomeTeam = 59013;   ///< TeamIndex of the home team
inline constexpr int AwayTeam = 59015;   ///< TeamIndex of the away team
inline constexpr int CrowdMeter = 59277; ///< loudest moment of the game, dB

inline constexpr int ScoringLength = 59319; ///< bytes in the scoring table
inline constexpr int ScoringTable = 59320;
inline constexpr int ScoringEntryBytes = 6; ///< time stamp (2), goal type, scorer, first and second assist

inline constexpr int PenaltyLength = 59501; ///< bytes in the penalty table
inline constexpr int PenaltyTable = 59502;
inline constexpr int PenaltyEntryBytes = 4; ///< time stamp (2), penalty type, player

inline constexpr int SecondsPerPeriodCode =
    16384; ///< a time stamp is (period - 1) times this, plus the seconds

/// The figures of the teams (TeamSheetFields.h) lie in two blocks each; offsets are the home team's.
inline constexpr int AwayBlock = 418;       ///< from the home team's first block to the away team's
inline constexpr int SecondAwayBlock = 868; ///< from the home team's second block to the away team's
inline constexpr int AttackZoneHigh = 59752;

inline constexpr int AwayPPTimeHigh = 61948; ///< seconds; the game keeps none for the home team
inline constexpr int AwayPPTimeLow = 61949;

} // namespace iceline::SaveStateMap
