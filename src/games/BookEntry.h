#pragma once

#include "games/GameReport.h"
#include "log/Entry.h"
#include "playoffs/Bracket.h"
#include "shell/Application.h"

#include <optional>
#include <string>

namespace iceline {

/// What a game does to the books, the same when it is imported and when the books are worked out anew.

/// The kind of a game by the option buttons, none when neither is set outside the play-offs.
std::optional<GameKind> gameKind(bool season, bool exhibition, bool playoffs);

/// Throws FileError when the league can count no further game.
void requireHigherGameNumber(Files& files);
void raiseGameNumber(Files& files);

/// The series that a game belongs to by the bracket in memory.
std::optional<SeriesOfGame> openSeries(const ApplicationState& state, const GameSheet& game);

/// Folds the figures of a game into the league's files and counts it in its series, which must be open.
void foldGame(Application& app, const GameImported& game, const GameRosters& rosters);

/// The report of a game as it was made when it was imported.
GameReport reportOf(const GameImported& game, const GameRosters& rosters);

/// The rosters of a game's teams as the league's files have them.
GameRosters rostersOf(Files& files, const GameImported& game);

/// Why the books as they are now have no place for the game, in a sentence; none when they have. Reads the
/// series.
std::optional<std::string> misfitOf(Application& app, const GameImported& game);

/// Takes a game that fits into the books: number, page, list row, recent games and all figures.
void carryOut(Application& app, const GameImported& game);

/// Raises the game number.
void carryOut(Application& app, const ImportRefused& refused);

} // namespace iceline
