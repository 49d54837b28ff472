#pragma once

#include "books/RecordsUpdate.h"
#include "files/Files.h"
#include "league/GameSheet.h"
#include "league/PartOfYear.h"
#include "league/StarOfGame.h"

#include <array>

namespace iceline {

/// A game that the league has accepted, with what decides where its figures go.
struct ImportedGame {
    GameSheet sheet;
    GameRosters rosters;
    PartOfYear part = PartOfYear::Season; ///< whose files the game goes into
    bool counts =
        false; ///< for teams, players, goalies and the league; an exhibition game is the coaches' alone
    bool overtime = false;
    int seasonLength = 0;
    GameCoaches coaches;
    std::array<StarOfGame, 3> Star;
    std::array<RosterIndex, 3> StarSlot;
};

/// Folds a game into the league's files: players with their star points, single-game records, the lines,
/// streaks and result lists of teams and coaches, the crowd meter.
///
/// An exhibition game reaches its coaches' files and records, and those single-game records of players that
/// are no special goals and of goalies of the home team.
///
/// Throws FileError when a file cannot be read, is malformed, or cannot hold a new figure; run it on staged
/// files, since some may be written by then.
void importGame(Files& files, const ImportedGame& game);

} // namespace iceline
