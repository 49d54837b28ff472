#pragma once

#include "league/Roster.h"
#include "league/SummaryEntries.h"
#include "league/TeamTable.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// A team's figures in one game, as the game itself shows them.
struct TeamFigures {
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
};

/// Everything that a save state tells about one team.
struct TeamSheet : TeamFigures {
    using RowFigures = std::array<int, RosterRows>; ///< a figure of each roster row

    TeamIndex team;

    RowFigures G{}; ///< goals; in a goalie's row those that he let in
    RowFigures A{};
    RowFigures SOG{}; ///< shots on goal; in a goalie's row those that he faced
    RowFigures PIM{};

    int PPAux = 0;
    int AuxFor = 0;
    int PairAAtt = 0;
    int PairAMade = 0;
    int PairBAtt = 0;
    int PairBMade = 0;
    int PairCAtt = 0;
    int PairCMade = 0;

    /// Roster row of the goalie in the net, who is charged with the shots and goals that GameSheet adds. No
    /// part of the file.
    RosterIndex goalie;
};

/// A whole game, as it is laid into a save state. Every figure can be set by itself; the add functions keep
/// summaries, player arrays and team figures in agreement.
struct GameSheet {
    static constexpr int MaxGoals = 30;     ///< entries that the scoring summary has room for
    static constexpr int MaxPenalties = 60; ///< the same for the penalty summary

    GameSheet(TeamIndex homeTeam, TeamIndex awayTeam);

    TeamSheet& of(Side side) { return side == Side::Home ? home : away; }
    const TeamSheet& of(Side side) const { return side == Side::Home ? home : away; }

    /// A shot on goal that was stopped: the shooter's, his team's, and faced by the other team's goalie. Here
    /// and below players are given by the byte of their roster row; std::out_of_range for one that is no row.
    void addShot(Side side, int shooter);

    /// A goal and the shot that it was: the entry, the team's goals, power-play goals and shots, the figures
    /// of scorer and assistants, and those of the other team's goalie. Power plays are not counted.
    void addGoal(int period, int seconds, Side side, Strength strength, int scorer, int assist1 = NoAssist,
                 int assist2 = NoAssist);

    /// A penalty: the entry, the team's penalties and minutes, and the player's minutes. The other team's
    /// power plays are not counted.
    void addPenalty(int period, int seconds, Side side, Infraction infraction, int player);

    TeamSheet home;
    TeamSheet away;
    int crowdMeter = 0; ///< loudest moment, dB
    int awayPPTime = 0; ///< seconds; the game keeps none for the home team
    std::vector<ScoringEntry> goals;
    std::vector<PenaltyEntry> penalties;
    std::optional<int> scoringLength; ///< the scoring table's length byte where it is not that of `goals`
    std::optional<int> penaltyLength; ///< the same for `penalties`
};

/// "Boston Bruins 3, Montreal Canadiens 2", the home team first.
std::string scoreText(TeamIndex home, int homeGoals, TeamIndex away, int awayGoals);
std::string scoreText(const GameSheet& game);

} // namespace iceline
