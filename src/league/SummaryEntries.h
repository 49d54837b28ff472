#pragma once

#include "league/Side.h"

#include <optional>

namespace iceline {

/// The period from which a game counts as having gone to overtime.
inline constexpr int OvertimePeriod = 4;

/// The byte in an assistant's place of a summary entry when there was none.
inline constexpr int NoAssist = 255;

/// The bit of a goal or penalty type that is set for the away team.
inline constexpr int AwaySide = 128;

/// Skaters of the scoring team against those of the other team; the numbers are those of the goal types.
enum class Strength { TwoMenShort = 0, OneManShort = 1, Even = 2, PowerPlay = 3, TwoManPowerPlay = 4 };

inline constexpr bool isShorthanded(Strength strength) {
    return strength < Strength::Even;
}

inline constexpr bool isPowerPlay(Strength strength) {
    return strength > Strength::Even;
}

/// The infractions; the numbers are those of the penalty types.
enum class Infraction {
    Boarding = 18,
    Charging = 22,
    Slashing = 24,
    Roughing = 26,
    CrossChecking = 28,
    Hooking = 30,
    Tripping = 32,
    Interference = 34,
    Holding = 36,
    Fighting = 38,
    FightingStarred = 40,
    FightInstigator = 42
};

/// Minutes that a player sits for an infraction: 5 for the two of fighting, 2 for any other.
inline constexpr int minutesOf(Infraction infraction) {
    return infraction == Infraction::Fighting || infraction == Infraction::FightingStarred ? 5 : 2;
}

/// The byte that says the side and the kind of a goal or penalty in one.
inline constexpr int typeByte(Side side, int kind) {
    return kind + (side == Side::Away ? AwaySide : 0);
}

/// The side that a type byte says.
inline constexpr Side sideOf(int typeByte) {
    return typeByte < AwaySide ? Side::Home : Side::Away;
}

/// What is left of a type byte without its side.
inline constexpr int kindOf(int typeByte) {
    return typeByte % AwaySide;
}

/// The strength that a goal's type byte says; none for a byte that is no goal type.
inline constexpr std::optional<Strength> strengthOf(int typeByte) {
    const int kind = kindOf(typeByte);
    return kind <= static_cast<int>(Strength::TwoManPowerPlay) ? std::optional(static_cast<Strength>(kind))
                                                               : std::nullopt;
}

/// A goal as the scoring summary holds it.
struct ScoringEntry {
    int period = 1;  ///< 1 to 4; 4 is overtime
    int seconds = 0; ///< of the period's clock, 0 to 16383
    int type = 0;    ///< side and Strength, or any other byte
    int scorer = 0;  ///< byte of the roster row in the scoring team; see rosterRow()
    int assist1 = NoAssist;
    int assist2 = NoAssist;

    friend bool operator==(const ScoringEntry&, const ScoringEntry&) = default;
};

/// A penalty as the penalty summary holds it.
struct PenaltyEntry {
    int period = 1;
    int seconds = 0;
    int type = 0;   ///< side and Infraction, or any other byte
    int player = 0; ///< byte of the roster row in the penalised team; see rosterRow()

    friend bool operator==(const PenaltyEntry&, const PenaltyEntry&) = default;
};

} // namespace iceline
