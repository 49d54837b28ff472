#include "games/SaveState.h"

#include "games/SaveStateMap.h"
#include "league/Roster.h"
#include "league/TeamSheetFields.h"

#include <algorithm>
#include <utility>

namespace iceline {

namespace {

/// The league reads nothing at or after this place.
constexpr int UsedBytes = SecondBlockFields.back().lowByte + SaveStateMap::SecondAwayBlock + 1;

constexpr int Shots =
    std::ranges::find(FirstBlockFields, &TeamSheet::Shots, &TeamSheetField::member)->lowByte;

struct TimeStamp {
    int period;
    int seconds;
};

TimeStamp timeStampAt(const SaveState& save, int offset) {
    const int period = save.byteAt(offset) / 64 + 1;
    return {period, save.wordAt(offset) - (period - 1) * SaveStateMap::SecondsPerPeriodCode};
}

ScoringEntry scoringEntryAt(const SaveState& save, int offset) {
    const TimeStamp time = timeStampAt(save, offset);
    return {time.period,
            time.seconds,
            save.byteAt(offset + 2),
            save.byteAt(offset + 3),
            save.byteAt(offset + 4),
            save.byteAt(offset + 5)};
}

PenaltyEntry penaltyEntryAt(const SaveState& save, int offset) {
    const TimeStamp time = timeStampAt(save, offset);
    return {time.period, time.seconds, save.byteAt(offset + 2), save.byteAt(offset + 3)};
}

/// The whole entries of a table that lies at `offset` and is `length` bytes long.
template <class Entry>
std::vector<Entry> wholeEntries(const SaveState& save, int offset, int length, int entryBytes,
                                Entry (*entryAt)(const SaveState&, int)) {
    std::vector<Entry> entries(static_cast<std::size_t>(length / entryBytes));
    for (Entry& entry : entries) {
        entry = entryAt(save, offset);
        offset += entryBytes;
    }
    return entries;
}

bool isAssist(int byte) {
    return byte == NoAssist || rosterRow(byte);
}

std::string teamRefusal(const std::string& side, TeamIndex team) {
    return "the " + side + " team is number " + std::to_string(team.number()) +
           ", but the league's teams are 0 to 23; a game outside the league cannot be read";
}

std::string rowRefusal(const std::string& entry, std::size_t index, const std::string& role, int byte) {
    return entry + " " + std::to_string(index + 1) + " names roster row " + std::to_string(byte) + " as " +
           role + ", but a roster has rows 0 to 24";
}

std::optional<std::string> goalRefusal(std::size_t index, const ScoringEntry& goal) {
    if (!rosterRow(goal.scorer))
        return rowRefusal("goal", index, "scorer", goal.scorer);
    if (!isAssist(goal.assist1))
        return rowRefusal("goal", index, "first assist", goal.assist1);
    if (!isAssist(goal.assist2))
        return rowRefusal("goal", index, "second assist", goal.assist2);
    return std::nullopt;
}

std::optional<std::string> penaltyRefusal(std::size_t index, const PenaltyEntry& penalty) {
    if (rosterRow(penalty.player))
        return std::nullopt;
    return rowRefusal("penalty", index, "player", penalty.player);
}

template <class Entry>
std::optional<std::string> firstRefusal(const std::vector<Entry>& entries,
                                        std::optional<std::string> (*test)(std::size_t, const Entry&)) {
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (auto wrong = test(i, entries[i]))
            return wrong;
    return std::nullopt;
}

std::optional<std::string> whatIsWrong(const SaveState& save) {
    if (!isLeagueTeam(save.team(Side::Home)))
        return teamRefusal("home", save.team(Side::Home));
    if (!isLeagueTeam(save.team(Side::Away)))
        return teamRefusal("away", save.team(Side::Away));
    if (auto wrong = firstRefusal(save.scoringEntries(), goalRefusal))
        return wrong;
    return firstRefusal(save.penaltyEntries(), penaltyRefusal);
}

} // namespace

SaveState SaveState::read(Files& files, const std::string& path) {
    return {path, files.readFirst(path, SaveStateMap::MaxBytes)};
}

int SaveState::byteAt(int offset) const {
    const auto index = static_cast<std::size_t>(offset);
    return index < bytes_.size() ? static_cast<unsigned char>(bytes_[index]) : 0;
}

int SaveState::figure(Side side, int homeOffset) const {
    return byteAt(side == Side::Home ? homeOffset : homeOffset + SaveStateMap::AwayBlock);
}

TeamIndex SaveState::team(Side side) const {
    return TeamIndex(byteAt(side == Side::Home ? SaveStateMap::HomeTeam : SaveStateMap::AwayTeam));
}

std::vector<ScoringEntry> SaveState::scoringEntries() const {
    return wholeEntries(*this, SaveStateMap::ScoringTable, byteAt(SaveStateMap::ScoringLength),
                        SaveStateMap::ScoringEntryBytes, scoringEntryAt);
}

std::vector<PenaltyEntry> SaveState::penaltyEntries() const {
    return wholeEntries(*this, SaveStateMap::PenaltyTable, byteAt(SaveStateMap::PenaltyLength),
                        SaveStateMap::PenaltyEntryBytes, penaltyEntryAt);
}

std::optional<std::string> SaveState::refusal() const {
    const auto wrong = whatIsWrong(*this);
    return wrong ? std::optional(file_ + ": " + *wrong) : std::nullopt;
}

std::optional<std::string> SaveState::doubt() const {
    const auto is = [this](const std::string& wrong) {
        return std::optional(file_ + " holds no finished game: " + wrong + ".");
    };
    if (bytes_.empty())
        return is("the file is empty");
    if (std::cmp_less(bytes_.size(), UsedBytes))
        return is("the file is cut");
    if (team(Side::Home) == team(Side::Away))
        return is("a team is against itself");
    if (figure(Side::Home, Shots) + figure(Side::Away, Shots) == 0)
        return is("neither team has a shot");
    return std::nullopt;
}

} // namespace iceline
