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

/// The history of the league. Throws HistoryRefusal for a league without one.
std::vector<Step> requireHistory(Application& app);

/// Has the windows show what the books are now.
void refreshWindows(Application& app);

/// The content of a file, none when there is no such file; and the inverse.
std::optional<std::string> contentIn(const FileContents& books, const std::string& path);
std::optional<std::string> contentIn(Files& files, const std::string& path);
void put(Files& files, const std::string& path, const std::optional<std::string>& content);

} // namespace iceline
