#pragma once

#include "files/Files.h"
#include "league/SummaryEntries.h"
#include "league/TeamTable.h"

#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// The save state of a game, held in memory: what SaveStateMap tells about its bytes, decoded. There is no
/// mark by which a file could be told to be one, so any bytes are taken for a game; a byte after the end
/// reads as 0, and an empty file is team 0 against itself without goals, penalties or figures.
class SaveState {
public:
    /// `file` is the name used in refusals.
    SaveState(std::string file, std::string bytes) : file_(std::move(file)), bytes_(std::move(bytes)) {}

    /// Reads the file once, up to SaveStateMap::MaxBytes. Throws FileError when it cannot be read.
    static SaveState read(Files& files, const std::string& path);

    /// The byte at an offset counted from 0, as the map gives them; 0 after the end.
    int byteAt(int offset) const;

    /// The big-endian word whose high byte lies at `offset`.
    int wordAt(int offset) const { return byteAt(offset) * 256 + byteAt(offset + 1); }

    /// A figure of a side's team block or player arrays, by its offset in the home team's.
    int figure(Side side, int homeOffset) const;

    /// The number of a side's team, 0 to 255.
    TeamIndex team(Side side) const;

    /// The whole entries of the two summaries, in the order of the file.
    std::vector<ScoringEntry> scoringEntries() const;
    std::vector<PenaltyEntry> penaltyEntries() const;

    /// Why the league cannot take the game, in one line that names the file, the place and what it holds:
    /// a team outside the league, or a summary entry that names a roster row which no roster has. None when
    /// it can.
    std::optional<std::string> refusal() const;

    /// Why the file holds no game that was played to its end, in a sentence that names it: it is empty or
    /// cut, a team is against itself, or neither team has a shot. None when nothing speaks against it.
    std::optional<std::string> doubt() const;

private:
    std::string file_;
    std::string bytes_;
};

} // namespace iceline
