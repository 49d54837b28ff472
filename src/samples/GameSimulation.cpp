#include "samples/GameSimulation.h"

#include <algorithm>
#include <array>

namespace iceline {

namespace {

constexpr int PeriodSeconds = 1200;
constexpr int OvertimeSeconds = 300;
constexpr int MinorSeconds = 120;
constexpr int MajorSeconds = 300;
constexpr int MostInBox = 6; ///< of a team; so many are left that scorer and assistants can be found

constexpr std::array BothSides{Side::Home, Side::Away};

/// What a referee calls on one player; the commoner infractions are in it twice.
constexpr std::array Minors{Infraction::Boarding,     Infraction::Charging, Infraction::Slashing,
                            Infraction::Roughing,     Infraction::Hooking,  Infraction::CrossChecking,
                            Infraction::Tripping,     Infraction::Hooking,  Infraction::Holding,
                            Infraction::Interference, Infraction::Tripping, Infraction::Holding};

/// A kind of shot that the second block counts by itself: how many of 200 shots are of it, and what it adds
/// to the chance of a goal in thousandths.
struct SpecialShot {
    int TeamSheet::*attempts;
    int TeamSheet::*made;
    int outOf200;
    int bonus;
};

constexpr std::array SpecialShots{
    SpecialShot{&TeamSheet::PairAAtt, &TeamSheet::PairAMade, 12, 110},
    SpecialShot{&TeamSheet::PairBAtt, &TeamSheet::PairBMade, 45, 25},
    SpecialShot{&TeamSheet::PairCAtt, &TeamSheet::PairCMade, 1, 200},
};

const SpecialShot* specialShot(int outOf200) {
    for (const SpecialShot& shot : SpecialShots) {
        if (outOf200 < shot.outOf200)
            return &shot;
        outOf200 -= shot.outOf200;
    }
    return nullptr;
}

/// Mean rating of those who see most of the ice: nine forwards and four defencemen.
int meanRating(const Roster& roster) {
    int forwards = 9;
    int defencemen = 4;
    int sum = 0;
    for (const RosterRow& player : roster) {
        int& wanted = player.Position == "F" ? forwards : defencemen;
        if (player.isEmpty() || player.isGoalie() || wanted == 0)
            continue;
        sum += player.Rating;
        --wanted;
    }
    return sum / 13;
}

int assistByte(std::optional<RosterIndex> assistant) {
    return assistant ? assistant->number() : NoAssist;
}

int goalieCount(const Roster& roster) {
    return static_cast<int>(std::ranges::count_if(roster, &RosterRow::isGoalie));
}

} // namespace

int GameSimulation::Bench::menShort() const {
    return std::min(2, static_cast<int>(shorthanded.size()));
}

std::span<GameSimulation::BoxedPlayer> GameSimulation::Bench::runningMinors() {
    return std::span(shorthanded).first(static_cast<std::size_t>(menShort()));
}

bool GameSimulation::Bench::hasInBox(RosterIndex row) const {
    const auto holds = [row](const std::vector<BoxedPlayer>& box) {
        return std::ranges::find(box, row, &BoxedPlayer::row) != box.end();
    };
    return holds(shorthanded) || holds(evenedOut);
}

bool GameSimulation::Bench::isBoxEmpty() const {
    return shorthanded.empty() && evenedOut.empty();
}

bool GameSimulation::Bench::isBoxFull() const {
    return shorthanded.size() + evenedOut.size() >= MostInBox;
}

GameSimulation::GameSimulation(std::uint64_t seed, const SampleTeam& home, const SampleTeam& away)
    : random_(seed), game_(home.index, away.index) {
    prepare(Side::Home, home);
    prepare(Side::Away, away);
}

void GameSimulation::prepare(Side side, const SampleTeam& team) {
    bench(side).roster = &team.roster;
    bench(side).skill = meanRating(team.roster) - 5 + random_.below(11);
    const bool regularStarts = random_.chance(3, 4);
    game_.of(side).goalie = RosterIndex(regularStarts ? 0 : random_.below(goalieCount(team.roster)));
}

GameSheet GameSimulation::play() {
    for (period_ = 1; period_ < OvertimePeriod; ++period_)
        playPeriod(PeriodSeconds);
    if (tied())
        playPeriod(OvertimeSeconds);
    raiseCrowd();
    return game_;
}

void GameSimulation::playPeriod(int length) {
    faceOff();
    for (second_ = 1; second_ <= length; ++second_) {
        playSecond();
        if (period_ == OvertimePeriod && !tied())
            return;
    }
}

void GameSimulation::playSecond() {
    for (Bench& bench : benches_)
        if (!bench.isBoxEmpty())
            servePenalties(bench);
    if (advantage(Side::Away) > 0)
        ++game_.awayPPTime;
    movePuck();
    for (const Side side : BothSides)
        playThePuck(side);
    if (attacking_)
        attack(*attacking_);
    judge();
}

void GameSimulation::servePenalties(Bench& bench) {
    for (BoxedPlayer& player : bench.runningMinors())
        --player.seconds;
    for (BoxedPlayer& player : bench.evenedOut)
        --player.seconds;
    const auto isDone = [](const BoxedPlayer& player) { return player.seconds == 0; };
    std::erase_if(bench.shorthanded, isDone);
    std::erase_if(bench.evenedOut, isDone);
}

void GameSimulation::movePuck() {
    if (attacking_) {
        if (random_.chance(1, 15))
            endAttack();
        return;
    }
    if (!random_.chance(1, 11))
        return;
    const int lead = advantage(Side::Home) * 20;
    const int home = std::max(5, bench(Side::Home).skill - 16 + lead);
    const int away = std::max(5, bench(Side::Away).skill - 20 - lead);
    attacking_ = random_.below(home + away) < home ? Side::Home : Side::Away;
}

void GameSimulation::endAttack() {
    attacking_.reset();
    if (random_.chance(1, 6))
        faceOff();
}

void GameSimulation::faceOff() {
    attacking_.reset();
    const int home = bench(Side::Home).skill;
    const int winner = random_.below(home + bench(Side::Away).skill);
    ++game_.of(winner < home ? Side::Home : Side::Away).FaceoffsWon;
}

void GameSimulation::playThePuck(Side side) {
    constexpr int Passes = 125;
    constexpr int Checks = 31;
    TeamSheet& team = game_.of(side);
    const int event = random_.below(4000);
    if (event < Passes) {
        ++team.PassAtt;
        if (random_.chance(bench(side).skill, 105))
            ++team.PassComp;
    } else if (event < Passes + Checks) {
        ++team.BodyChecks;
    }
}

void GameSimulation::attack(Side side) {
    ++game_.of(side).AttackZone;
    if (random_.chance(12 + 4 * advantage(side), 400))
        shoot(side);
}

void GameSimulation::shoot(Side side) {
    TeamSheet& team = game_.of(side);
    const RosterIndex shooter = pickSkater(side, Role::Shooter);
    const RosterIndex goalie = game_.of(otherSide(side)).goalie;
    const int shooterRating = (*bench(side).roster)[shooter].Rating;
    const int goalieRating = (*bench(otherSide(side)).roster)[goalie].Rating;
    const SpecialShot* special = specialShot(random_.below(200));

    int thousandths = 90 + (shooterRating - 65) - (goalieRating - 70) + 35 * std::max(0, advantage(side));
    if (special != nullptr) {
        thousandths += special->bonus;
        ++(team.*special->attempts);
    }
    if (advantage(side) > 0)
        ++team.PPAux;
    const bool hasRoom = game_.goals.size() < GameSheet::MaxGoals;
    if (!random_.chance(std::clamp(thousandths, 20, 450), 1000) || !hasRoom) {
        game_.addShot(side, shooter.number());
        if (random_.chance(1, 4))
            faceOff();
        return;
    }
    if (special != nullptr)
        ++(team.*special->made);
    score(side, shooter);
}

void GameSimulation::score(Side side, RosterIndex shooter) {
    const int menMore = advantage(side);
    const int roll = random_.below(100);
    const auto first = roll < 12 ? std::nullopt : std::optional(pickAssistant(side, shooter, {}));
    const auto second = roll < 40 ? std::nullopt : std::optional(pickAssistant(side, shooter, first));
    game_.addGoal(period_, second_, side, static_cast<Strength>(menMore + 2), shooter.number(),
                  assistByte(first), assistByte(second));
    Bench& beaten = bench(otherSide(side));
    if (menMore < 0)
        ++game_.of(side).AuxFor;
    if (menMore > 0)
        beaten.shorthanded.erase(beaten.shorthanded.begin());
    changeGoalie(otherSide(side));
    faceOff();
}

void GameSimulation::changeGoalie(Side side) {
    TeamSheet& team = game_.of(side);
    const int goalies = goalieCount(*bench(side).roster);
    const bool beatenOften = team.G[team.goalie] >= 5;
    if (bench(side).goalieChanged || goalies < 2 || !random_.chance(1, beatenOften ? 2 : 60))
        return;
    team.goalie = RosterIndex((team.goalie.number() + 1) % goalies);
    bench(side).goalieChanged = true;
}

void GameSimulation::judge() {
    constexpr int Minor = 1280;
    constexpr int Fight = 140;
    constexpr int Scuffle = 220;
    const int event = random_.below(1'000'000);
    if (event >= 2 * Minor + Fight + Scuffle || game_.penalties.size() + 3 > GameSheet::MaxPenalties ||
        std::ranges::any_of(benches_, &Bench::isBoxFull))
        return;
    if (event < 2 * Minor)
        callInfraction(event < Minor ? Side::Home : Side::Away);
    else if (event < 2 * Minor + Fight)
        fight();
    else
        scuffle();
    faceOff();
}

void GameSimulation::callInfraction(Side side) {
    const auto infraction = random_.oneOf(std::span<const Infraction>(Minors));
    callMinor(side, infraction, pickSkater(side, Role::Offender));
}

void GameSimulation::callMinor(Side side, Infraction infraction, RosterIndex row) {
    game_.addPenalty(period_, second_, side, infraction, row.number());
    bench(side).shorthanded.push_back({row, MinorSeconds});
    ++game_.of(otherSide(side)).PPA;
}

void GameSimulation::fight() {
    ++fights_;
    const auto winner = random_.oneOf(std::span<const Side>(BothSides));
    for (const Side side : BothSides) {
        const RosterIndex row = pickSkater(side, Role::Offender);
        const Infraction infraction = side == winner ? Infraction::FightingStarred : Infraction::Fighting;
        game_.addPenalty(period_, second_, side, infraction, row.number());
        bench(side).evenedOut.push_back({row, MajorSeconds});
        if (side != winner && random_.chance(1, 4))
            callMinor(side, Infraction::FightInstigator, row);
    }
}

void GameSimulation::scuffle() {
    for (const Side side : BothSides) {
        const RosterIndex row = pickSkater(side, Role::Offender);
        game_.addPenalty(period_, second_, side, Infraction::Roughing, row.number());
        bench(side).evenedOut.push_back({row, MinorSeconds});
    }
}

int GameSimulation::advantage(Side side) {
    return bench(otherSide(side)).menShort() - bench(side).menShort();
}

RosterIndex GameSimulation::pickSkater(Side side, Role role, std::optional<RosterIndex> scorer,
                                       std::optional<RosterIndex> assistant) {
    std::array<int, RosterRows> weights{};
    for (const RosterIndex row : AllRosterRows) {
        const RosterRow& player = (*bench(side).roster)[row];
        if (player.isEmpty() || player.isGoalie() || row == scorer || row == assistant ||
            bench(side).hasInBox(row))
            continue;
        const int share = role == Role::Shooter && player.Position == "D" ? 1 : 3;
        const int iceTime = std::max(4, player.Rating - 38);
        weights[row] = role == Role::Offender ? 120 - player.Rating : share * iceTime * iceTime;
    }
    return RosterIndex(static_cast<int>(random_.pick(weights)));
}

RosterIndex GameSimulation::pickAssistant(Side side, RosterIndex scorer,
                                          std::optional<RosterIndex> assistant) {
    const RosterIndex goalie = game_.of(side).goalie;
    if (assistant != goalie && random_.chance(1, 120))
        return goalie;
    return pickSkater(side, Role::Assistant, scorer, assistant);
}

void GameSimulation::raiseCrowd() {
    const int noise = 66 + 5 * game_.home.Goals - 2 * game_.away.Goals + 4 * fights_ + random_.below(14);
    game_.crowdMeter = std::clamp(noise, 60, 110);
}

} // namespace iceline
