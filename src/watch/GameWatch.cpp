#include "watch/GameWatch.h"

#include "files/FileError.h"
#include "games/StatExtractor.h"
#include "shell/Application.h"

#include <utility>

namespace iceline {

namespace {

/// None for a game that is in the books.
std::optional<WatchedGame> gameOf(Application& app, const std::string& path) {
    try {
        const PlayedGame game = readGame(app.files(), path);
        if (game.refusal)
            return WatchedGame{path, "", game.refusal};
        const auto doubt = StatExtractor::in(app).doubtAbout(game);
        if (!doubt)
            return WatchedGame{path, scoreText(game.sheet), std::nullopt};
        if (doubt->kind == GameDoubt::Kind::AlreadyCounted)
            return std::nullopt;
        return WatchedGame{path, "", doubt->text};
    } catch (const FileError& error) {
        return WatchedGame{path, "", error.what()};
    }
}

} // namespace

std::optional<WatchedGame> GameWatch::look(Application& app, const std::string& path) {
    auto game = gameOf(app, path);
    if (game && game->refusal && !isNews(path, *game->refusal))
        return std::nullopt;
    return game;
}

bool GameWatch::isNews(const std::string& path, const std::string& refusal) {
    return std::exchange(told_[path], refusal) != refusal;
}

} // namespace iceline
