#pragma once

#include "files/FileError.h"
#include "files/Files.h"
#include "log/Baseline.h"
#include "log/Chronicle.h"
#include "log/Entry.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace iceline {

/// Where the history of a league is kept.
namespace paths {
inline const std::string History = "History";
inline const std::string HistoryLog = "History/Log.jsonl";
inline const std::string HistoryBaseline = "History/Baseline.json";
inline const std::string HistoryIndex = "History/Index.txt";
} // namespace paths

/// When each game in the books was imported, as in Entry, by its number.
using GameTimes = std::map<int, std::string>;

/// The log or what belongs to it is not as it was written. what() names the line and the reason.
class DamagedHistory : public FileError {
public:
    explicit DamagedHistory(const std::string& wrong) : FileError(about(paths::HistoryLog, wrong)) {}
};

/// A game that is in the books.
struct CountedGame {
    std::string season; ///< the kept season that it is of; "" for the season now
    int gameNumber = 0;
    std::string time; ///< of its import, as in Entry
    TeamIndex home;
    int homeGoals = 0;
    TeamIndex away;
    int awayGoals = 0;
};

/// The log of a league: a line of JSON for each operation, only ever appended, each with a checksum over
/// itself and the line before. docs/history.md tells the format.
///
/// Appending reads the index alone, a small file beside the log that knows its last line and the games in the
/// books. An index that is missing, or not that of the log, is made anew.
///
/// Every function throws FileError when a file cannot be read, DamagedHistory when the log is damaged.
class HistoryLog {
public:
    /// The books of a league that has no log yet are copied as what it begins from. `time` is now.
    void begin(Files& files, const std::string& time);

    /// Appends an operation; the entry's number is given here.
    void append(Files& files, Entry entry);

    /// The game of these figures, when it is in the books.
    std::optional<CountedGame> find(Files& files, const std::string& fingerprint);

    /// The times of all games in the books whose import the log tells of; none where the log is damaged.
    GameTimes timesOfGames(Files& files);

    /// Whether the play-offs were on at the last line.
    bool playoffs(Files& files);

    /// Whether the roster is the one that the log knows of that team.
    bool knowsRoster(Files& files, const std::string& abbr, const std::string& content);

    /// Keeps a log that cannot be read under another name, which it returns; the next begin() begins a new
    /// one.
    std::string setAside(Files& files, const std::string& time);

private:
    /// What the index says of the log's last line.
    struct LastLine {
        int number = -1;
        std::uintmax_t end = 0; ///< length of the log with it
        std::string checksum;
        bool playoffs = false;
    };

    void open(Files& files);
    void rebuild(Files& files);
    std::string lineOfLast() const;
    void writeIndex(Files& files);
    static std::optional<LastLine> lastLineIn(const std::string& index);

    std::string index_;      ///< content of the index file
    bool isRebuilt_ = false; ///< the file is another one, or there is none
    LastLine last_;
};

/// The whole log, every line checked; empty for a league without one.
std::vector<Entry> readLog(Files& files);
std::vector<Step> readHistory(Files& files);

/// The copy that the log begins from.
FileContents readBaseline(Files& files);

} // namespace iceline
