#include "FuzzLeague.h"
#include "Readers.h"
#include "files/FileError.h"
#include "files/StagedFiles.h"
#include "games/BoxScorePage.h"
#include "games/ThreeStars.h"
#include "playoffs/Bracket.h"
#include "samples/SaveStateWriter.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <utility>

namespace iceline::test {

namespace {

/// Puts the game into the books, as an import does once it has accepted it. Throws FileError.
void putIntoBooks(Files& league, const PlayedGame& game) {
    ApplicationState state;
    GameReport report = gameReport(game, 0);
    state.GameLastPeriod = report.GameLastPeriod;
    selectStars(state, game);
    report.Star = state.Star;
    StagedFiles staged(league);
    const bool overtime = report.GameLastPeriod > 3;
    importGame(staged, {game.sheet,
                        game.rosters,
                        PartOfYear::Season,
                        true,
                        overtime,
                        0,
                        {HomeCoach, AwayCoach},
                        state.Star,
                        state.StarSlot});
    writeBoxScore(staged, {report, "game.htm", GameKind::Season, HomeCoach, AwayCoach});
}

void readSaveState(const std::string& bytes) {
    static MemoryFiles league = fuzzLeagues()[1];
    league.files["Games/game.gs0"] = bytes;
    try {
        const PlayedGame game = readGame(league, "Games/game.gs0");
        if (game.refusal)
            return;
        putIntoBooks(league, game);
        const std::string again = saveStateBytes(game.sheet);
        require(saveStateBytes(readGameSheet(SaveState("again", again))) == again,
                "a game is written as read");
    } catch (const FileError&) {
        return;
    }
}

/// The files of the league that an import of a game reads.
const std::vector<std::string>& filesOfGame() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> found;
        for (const auto& [path, content] : fuzzLeagues()[1].files)
            if (!path.starts_with(paths::WebRoot) && !path.starts_with("Games/"))
                found.push_back(path);
        return found;
    }();
    return names;
}

/// A data file with other bytes, of which the first two say which file; a game of its team follows.
void readBooks(const std::string& bytes) {
    if (bytes.size() < 2)
        return;
    static const std::string game = sampleSaveStates().front();
    static MemoryFiles league = fuzzLeagues()[1];
    const auto number = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    const std::size_t file = (number(0) * 256u + number(1)) % filesOfGame().size();
    std::string& content = league.files[filesOfGame()[file]];
    const std::string before = std::exchange(content, bytes.substr(2));
    try {
        PlayedGame played{readGameSheet(SaveState("game", game)), {}, 0, {}};
        played.rosters = {readRoster(league, paths::playersList(played.sheet.home.team)),
                          readRoster(league, paths::playersList(played.sheet.away.team))};
        putIntoBooks(league, played);
    } catch (const FileError&) {
        content = before;
        return;
    }
    content = before;
}

std::vector<std::string> booksSeeds() {
    std::vector<std::string> seeds;
    for (std::size_t file = 0; file < filesOfGame().size(); ++file)
        seeds.push_back(std::string{static_cast<char>(file / 256), static_cast<char>(file % 256)} +
                        fuzzLeagues()[1].files.at(filesOfGame()[file]));
    return seeds;
}

/// A bracket with its first round drawn.
PlayoffSeriesTable drawnBracket() {
    PlayoffSeriesTable table;
    for (int series = 0; series < FirstRoundSeries; ++series) {
        table[SeriesIndex(series)].TeamA = TeamIndex(2 * series);
        table[SeriesIndex(series)].TeamB = TeamIndex(2 * series + 1);
    }
    return table;
}

void requireConsistent(const PlayoffSeriesTable& table) {
    for (const SeriesIndex number : AllSeries) {
        const PlayoffSeriesRecord& series = table[number];
        require(series.WinsA <= WinsToTakeSeries && series.WinsB <= WinsToTakeSeries &&
                    series.WinsA + series.WinsB < 2 * WinsToTakeSeries,
                "four wins decide a series");
        require(series.TeamA == BlankTeam || series.TeamA != series.TeamB, "no team meets itself");
        if (const auto place = placeOfWinner(number))
            require(teamAt(table, *place) == winnerOf(series), "the winner of a series moves on");
    }
}

/// The history of a bracket: two bytes a game, its teams and who wins it.
void readBracket(const std::string& bytes) {
    PlayoffSeriesTable table = drawnBracket();
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        const GameTeams teams{TeamIndex(first % LeagueTeams), TeamIndex(second % LeagueTeams)};
        if (const auto game = seriesOfGame(table, teams))
            recordResult(table, *game, {first / LeagueTeams, second / LeagueTeams});
        requireConsistent(table);
    }
    MemoryFiles files;
    files.files[paths::PlayoffRecords] = textOf(table);
    PlayoffSeriesTable read = drawnBracket();
    readPlayoffRecords(files, read);
    require(read == table, "the bracket is read as it was written");
}

/// A play-off in which the lower number wins every game.
std::vector<std::string> bracketSeeds() {
    std::string games;
    for (int step = 1; step < FirstRoundSeries * 2; step *= 2)
        for (int team = 0; team + step < FirstRoundSeries * 2; team += 2 * step)
            for (int win = 0; win < WinsToTakeSeries; ++win)
                games += {static_cast<char>(team + LeagueTeams), static_cast<char>(team + step)};
    return {games};
}

} // namespace

Reader saveStateReader() {
    return {"save_state", readSaveState, sampleSaveStates};
}

Reader booksReader() {
    return {"books", readBooks, booksSeeds};
}

Reader bracketReader() {
    return {"bracket", readBracket, bracketSeeds};
}

} // namespace iceline::test
