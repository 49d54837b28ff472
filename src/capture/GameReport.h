#pragma once

#include "shell/ApplicationState.h"
#include "store/PlayerFiles.h"

#include <array>
#include <string>

namespace iceline {

/// A team's figures in one game, with the texts that the window and the page show.
struct TeamGameStats {
    int Shots = 0;
    int PPG = 0;
    int PPA = 0;
    int Penalties = 0;
    int PenM = 0;
    int AttackZone = 0; ///< seconds
    int Goals = 0;
    int FaceoffsWon = 0;
    int BodyChecks = 0;
    int PassAtt = 0;
    int PassComp = 0;
    std::string ShootingPct;    ///< "12.5%"; "0.0%" without a shot
    std::string FaceWinPct;     ///< "52.4%"; "0.000%" without a faceoff
    std::string PassAcc;        ///< "71.2%"; "0.000" without a pass
    std::string AttackZoneText; ///< "10:05"
};

/// A roster row's figures in one game. For a goalie G is goals allowed and SOG shots faced.
struct GamePlayerRow {
    std::string Name;
    int G = 0;
    int A = 0;
    int Pts = 0;
    int SOG = 0;
    int PIM = 0;

    bool isEmpty() const { return Name == EmptyRowName; }
};

/// One side of a game.
struct GameSide {
    TeamIndex team = 0;
    TeamGameStats stats;
    std::array<GamePlayerRow, RosterRows> players;
};

/// A game as one read of its save state yields it. Team1 is the home team.
struct GameReport {
    GameSide home;
    GameSide away;
    int GameLastPeriod = 0;
    std::string FinalMark; ///< "F" or "F/OT"
    std::array<StarOfGame, 3> Star;
};

} // namespace iceline
