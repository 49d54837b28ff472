#include "FuzzLeague.h"
#include "Readers.h"
#include "games/BookEntry.h"
#include "log/EntryText.h"
#include "log/HistoryLog.h"
#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"

#include <nlohmann/json.hpp>
#include <sstream>

namespace iceline::test {

namespace {

const GameRosters& anyRosters() {
    static const GameRosters rosters = [] {
        MemoryFiles league = fuzzLeagues().front();
        return GameRosters{readRoster(league, paths::playersList(TeamIndex(0))),
                           readRoster(league, paths::playersList(TeamIndex(1)))};
    }();
    return rosters;
}

void readLogOf(const std::string& log) {
    MemoryFiles files;
    files.files[paths::HistoryLog] = log;
    try {
        const std::vector<Step> steps = readHistory(files);
        for (const Step& step : steps) {
            const auto written = jsonOf(step.entry);
            require(jsonOf(entryOf(written)) == written, "a line is read as it was written");
            if (const GameImported* game = gameAt(step))
                reportOf(*game, anyRosters());
        }
        const auto number = lastToUndo(steps);
        require(!number || canBeUndone(steps.at(static_cast<std::size_t>(*number)).entry.operation),
                "what undo takes by default can be undone");
    } catch (const FileError&) {
        require(files.files[paths::HistoryLog] == log, "a log that is damaged stays as it is");
    }
}

/// The lines with checksums that fit, as somebody could write them on purpose.
std::string withChecksums(const std::string& bytes) {
    std::istringstream lines(bytes);
    std::string log, checksum;
    for (std::string line; std::getline(lines, line);) {
        const std::string body = line.substr(0, line.empty() ? 0 : line.size() - 1);
        checksum = checksumText(checksum + body);
        log += body + ",\"checksum\":\"" + checksum + "\"}\n";
    }
    return log;
}

void readHistoryLog(const std::string& bytes) {
    readLogOf(bytes);
    readLogOf(withChecksums(bytes));
}

/// The first game of a league, and all kinds of operations that may follow.
std::vector<std::string> historySeeds() {
    MemoryFiles league = fuzzLeagues()[1];
    const std::vector<Entry> entries = readLog(league);
    const auto game = std::ranges::find_if(
        entries, [](const Entry& e) { return std::holds_alternative<GameImported>(e.operation); });
    std::string lines = jsonOf(entries.front()).dump() + "\n";
    int number = 0;
    const auto add = [&](const LoggedOperation& operation) {
        lines += jsonOf({.number = ++number, .time = game->time, .operation = operation}).dump() + "\n";
    };
    add(game->operation);
    add(CoachAdded{"Ann"});
    add(CoachRenamed{"Ann", "Bo"});
    add(GameCorrected{1, std::get<GameImported>(game->operation)});
    add(Undone{3});
    add(Redone{3});
    add(ImportRefused{"game.gs1", "The game is not over"});
    add(SeasonLengthSet{40});
    add(GoneToPlayoffs{});
    add(PlayoffsBegun{});
    add(CoachCleared{"Bo"});
    add(CoachDeleted{"Bo"});
    add(FilesAccepted{{{"Boston Bruins/Records.txt", "1,0"}, {"Boston Bruins/Streak.txt", std::nullopt}}});
    add(StatsCleared{AllTeams});
    require(!readHistory(league).empty(), "the league has a history");
    return {lines, withChecksums(lines)};
}

} // namespace

Reader historyReader() {
    return {"history", readHistoryLog, historySeeds};
}

} // namespace iceline::test
