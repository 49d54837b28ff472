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
    TeamSheetField{&TeamSheet::Shots, SaveStateMap::Shots},
    TeamSheetField{&TeamSheet::PPG, SaveStateMap::PPG},
    TeamSheetField{&TeamSheet::PPA, SaveStateMap::PPA},
    TeamSheetField{&TeamSheet::Penalties, SaveStateMap::Penalties},
    TeamSheetField{&TeamSheet::PenM, SaveStateMap::PenM},
    TeamSheetField{&TeamSheet::AttackZone, SaveStateMap::AttackZoneLow},
    TeamSheetField{&TeamSheet::Goals, SaveStateMap::Goals},
    TeamSheetField{&TeamSheet::FaceoffsWon, SaveStateMap::FaceoffsWon},
    TeamSheetField{&TeamSheet::BodyChecks, SaveStateMap::BodyChecks},
    TeamSheetField{&TeamSheet::PassAtt, SaveStateMap::PassAtt},
    TeamSheetField{&TeamSheet::PassComp, SaveStateMap::PassComp},
};

/// The figures whose away team's lie SaveStateMap::SecondAwayBlock bytes after
/// them.
inline constexpr std::array SecondBlockFields{
    TeamSheetField{&TeamSheet::PPAux, SaveStateMap::PPAux},
    TeamSheetField{&TeamSheet::AuxFor, SaveStateMap::AuxFor},
    TeamSheetField{&TeamSheet::PairAAtt, SaveStateMap::PairAAtt},
    TeamSheetField{&TeamSheet::PairAMade, SaveStateMap::PairAMade},
    TeamSheetField{&TeamSheet::PairBAtt, SaveStateMap::PairBAtt},
    TeamSheetField{&TeamSheet::PairBMade, SaveStateMap::PairBMade},
    TeamSheetField{&TeamSheet::PairCAtt, SaveStateMap::PairCAtt},
    TeamSheetField{&TeamSheet::PairCMade, SaveStateMap::PairCMade},
};

/// A figure of the roster rows and where row 0 of the home team lies; the away team's lie
/// SaveStateMap::AwayBlock bytes after them.
struct PlayerArray {
    TeamSheet::RowFigures TeamSheet::*figures;
    int firstRow;
};

inline constexpr std::array PlayerArrays{
    PlayerArray{&TeamSheet::G, SaveStateMap::PlayerGoals},
    PlayerArray{&TeamSheet::A, SaveStateMap::PlayerAssists},
    PlayerArray{&TeamSheet::SOG, SaveStateMap::PlayerShots},
    PlayerArray{&TeamSheet::PIM, SaveStateMap::PlayerPenM},
};

} // namespace iceline
