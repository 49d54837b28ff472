#pragma once

#include "games/GameSheetReader.h"
#include "league/StarOfGame.h"

#include <array>
#include <string>
#include <vector>

namespace iceline {

/// The kinds of game, by what a game touches.
enum class GameKind { Season, Exhibition, Playoff };

/// A team's figures in one game, with the texts that the window and the page show.
struct TeamGameStats : TeamFigures {
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
    TeamIndex team;
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
    std::vector<ScoringEntry> goals;
    std::vector<PenaltyEntry> penalties;

    const GameSide& of(Side side) const { return side == Side::Home ? home : away; }
};

/// The report of a game that the league can take, but for its stars, which are not chosen yet. The last
/// period is that of the last goal, or a later one of a penalty; a game without goals begins from
/// `formerPeriod`, the last period of the game read before.
GameReport gameReport(const PlayedGame& game, int formerPeriod);

} // namespace iceline
