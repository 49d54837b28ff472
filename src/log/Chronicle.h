#pragma once

#include "log/Entry.h"

#include <optional>
#include <vector>

namespace iceline {

/// What a line of the log comes to, with everything that later lines say about it.
struct Step {
    Entry entry;            ///< the operation as it was last corrected
    bool undone = false;    ///< taken back, and not put in place again
    bool corrected = false; ///< an import whose operation is that of a later line
    int gameNumber = 0;     ///< of an import or a refused one in place: its number in the books
};

/// The lines of a log as steps, whose place is their number. Throws std::invalid_argument for an undo, redo
/// or correction of what cannot be.
std::vector<Step> chronicleOf(std::vector<Entry> entries);

/// Whether the operation is one that can be undone: not what only follows from others, or speaks of them.
bool canBeUndone(const LoggedOperation& operation);

/// The number of the operation that "undo" without a number takes back, and of the one that "redo" puts in
/// place again.
std::optional<int> lastToUndo(const std::vector<Step>& steps);
std::optional<int> lastToRedo(const std::vector<Step>& steps);

/// Whether the operation takes all games out of the books.
bool emptiesBooks(const LoggedOperation& operation);

/// The steps of the games that are in the books after the last of them all.
std::vector<const Step*> gamesInBooks(const std::vector<Step>& steps);

/// The import in place at that step; null when the step is none, or undone.
const GameImported* gameAt(const Step& step);

} // namespace iceline
