#pragma once

#include "league/Roster.h"
#include "log/Baseline.h"
#include "log/Chronicle.h"

namespace iceline {

/// The rosters of a league as its history knows them, from one operation to the next.
class KnownRosters {
public:
    /// As they were before the first operation: the copy that the log begins from.
    explicit KnownRosters(FileContents baseline) : texts_(std::move(baseline)) {}

    /// Notes the rosters that an operation brought.
    void take(const Step& step);

    /// The rosters of a game's teams. Throws FileError where one is malformed.
    GameRosters of(const GameSheet& game) const;

private:
    Roster of(TeamIndex team) const;

    FileContents texts_;
};

} // namespace iceline
