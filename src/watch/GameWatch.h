#pragma once

#include <map>
#include <optional>
#include <string>

namespace iceline {

class Application;

/// What there is to say about a save state that a watched folder has got.
struct WatchedGame {
    std::string path;
    std::string score;                  ///< "Boston Bruins 3, Montreal Canadiens 2", the home team first
    std::optional<std::string> refusal; ///< why it cannot be imported; the score is empty then
};

/// Looks into the save states that a watched folder gets. An emulator writes the same file again and again:
/// what is in the books is not told, and a refusal once, however often the file is written.
class GameWatch {
public:
    /// What there is to say about a file; nothing when all has been said. The league does not change.
    std::optional<WatchedGame> look(Application& app, const std::string& path);

    /// Whether the refusal is another than the last one of this file, and from now on it is the last.
    bool isNews(const std::string& path, const std::string& refusal);

private:
    std::map<std::string, std::string> told_; ///< the last refusal by path
};

} // namespace iceline
