#pragma once

#include "league/GameSheet.h"

#include <array>
#include <string_view>

namespace iceline {

/// A figure of a team: its name in a line of the history, and where its word lies in a save state, the offset
/// of the low byte in the home team's block.
struct TeamSheetField {
    std::string_view name;
    int TeamSheet::*member;
    int lowByte;
};

/// The figures whose away team's lie SaveStateMap::AwayBlock bytes after them. A line of the history has them
/// in this order, over which a game's fingerprint is taken.
inline constexpr std::array FirstBlockFields{
    TeamSheetField{"goals", &TeamSheet::Goals, 59755},
    TeamSheetField{"shots", &TeamSheet::Shots, 59743},
    TeamSheetField{"powerPlayGoals", &TeamSheet::PPG, 59745},
    TeamSheetField{"powerPlays", &TeamSheet::PPA, 59747},
    TeamSheetField{"penalties", &TeamSheet::Penalties, 59749},
    TeamSheetField{"penaltyMinutes", &TeamSheet::PenM, 59751},
    TeamSheetField{"attackZone", &TeamSheet::AttackZone, 59753},
    TeamSheetField{"faceoffsWon", &TeamSheet::FaceoffsWon, 59757},
    TeamSheetField{"bodyChecks", &TeamSheet::BodyChecks, 59759},
    TeamSheetField{"passAttempts", &TeamSheet::PassAtt, 59761},
    TeamSheetField{"passes", &TeamSheet::PassComp, 59763},
};

/// The figures whose away team's lie SaveStateMap::SecondAwayBlock bytes after them.
inline constexpr std::array SecondBlockFields{
    TeamSheetField{"PPAux", &TeamSheet::PPAux, 61083},
    TeamSheetField{"AuxFor", &TeamSheet::AuxFor, 61085},
    TeamSheetField{"PairAAtt", &TeamSheet::PairAAtt, 61087},
    TeamSheetField{"PairAMade", &TeamSheet::PairAMade, 61089},
    TeamSheetField{"PairBAtt", &TeamSheet::PairBAtt, 61091},
    TeamSheetField{"PairBMade", &TeamSheet::PairBMade, 61093},
    TeamSheetField{"PairCAtt", &TeamSheet::PairCAtt, 61095},
    TeamSheetField{"PairCMade", &TeamSheet::PairCMade, 61097},
};

/// A figure of the roster rows, one byte a row: its name in a line of the history, and where row 0 of the
/// home team lies; the away team's lie SaveStateMap::AwayBlock bytes after them. In a goalie's row G holds
/// the goals that he let in and SOG the shots that he faced.
struct PlayerArray {
    std::string_view name;
    TeamSheet::RowFigures TeamSheet::*member;
    int firstRow;
};

inline constexpr std::array PlayerArrays{
    PlayerArray{"playerGoals", &TeamSheet::G, 59922},
    PlayerArray{"playerAssists", &TeamSheet::A, 59948},
    PlayerArray{"playerShots", &TeamSheet::SOG, 59974},
    PlayerArray{"playerMinutes", &TeamSheet::PIM, 60000},
};

} // namespace iceline
