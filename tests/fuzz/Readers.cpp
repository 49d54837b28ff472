#include "Readers.h"

#include "FuzzLeague.h"
#include "files/FileError.h"
#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"
#include "store/TeamFiles.h"

#include <cstdlib>
#include <iostream>

namespace iceline::test {

namespace {

/// A kind of data file, one of which is at `path`. `writtenAgain` reads it and gives what the program writes
/// of that: text that reads as the same.
Reader dataFile(const std::string& name, const std::string& path,
                std::function<std::string(Files&, const std::string& path)> writtenAgain) {
    const auto read = [path, writtenAgain](const std::string& bytes) {
        MemoryFiles files;
        files.files[path] = bytes;
        try {
            const std::string text = writtenAgain(files, path);
            files.files[path] = text;
            require(writtenAgain(files, path) == text, "what is written reads as the same");
        } catch (const FileError&) {
            require(files.files[path] == bytes, "what is written can be read");
        }
    };
    return {name, read, [path] { return fromLeagues(path); }};
}

/// The text of a file that one function reads and another turns into text.
template <class Records>
auto textOfAll(Records (*read)(Files&, const std::string&)) {
    return [read](Files& files, const std::string& path) { return textOf(path, read(files, path)); };
}

std::string playoffRecords(Files& files, const std::string&) {
    PlayoffSeriesTable series;
    readPlayoffRecords(files, series);
    return textOf(series);
}

std::string recentGames(Files& files, const std::string&) {
    return textOf(readRecentGames(files));
}

std::string rosterAgain(Files& files, const std::string& path) {
    LineWriter writer(path);
    for (const RosterRow& row : readRoster(files, path)) {
        writeFields(writer, row);
        writer.endLine();
    }
    return writer.content();
}

std::string teamRecord(Files& files, const std::string& path) {
    return lineOf(path, readTeamRecord(files, folderOf(path)));
}

std::string streak(Files& files, const std::string& path) {
    return lineOf(path, readStreak(files, folderOf(path)));
}

std::string lastTen(Files& files, const std::string& path) {
    const LastTen tens = readLastTen(files, folderOf(path), 12);
    require(tens.wins + tens.losses + tens.ties <= 10, "at most ten results count");
    return files.read(path);
}

std::string playerStats(Files& files, const std::string& path) {
    static const Roster roster = [] {
        MemoryFiles league = fuzzLeagues().front();
        return readRoster(league, paths::playersList(TeamIndex(0)));
    }();
    return playerStatsText(path, readPlayerStats(files, path, roster));
}

std::string number16(Files& files, const std::string& path) {
    return numberLine(readNumber16(files, path));
}

std::string number32(Files& files, const std::string& path) {
    return numberLine(readNumber32(files, path));
}

std::vector<Reader> makeReaders() {
    constexpr PartOfYear Season = PartOfYear::Season;
    constexpr TeamIndex Team{0};
    const auto ofTeam = [&](const std::string& name) { return paths::teamFile(Team, Season, name); };
    return {
        saveStateReader(),
        booksReader(),
        bracketReader(),
        journalReader(),
        scriptLineReader(),
        coachNameReader(),
        historyReader(),
        dataFile("player_records", paths::allTimePlayerRecords(Season), textOfAll(readAllTimePlayerRecords)),
        dataFile("goalie_records", paths::allTimeGoalieRecords(Season), textOfAll(readAllTimeGoalieRecords)),
        dataFile("league_records", paths::allTimeLeagueRecords(Season), textOfAll(readAllTimeLeagueRecords)),
        dataFile("coaches_records", paths::coachesLeagueRecords(Season), textOfAll(readCoachesLeagueRecords)),
        dataFile("playoff_records", paths::PlayoffRecords, playoffRecords),
        dataFile("recent_games", paths::Last10Box, recentGames),
        dataFile("number16", paths::GamesUntilPlayoffs, number16),
        dataFile("number32", paths::OverallGameNumber, number32),
        dataFile("roster", paths::playersList(Team), rosterAgain),
        dataFile("team_record", ofTeam(paths::Records), teamRecord),
        dataFile("streak", ofTeam(paths::Streak), streak),
        dataFile("last_ten", ofTeam(paths::Last10Games), lastTen),
        dataFile("player_stats", ofTeam(paths::PlayerStats), playerStats),
    };
}

} // namespace

const std::vector<Reader>& allReaders() {
    static const std::vector<Reader> readers = makeReaders();
    return readers;
}

void require(bool holds, std::string_view promise) {
    if (holds)
        return;
    std::cerr << "broken: " << promise << '\n';
    std::abort();
}

} // namespace iceline::test
