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

/// Team figures of the home team; the away team's lie AwayBlock bytes after them.
inline constexpr int AwayBlock = 418;
inline constexpr int Shots = 59743;
inline constexpr int PPG = 59745;
inline constexpr int PPA = 59747;
inline constexpr int Penalties = 59749;
inline constexpr int PenM = 59751;
inline constexpr int AttackZoneHigh = 59752;
inline constexpr int AttackZoneLow = 59753;
inline constexpr int Goals = 59755;
inline constexpr int FaceoffsWon = 59757;
inline constexpr int BodyChecks = 59759;
inline constexpr int PassAtt = 59761;
inline constexpr int PassComp = 59763;

/// Player arrays of the home team, one byte a roster row; the away team's lie AwayBlock bytes after them. In
/// a goalie's row G holds the goals that he let in and SOG the shots that he faced.
inline constexpr int PlayerGoals = 59922;
inline constexpr int PlayerAssists = 59948;
inline constexpr int PlayerShots = 59974;
inline constexpr int PlayerPenM = 60000;

/// Second block of the home team; the away team's lies SecondAwayBlock bytes after it.
inline constexpr int SecondAwayBlock = 868;
inline constexpr int PPAux = 61083;
inline constexpr int AuxFor = 61085;
inline constexpr int PairAAtt = 61087;
inline constexpr int PairAMade = 61089;
inline constexpr int PairBAtt = 61091;
inline constexpr int PairBMade = 61093;
inline constexpr int PairCAtt = 61095;
inline constexpr int PairCMade = 61097;

inline constexpr int AwayPPTimeHigh = 61948; ///< seconds; the game keeps none for the home team
inline constexpr int AwayPPTimeLow = 61949;

} // namespace iceline::SaveStateMap
