#pragma once

#include "league/GameSheet.h"
#include "league/TeamTable.h"
#include "samples/SeededRandom.h"
#include "store/PlayerFiles.h"

#include <optional>
#include <span>
#include <vector>

namespace iceline {

/// A team that plays a made-up game. Its goalies have the roster's first rows, one at least, and there
/// are twelve skaters or more after them. The roster must outlive the game.
struct SampleTeam {
    TeamIndex index;
    const Roster& roster;
};

/// Plays one made-up game second by second, so that all its figures come from the same shots, penalties and
/// faceoffs and agree with each other. Three periods of twenty minutes; after a tie an overtime of five,
/// which ends with its first goal. Clocks count up. The same seed and teams give the same game on every
/// machine.
class GameSimulation {
public:
    GameSimulation(std::uint64_t seed, const SampleTeam& home, const SampleTeam& away);

    /// Plays the game; to be called once.
    GameSheet play();

private:
    struct BoxedPlayer {
        RosterIndex row;
        int seconds = 0; ///< still to serve
    };

    struct Bench {
        const Roster* roster = nullptr;
        int skill = 0; ///< of the day: the skaters' mean rating and the team's form
        bool goalieChanged = false;
        std::vector<BoxedPlayer> shorthanded; ///< minors in the order of their call; two are served at a time
        std::vector<BoxedPlayer> evenedOut;   ///< penalties for which a substitute skates

        int menShort() const;
        bool hasInBox(RosterIndex row) const;
        std::span<BoxedPlayer> runningMinors();
        bool isBoxEmpty() const;
        bool isBoxFull() const;
    };

    enum class Role { Shooter, Assistant, Offender };

    Bench& bench(Side side) { return benches_[side == Side::Home ? 0 : 1]; }

    void prepare(Side side, const SampleTeam& team);
    void playPeriod(int length);
    void playSecond();
    void servePenalties(Bench& bench);
    void movePuck();
    void endAttack();
    void faceOff();
    void playThePuck(Side side);
    void attack(Side side);
    void shoot(Side side);
    void score(Side side, RosterIndex shooter);
    void changeGoalie(Side side);
    void judge();
    void callInfraction(Side side);
    void callMinor(Side side, Infraction infraction, RosterIndex row);
    void fight();
    void scuffle();

    bool tied() const { return game_.home.Goals == game_.away.Goals; }
    int advantage(Side side);
    RosterIndex pickSkater(Side side, Role role, std::optional<RosterIndex> scorer = {},
                           std::optional<RosterIndex> assistant = {});
    RosterIndex pickAssistant(Side side, RosterIndex scorer, std::optional<RosterIndex> assistant);
    void raiseCrowd();

    SeededRandom random_;
    GameSheet game_;
    Bench benches_[2];
    std::optional<Side> attacking_; ///< whose attack zone the puck is in; none in the neutral zone
    int period_ = 1;
    int second_ = 0;
    int fights_ = 0;
};

} // namespace iceline
