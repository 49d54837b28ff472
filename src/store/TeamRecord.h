#pragma once

#include "store/Fields.h"

#include <string>

namespace iceline {

/// What every crowd meter begins with, dB.
inline constexpr int CrowdMeterAtStart = 80;

/// The line of `Records.txt`: a team's season, its play-offs, or a coach. 113 fields in file order.
///
/// r1, r2, r3: rounded to 1, 2, 3 decimals, ties to the even digit. "In percent" values lie between 0 and 100
/// and are the fraction rounded to 3 decimals, times 100. The figures a game are stored, not derived on view.
struct TeamRecord {
    int Wins = 0;                ///< games won
    int Losses = 0;              ///< games lost
    int Ties = 0;                ///< games tied
    int Points = 0;              ///< 2 for a win, 1 for a tie
    double WinPercent = 0;       ///< Wins / GP, r3, a fraction
    int GP = 0;                  ///< games played
    int GF = 0;                  ///< goals for
    int GA = 0;                  ///< goals against
    double GFA = 0;              ///< goals for a game, r2
    double GAA = 0;              ///< goals against a game, r2
    double Diff = 0;             ///< GFA - GAA, r2
    double PowerRanking = 0;     ///< r2
    int GameCount = 0;           ///< lines of the result list
    std::string LastResult;      ///< a coach's latest letter; "" in a team's line
    int HW = 0;                  ///< home wins
    int HL = 0;                  ///< home losses
    int HT = 0;                  ///< home ties
    int HGP = 0;                 ///< home games played
    double HWinPercent = 0;      ///< HW / HGP, r3
    int HGF = 0;                 ///< home goals for
    int HGA = 0;                 ///< home goals against
    double HGFA = 0;             ///< r2
    double HGAA = 0;             ///< r2
    double HomeDiff = 0;         ///< HGFA - HGAA, r2
    double HomePowerRanking = 0; ///< r2
    int AW = 0;                  ///< away wins
    int AL = 0;                  ///< away losses
    int AT = 0;                  ///< away ties
    int AGP = 0;                 ///< away games played
    double AWinPercent = 0;      ///< AW / AGP, r3
    int AGF = 0;                 ///< away goals for
    int AGA = 0;                 ///< away goals against
    double AGFA = 0;             ///< r2
    double AGAA = 0;             ///< r2
    double AwayDiff = 0;         ///< AGFA - AGAA, r2
    double AwayPowerRanking = 0; ///< r2
    int L10W = 0;                ///< 0 in the file; views count the last ten results
    int L10L = 0;                ///< 0 in the file
    int L10T = 0;                ///< 0 in the file
    int OTW = 0;                 ///< overtime games won
    int OTL = 0;                 ///< overtime games lost
    int OTT = 0;                 ///< overtime games tied
    double OTWPct = 0;           ///< OTW / OTGP, r3
    int OTGP = 0;                ///< overtime games played
    int SOG = 0;                 ///< shots on goal
    double SOGPG = 0;            ///< per game, r1
    int SOGA = 0;                ///< shots against
    double SOGAPG = 0;           ///< per game, r1
    double SOGPct = 0;           ///< GF / SOG in percent
    int PPG = 0;                 ///< power-play goals
    double PPGPG = 0;            ///< per game, r1
    int PPA = 0;                 ///< power plays
    double PPAPG = 0;            ///< per game, r1
    double PPPct = 0;            ///< PPG / PPA in percent
    int PPTime = 0;              ///< seconds of the away team's time word
    double PPTimePG = 0;         ///< per game, r1
    RawItem PPTimePGText;        ///< PPTimePG as minutes and seconds; a plain 0 at first
    int PPAux = 0;               ///< sum of the game's count of that name
    double PPAuxPG = 0;          ///< per game, r1
    int Pen = 0;                 ///< penalties taken
    double PenPG = 0;            ///< per game; whole in a team's line, r1 in a coach's
    double PIM = 0;              ///< penalty minutes
    double PIMPG = 0;            ///< per game, r1
    double PenA = 0;             ///< penalties of the opponents
    double PenAPG = 0;           ///< per game, r1
    double PIMA = 0;             ///< penalty minutes of the opponents
    double PIMAPG = 0;           ///< per game, r1
    int PKG = 0;                 ///< power-play goals allowed
    double PKGPG = 0;            ///< per game, r1
    int PKO = 0;                 ///< times shorthanded
    double PKOPG = 0;            ///< per game, r1
    double PKPct = 0;            ///< (PKO - PKG) / PKO in percent
    int AuxFor = 0;              ///< sum of the game's count of that name
    double AuxForPG = 0;         ///< per game, r1
    double AuxAgainst = 0;       ///< the same count of the opponents
    double AuxAgainstPG = 0;     ///< per game, r1
    int PairAMade = 0;           ///< first made-and-attempted pair
    double PairAMadePG = 0;      ///< per game, r1
    int PairAAtt = 0;            ///< attempted
    double PairAAttPG = 0;       ///< per game, r1
    double PairAPct = 0;         ///< in percent
    int PairBMade = 0;           ///< second pair
    double PairBMadePG = 0;      ///< per game, r1
    int PairBAtt = 0;            ///< attempted
    double PairBAttPG = 0;       ///< per game, r1
    double PairBPct = 0;         ///< in percent
    int PairCMade = 0;           ///< third pair
    double PairCMadePG = 0;      ///< per game, r1
    int PairCAtt = 0;            ///< attempted
    double PairCAttPG = 0;       ///< per game, r1
    double PairCPct = 0;         ///< in percent
    int AttZone = 0;             ///< attack-zone time, seconds
    double AttZoneSecPG = 0;     ///< seconds a game, not rounded
    std::string AttZonePG = "0"; ///< AttZoneSecPG as minutes and seconds
    int FOW = 0;                 ///< faceoffs won
    double FOWPG = 0;            ///< per game, r1
    int FOT = 0;                 ///< faceoffs in this team's games, both sides' wins
    double FOTPG = 0;            ///< per game, r1
    double FOWPct = 0;           ///< FOW / FOT in percent
    int ByCks = 0;               ///< body checks
    double ByCksPG = 0;          ///< per game, r1
    int PassComp = 0;            ///< passes completed
    double PassCompPG = 0;       ///< per game, r1
    int PassAtt = 0;             ///< pass attempts
    double PassAttPG = 0;        ///< per game, r1
    double PassAcc = 0;          ///< PassComp / PassAtt in percent
    /// Loudest home game, dB.
    double ArenaMeter = CrowdMeterAtStart;
    double SameConfW = 0;  ///< wins against the own conference
    double SameConfL = 0;  ///< losses against it
    double SameConfT = 0;  ///< ties against it
    double OtherConfW = 0; ///< wins against the other conference
    double OtherConfL = 0; ///< losses against it
    double OtherConfT = 0; ///< ties against it

    friend bool operator==(const TeamRecord&, const TeamRecord&) = default;
};

template <>
std::span<const Field<TeamRecord>> fieldsOf<TeamRecord>();

/// The line of `Streak.txt`.
struct Streak {
    std::string StreakLetter; ///< "W", "L" or "T" of the current run, "" before the first game
    int StreakCount = 0;      ///< its length

    friend bool operator==(const Streak&, const Streak&) = default;
};

template <>
std::span<const Field<Streak>> fieldsOf<Streak>();

} // namespace iceline
