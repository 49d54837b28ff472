#pragma once

#include "league/GameSheet.h"
#include "league/PartOfYear.h"
#include "league/StarOfGame.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace iceline {

/// The operations that the history of a league is made of, each with all that decides how it comes out.
/// `What` is what the log calls it: the command's name, where there is one. docs/history.md tells every
/// field.

/// A star of a game, chosen or left over from the game before.
struct LoggedStar {
    TeamIndex team;
    std::string name;
    RosterIndex row;
};

/// A game that went into the books.
struct GameImported {
    static constexpr std::string_view What = "import";

    int gameNumber = 0; ///< as it was then; a game taken out before it lowers it
    PartOfYear part = PartOfYear::Season;
    bool season = false;     ///< the option "Season"
    bool exhibition = false; ///< the option "Exhibition"
    std::string saveState;   ///< file name
    std::string fingerprint; ///< fingerprintOf() the sheet
    std::optional<std::string> homeCoach;
    std::optional<std::string> awayCoach;
    GameSheet sheet{TeamIndex(), TeamIndex()};
    int lastScorer = 0; ///< see PlayedGame
    int lastPeriod = 0; ///< 4 for overtime
    std::array<LoggedStar, 3> stars;
    std::map<std::string, std::string>
        rosters; ///< `Players List.txt` by team, where it is not the last logged
};

/// A press of "Import Game" that came to nothing but a raised game number.
struct ImportRefused {
    static constexpr std::string_view What = "import refused";
    std::string saveState;
    std::string reason; ///< as it was said
};

struct CoachAdded {
    static constexpr std::string_view What = "coach add";
    std::string coach;
};

struct CoachRenamed {
    static constexpr std::string_view What = "coach rename";
    std::string coach;
    std::string to;
};

struct CoachDeleted {
    static constexpr std::string_view What = "coach delete";
    std::string coach;
};

struct CoachCleared {
    static constexpr std::string_view What = "coach clear";
    std::string coach;
};

struct SeasonLengthSet {
    static constexpr std::string_view What = "season-length";
    int length = 0;
};

/// The regular season was ended by hand.
struct GoneToPlayoffs {
    static constexpr std::string_view What = "go-to-playoffs";
};

/// The play-offs began by themselves; follows from the operations before it.
struct PlayoffsBegun {
    static constexpr std::string_view What = "play-offs begun";
};

struct StatsCleared {
    static constexpr std::string_view What = "clear";
    TeamIndex team; ///< AllTeams for the league
};

/// The season was kept under a name, and a new one begun.
struct NewSeason {
    static constexpr std::string_view What = "new-season";
    std::string name; ///< of the season that is over
};

/// Another operation was taken back, or put in place again.
struct Undone {
    static constexpr std::string_view What = "undo";
    int of = 0; ///< its number
};

struct Redone {
    static constexpr std::string_view What = "redo";
    int of = 0;
};

/// A game was replaced by what it should have been.
struct GameCorrected {
    static constexpr std::string_view What = "correct";
    int of = 0; ///< number of the import
    GameImported game;
};

/// A file as it is after a change by hand; without content it was removed.
struct AcceptedFile {
    std::string path;
    std::optional<std::string> content;
};

/// Changes by hand that were accepted.
struct FilesAccepted {
    static constexpr std::string_view What = "accept";
    std::vector<AcceptedFile> files;
};

/// The first line of a log: what the league was before it.
struct BaselineTaken {
    static constexpr std::string_view What = "baseline";
    int gameNumber = 0;
    std::string checksum; ///< of the file that holds the copy
};

using LoggedOperation =
    std::variant<BaselineTaken, GameImported, ImportRefused, CoachAdded, CoachRenamed, CoachDeleted,
                 CoachCleared, SeasonLengthSet, GoneToPlayoffs, PlayoffsBegun, StatsCleared, NewSeason,
                 Undone, Redone, GameCorrected, FilesAccepted>;

/// What the log calls an operation.
std::string_view whatOf(const LoggedOperation& operation);

/// A line of the log.
struct Entry {
    int number = 0;        ///< 0 for the baseline, then without a gap
    std::string time;      ///< UTC, "2026-11-23T16:50:40Z"
    bool starts = false;   ///< the program was started since the line before
    bool playoffs = false; ///< the play-offs are on after it
    LoggedOperation operation;
};

} // namespace iceline
