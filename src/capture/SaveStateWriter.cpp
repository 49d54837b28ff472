#include "capture/SaveStateWriter.h"

#include <cstddef>
#include <stdexcept>

namespace iceline {

namespace {

/// The bytes of a save state while they are filled in.
class Image {
public:
    void byte(int offset, int value) {
        require(value <= 255, offset, value);
        put(offset, value);
    }

    /// A big-endian word whose low byte lies at `offset`.
    void word(int offset, int value) {
        require(value <= 65535, offset, value);
        put(offset - 1, value / 256);
        put(offset, value % 256);
    }

    void timeStamp(int offset, int period, int seconds) {
        word(offset + 1, (period - 1) * SaveStateMap::SecondsPerPeriodCode + seconds);
    }

    void rows(int offset, const TeamSheet::RowFigures& figures) {
        for (const int figure : figures)
            byte(offset++, figure);
    }

    std::string take() { return std::move(bytes_); }

private:
    static void require(bool fits, int offset, int value) {
        if (!fits || value < 0)
            throw std::out_of_range("a save state cannot hold " + std::to_string(value) + " at offset " +
                                    std::to_string(offset));
    }

    void put(int offset, int value) { bytes_[static_cast<std::size_t>(offset)] = static_cast<char>(value); }

    std::string bytes_ = std::string(SaveStateMap::MaxBytes, '\0');
};

void putTeam(Image& image, const TeamSheet& team, int block, int secondBlock) {
    using namespace SaveStateMap;
    image.word(block + Shots, team.Shots);
    image.word(block + PPG, team.PPG);
    image.word(block + PPA, team.PPA);
    image.word(block + Penalties, team.Penalties);
    image.word(block + PenM, team.PenM);
    image.word(block + AttackZoneLow, team.AttackZone);
    image.word(block + Goals, team.Goals);
    image.word(block + FaceoffsWon, team.FaceoffsWon);
    image.word(block + BodyChecks, team.BodyChecks);
    image.word(block + PassAtt, team.PassAtt);
    image.word(block + PassComp, team.PassComp);

    image.rows(block + PlayerGoals, team.G);
    image.rows(block + PlayerAssists, team.A);
    image.rows(block + PlayerShots, team.SOG);
    image.rows(block + PlayerPenM, team.PIM);

    image.word(secondBlock + PPAux, team.PPAux);
    image.word(secondBlock + AuxFor, team.AuxFor);
    image.word(secondBlock + PairAAtt, team.PairAAtt);
    image.word(secondBlock + PairAMade, team.PairAMade);
    image.word(secondBlock + PairBAtt, team.PairBAtt);
    image.word(secondBlock + PairBMade, team.PairBMade);
    image.word(secondBlock + PairCAtt, team.PairCAtt);
    image.word(secondBlock + PairCMade, team.PairCMade);
}

void putGoals(Image& image, const GameSheet& game) {
    using namespace SaveStateMap;
    int offset = ScoringTable;
    for (const ScoringEntry& goal : game.goals) {
        image.timeStamp(offset, goal.period, goal.seconds);
        image.byte(offset + 2, goal.type);
        image.byte(offset + 3, goal.scorer);
        image.byte(offset + 4, goal.assist1);
        image.byte(offset + 5, goal.assist2);
        offset += ScoringEntryBytes;
    }
    image.word(ScoringLength, game.scoringLength.value_or(offset - ScoringTable));
}

void putPenalties(Image& image, const GameSheet& game) {
    using namespace SaveStateMap;
    int offset = PenaltyTable;
    for (const PenaltyEntry& penalty : game.penalties) {
        image.timeStamp(offset, penalty.period, penalty.seconds);
        image.byte(offset + 2, penalty.type);
        image.byte(offset + 3, penalty.player);
        offset += PenaltyEntryBytes;
    }
    image.word(PenaltyLength, game.penaltyLength.value_or(offset - PenaltyTable));
}

int& at(TeamSheet::RowFigures& figures, int row) {
    return figures.at(static_cast<std::size_t>(row));
}

} // namespace

GameSheet::GameSheet(TeamIndex homeTeam, TeamIndex awayTeam) {
    home.team = homeTeam;
    away.team = awayTeam;
}

void GameSheet::addShot(Side side, int shooter) {
    TeamSheet& other = of(otherSide(side));
    ++of(side).Shots;
    ++at(of(side).SOG, shooter);
    ++at(other.SOG, other.goalie);
}

void GameSheet::addGoal(int period, int seconds, Side side, Strength strength, int scorer, int assist1,
                        int assist2) {
    addShot(side, scorer);
    goals.push_back({period, seconds, typeByte(side, static_cast<int>(strength)), scorer, assist1, assist2});
    TeamSheet& team = of(side);
    TeamSheet& other = of(otherSide(side));
    ++team.Goals;
    if (strength == Strength::PowerPlay || strength == Strength::TwoManPowerPlay)
        ++team.PPG;
    ++at(team.G, scorer);
    for (const int assistant : {assist1, assist2})
        if (assistant != SaveStateMap::NoAssist)
            ++at(team.A, assistant);
    ++at(other.G, other.goalie);
}

void GameSheet::addPenalty(int period, int seconds, Side side, Infraction infraction, int player) {
    penalties.push_back({period, seconds, typeByte(side, static_cast<int>(infraction)), player});
    TeamSheet& team = of(side);
    ++team.Penalties;
    team.PenM += minutesOf(infraction);
    at(team.PIM, player) += minutesOf(infraction);
}

std::string saveStateBytes(const GameSheet& game) {
    if (game.goals.size() > GameSheet::MaxGoals || game.penalties.size() > GameSheet::MaxPenalties)
        throw std::out_of_range("a save state has room for 30 goals and 60 penalties");
    Image image;
    image.word(SaveStateMap::HomeTeam, game.home.team);
    image.word(SaveStateMap::AwayTeam, game.away.team);
    image.word(SaveStateMap::CrowdMeter, game.crowdMeter);
    putGoals(image, game);
    putPenalties(image, game);
    putTeam(image, game.home, 0, 0);
    putTeam(image, game.away, SaveStateMap::AwayBlock, SaveStateMap::SecondAwayBlock);
    image.word(SaveStateMap::AwayPPTimeLow, game.awayPPTime);
    return image.take();
}

} // namespace iceline
