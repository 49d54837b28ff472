#pragma once

#include "history/Replay.h"

#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// What a correction makes of a game; what is not given stays.
struct Correction {
    std::optional<bool> exhibition;
    std::optional<std::optional<std::string>> homeCoach; ///< nobody when the inner one is empty
    std::optional<std::optional<std::string>> awayCoach;
    std::optional<std::string> file; ///< the save state that should have been imported
};

/// What is refused, in words for the user; the league is as before.
class HistoryRefusal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Takes an operation back, puts one in place again, corrects a game: the books are worked out anew in
/// memory, and what comes out differently is written in one commit, with the page, the row and the recent
/// games that belong to it. `number` is that of the operation in the history; by default the last one.
/// Returns what was done, for the user. Throws HistoryRefusal, where a later operation would not hold
/// (Misfit's words) or files were changed by hand, and FileError.
std::string undo(Application& app, std::optional<int> number);
std::string redo(Application& app);
std::string correct(Application& app, int number, const Correction& correction);

/// A file that is not what the history makes of it.
struct Difference {
    std::string path;
    std::optional<std::string> found;    ///< none: there is no such file
    std::optional<std::string> expected; ///< none: there should be none
};

/// The books worked out anew from the history, and how the league's files differ from them.
struct Audit {
    std::size_t files = 0; ///< compared
    std::vector<Difference> differences;
};

/// Throws HistoryRefusal for a league without a history.
Audit auditBooks(Application& app);

/// Makes what the files are now part of the history, or writes what the history gives, after a copy of the
/// league.
void acceptDifferences(Application& app, const Audit& audit);
void repairDifferences(Application& app, const Audit& audit);

/// Where and what differs first: "line 1, item 5 (WinPercent) is 0.7, the games give 0.5".
std::string textOf(const Difference& difference);

} // namespace iceline
