#pragma once

#include "games/SaveStateMap.h"
#include "league/GameSheet.h"

#include <array>

namespace iceline {

/// A figure of a team and where its word lies in the save state: the offset of the low byte in the home
/// team's block.
struct TeamSheetField {
    int TeamSheet::*figure;
    int lowByte;
};

/// The figures whose away team's lie SaveStateMap::AwayBlock bytes after them.
inline constexpr std::array FirstBlockFields{
    TeamSheetField{&TeamSheet::Shots, 59743},      TeamSheetField{&TeamSheet::PPG, 59745},
    TeamSheetField{&TeamSheet::PPA, 59747},        TeamSheetField{&TeamSheet::Penalties, 59749},
    TeamSheetField{&TeamSheet::PenM, 59751},       TeamSheetField{&TeamSheet::AttackZone, 59753},
    TeamSheetField{&TeamSheet::Goals, 59755},      TeamSheetField{&TeamSheet::FaceoffsWon, 59757},
    TeamSheetField{&TeamSheet::BodyChecks, 59759}, TeamSheetField{&TeamSheet::PassAtt, 59761},
    TeamSheetField{&TeamSheet::PassComp, 59763},
};

/// The figures whose away team's lie SaveStateMap::SecondAwayBlock bytes after them.
inline constexpr std::array SecondBlockFields{
    TeamSheetField{&TeamSheet::PPAux, 61083},    TeamSheetField{&TeamSheet::AuxFor, 61085},
    TeamSheetField{&TeamSheet::PairAAtt, 61087}, TeamSheetField{&TeamSheet::PairAMade, 61089},
    TeamSheetField{&TeamSheet::PairBAtt, 61091}, TeamSheetField{&TeamSheet::PairBMade, 61093},
    TeamSheetField{&TeamSheet::PairCAtt, 61095}, TeamSheetField{&TeamSheet::PairCMade, 61097},
};

/// A figure of the roster rows, one byte a row, and where row 0 of the home team lies; the away team's lie
/// SaveStateMap::AwayBlock bytes after them. In a goalie's row G holds the goals that he let in and SOG the
/// shots that he faced.
struct PlayerArray {
    TeamSheet::RowFigures TeamSheet::*figures;
    int firstRow;
};

inline constexpr std::array PlayerArrays{
    PlayerArray{&TeamSheet::G, 59922},
    PlayerArray{&TeamSheet::A, 59948},
    PlayerArray{&TeamSheet::SOG, 59974},
    PlayerArray{&TeamSheet::PIM, 60000},
};

} // namespace iceline
