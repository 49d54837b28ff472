#include "samples/SaveStateWriter.h"

#include "games/SaveStateMap.h"
#include "league/TeamSheetFields.h"

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
    for (const TeamSheetField& field : FirstBlockFields)
        image.word(block + field.lowByte, team.*field.member);
    for (const PlayerArray& array : PlayerArrays)
        image.rows(block + array.firstRow, team.*array.member);
    for (const TeamSheetField& field : SecondBlockFields)
        image.word(secondBlock + field.lowByte, team.*field.member);
}

void putGoals(Image& image, const GameSheet& game) {
    int offset = SaveStateMap::ScoringTable;
    for (const ScoringEntry& goal : game.goals) {
        image.timeStamp(offset, goal.period, goal.seconds);
        image.byte(offset + 2, goal.type);
        image.byte(offset + 3, goal.scorer);
        image.byte(offset + 4, goal.assist1);
        image.byte(offset + 5, goal.assist2);
        offset += SaveStateMap::ScoringEntryBytes;
    }
    image.word(SaveStateMap::ScoringLength, game.scoringLength.value_or(offset - SaveStateMap::ScoringTable));
}

void putPenalties(Image& image, const GameSheet& game) {
    int offset = SaveStateMap::PenaltyTable;
    for (const PenaltyEntry& penalty : game.penalties) {
        image.timeStamp(offset, penalty.period, penalty.seconds);
        image.byte(offset + 2, penalty.type);
        image.byte(offset + 3, penalty.player);
        offset += SaveStateMap::PenaltyEntryBytes;
    }
    image.word(SaveStateMap::PenaltyLength, game.penaltyLength.value_or(offset - SaveStateMap::PenaltyTable));
}

} // namespace

std::string saveStateBytes(const GameSheet& game) {
    if (game.goals.size() > GameSheet::MaxGoals || game.penalties.size() > GameSheet::MaxPenalties)
        throw std::out_of_range("a save state has room for 30 goals and 60 penalties");
    Image image;
    image.word(SaveStateMap::HomeTeam, game.home.team.number());
    image.word(SaveStateMap::AwayTeam, game.away.team.number());
    image.word(SaveStateMap::CrowdMeter, game.crowdMeter);
    putGoals(image, game);
    putPenalties(image, game);
    putTeam(image, game.home, 0, 0);
    putTeam(image, game.away, SaveStateMap::AwayBlock, SaveStateMap::SecondAwayBlock);
    image.word(SaveStateMap::AwayPPTimeLow, game.awayPPTime);
    return image.take();
}

} // namespace iceline
