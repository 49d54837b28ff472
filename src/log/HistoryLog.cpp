#include "log/HistoryLog.h"

#include "log/EntryText.h"
#include "store/LeagueFiles.h"
#include "store/LeaguePaths.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

namespace iceline {

namespace {

/// Bytes in which the first line has room.
constexpr std::size_t BaselineLineLimit = 512;

constexpr std::string_view ChecksumField = ",\"checksum\":\"";

DamagedHistory damaged(int line, const std::string& reason) {
    return DamagedHistory("line " + std::to_string(line + 1) + " is damaged: " + reason);
}

/// A line of the log and its checksum, which covers that of the line before.
struct ChainedLine {
    std::string text; ///< with its end
    std::string checksum;
};

ChainedLine chained(const Entry& entry, const std::string& checksumBefore) {
    std::string body = jsonOf(entry).dump();
    body.pop_back();
    const std::string checksum = checksumText(checksumBefore + body);
    return {body + std::string(ChecksumField) + checksum + "\"}\n", checksum};
}

/// The entry of a line; `checksum` is that of the line before and becomes this one's.
Entry readLine(std::string_view text, int line, std::string& checksum) {
    const auto field = text.rfind(ChecksumField);
    if (field == text.npos)
        throw damaged(line, "it has no checksum");
    const std::string expected = checksumText(checksum + std::string(text.substr(0, field)));
    if (text.substr(field + ChecksumField.size()) != expected + "\"}")
        throw damaged(line, "its checksum is not that of its content and the line before");
    checksum = expected;
    try {
        Entry entry = entryOf(nlohmann::ordered_json::parse(text));
        if (entry.number != line || (line == 0) != std::holds_alternative<BaselineTaken>(entry.operation))
            throw damaged(line, "it is not the line of this place");
        return entry;
    } catch (const nlohmann::json::exception& error) {
        throw damaged(line, error.what());
    } catch (const std::invalid_argument& error) {
        throw damaged(line, error.what());
    }
}

std::vector<Entry> readEntries(Files& files, std::string& checksum) {
    const std::string log = files.read(paths::HistoryLog);
    std::vector<Entry> entries;
    std::string_view rest = log;
    while (!rest.empty()) {
        const int line = static_cast<int>(entries.size());
        const auto end = rest.find('\n');
        if (end == rest.npos)
            throw damaged(line, "it has no end");
        entries.push_back(readLine(rest.substr(0, end), line, checksum));
        rest.remove_prefix(end + 1);
    }
    return entries;
}

std::vector<Step> chronicle(std::vector<Entry> entries) {
    try {
        return chronicleOf(std::move(entries));
    } catch (const std::invalid_argument& error) {
        throw DamagedHistory(error.what());
    }
}

/// The lines of the index, each begun by a word that says what it tells.
std::string gameLine(const GameImported& game, int gameNumber, const std::string& time) {
    std::ostringstream line;
    line << "game " << game.fingerprint << ' ' << gameNumber << ' ' << time << ' '
         << game.sheet.home.team.number() << ' ' << game.sheet.home.Goals << ' '
         << game.sheet.away.team.number() << ' ' << game.sheet.away.Goals << '\n';
    return line.str();
}

std::string seasonLine(const NewSeason& season) {
    return "season " + season.name + "\n";
}

/// The season whose games end at the first such line from `at` on; "" when it goes on.
std::string seasonAfter(std::string_view index, std::size_t at) {
    constexpr std::string_view Beginning = "\nseason ";
    const auto line = index.find(Beginning, at);
    if (line == index.npos)
        return "";
    const auto name = index.substr(line + Beginning.size());
    return std::string(name.substr(0, name.find('\n')));
}

CountedGame gameOfLine(std::string_view line) {
    std::istringstream words{std::string(line)};
    std::string word;
    CountedGame game;
    int home = 0;
    int away = 0;
    words >> word >> word >> game.gameNumber >> game.time >> home >> game.homeGoals >> away >> game.awayGoals;
    game.home = TeamIndex(home);
    game.away = TeamIndex(away);
    return game;
}

std::string rosterLine(const std::string& abbr, const std::string& content) {
    return "roster " + abbr + " " + checksumText(content) + "\n";
}

std::string rosterLines(const GameImported& game) {
    std::string lines;
    for (const auto& [abbr, content] : game.rosters)
        lines += rosterLine(abbr, content);
    return lines;
}

/// The last line of the index that begins like this; empty when there is none.
std::string_view lastLineWith(std::string_view index, const std::string& beginning) {
    auto at = index.rfind("\n" + beginning);
    if (at == index.npos && !index.starts_with(beginning))
        return {};
    at = at == index.npos ? 0 : at + 1;
    return index.substr(at, index.find('\n', at) - at);
}

/// Whether the line says something about lines before it.
bool changesOthers(const LoggedOperation& operation) {
    return std::holds_alternative<Undone>(operation) || std::holds_alternative<Redone>(operation) ||
           std::holds_alternative<GameCorrected>(operation);
}

/// Whether no game of before counts as known any more. Those of an older season do.
bool forgetsGames(const LoggedOperation& operation) {
    return emptiesBooks(operation) && !std::holds_alternative<NewSeason>(operation);
}

std::string withoutGames(const std::string& index) {
    std::istringstream lines(index);
    std::string kept;
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with("game ") && !line.starts_with("season "))
            kept += line + "\n";
    return kept;
}

} // namespace

std::optional<HistoryLog::LastLine> HistoryLog::lastLineIn(const std::string& index) {
    if (!index.ends_with('\n'))
        return std::nullopt;
    std::istringstream words{std::string(lastLineWith(index, "line "))};
    std::string word;
    LastLine last;
    words >> word >> last.number >> last.end >> last.checksum >> last.playoffs;
    return words ? std::optional(last) : std::nullopt;
}

void HistoryLog::open(Files& files) {
    const std::uintmax_t length = files.size(paths::HistoryLog);
    if (!index_.empty() && files.size(paths::HistoryIndex) == index_.size() && last_.end == length)
        return;
    index_.clear();
    last_ = {};
    isRebuilt_ = false;
    if (length == 0)
        return;
    if (files.isFile(paths::HistoryIndex))
        index_ = files.read(paths::HistoryIndex);
    const auto last = lastLineIn(index_);
    if (last && last->end == length)
        last_ = *last;
    else
        rebuild(files);
}

void HistoryLog::rebuild(Files& files) {
    std::string checksum;
    const std::vector<Step> steps = chronicle(readEntries(files, checksum));
    index_.clear();
    for (const auto& [path, content] : readBaseline(files))
        if (isRoster(path))
            index_ += rosterLine(std::string(TeamAbbr[*teamByName(folderOf(path))]), content);
    for (const Step& step : steps) {
        if (const auto* game = std::get_if<GameImported>(&step.entry.operation))
            index_ += rosterLines(*game);
        if (const GameImported* game = gameAt(step))
            index_ += gameLine(*game, step.gameNumber, step.entry.time);
        if (!step.undone && forgetsGames(step.entry.operation))
            index_ = withoutGames(index_);
        if (const auto* season = std::get_if<NewSeason>(&step.entry.operation); season && !step.undone)
            index_ += seasonLine(*season);
    }
    const Entry& entry = steps.back().entry;
    last_ = {entry.number, files.size(paths::HistoryLog), checksum, entry.playoffs};
    index_ += lineOfLast();
    isRebuilt_ = true;
}

std::string HistoryLog::lineOfLast() const {
    return "line " + std::to_string(last_.number) + " " + std::to_string(last_.end) + " " + last_.checksum +
           (last_.playoffs ? " 1\n" : " 0\n");
}

void HistoryLog::writeIndex(Files& files) {
    files.write(paths::HistoryIndex, index_);
    isRebuilt_ = false;
}

void HistoryLog::begin(Files& files, const std::string& time) {
    open(files);
    if (last_.number >= 0)
        return;
    files.makeFolder(paths::History);
    const FileContents books = copyOfBooks(files);
    const std::string copy = textOfFiles(books);
    files.write(paths::HistoryBaseline, copy);
    files.write(paths::HistoryLog, "");
    isRebuilt_ = true;
    for (const auto& [path, content] : books)
        if (isRoster(path))
            index_ += rosterLine(std::string(TeamAbbr[*teamByName(folderOf(path))]), content);
    append(files,
           {.time = time,
            .starts = true,
            .operation = BaselineTaken{readNumber32(files, paths::OverallGameNumber), checksumText(copy)}});
}

void HistoryLog::append(Files& files, Entry entry) {
    entry.number = last_.number + 1;
    const ChainedLine line = chained(entry, last_.checksum);
    files.append(paths::HistoryLog, line.text);
    if (changesOthers(entry.operation)) {
        rebuild(files);
        return writeIndex(files);
    }
    last_ = {entry.number, files.size(paths::HistoryLog), line.checksum, entry.playoffs};
    const std::uintmax_t known = files.size(paths::HistoryIndex);
    if (forgetsGames(entry.operation)) {
        index_ = withoutGames(index_);
        isRebuilt_ = true;
    }
    if (const auto* game = std::get_if<GameImported>(&entry.operation))
        index_ += rosterLines(*game) + gameLine(*game, game->gameNumber, entry.time);
    if (const auto* season = std::get_if<NewSeason>(&entry.operation))
        index_ += seasonLine(*season);
    index_ += lineOfLast();
    if (isRebuilt_)
        writeIndex(files);
    else
        files.extend(paths::HistoryIndex, known, std::string_view(index_).substr(known));
}

std::optional<CountedGame> HistoryLog::find(Files& files, const std::string& fingerprint) {
    open(files);
    const std::string_view line = lastLineWith(index_, "game " + fingerprint + " ");
    if (line.empty())
        return std::nullopt;
    CountedGame game = gameOfLine(line);
    game.season = seasonAfter(index_, static_cast<std::size_t>(line.data() - index_.data()));
    return game;
}

GameTimes HistoryLog::timesOfGames(Files& files) {
    GameTimes times;
    try {
        open(files);
    } catch (const DamagedHistory&) {
        return times;
    }
    std::istringstream lines(index_);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("game ")) {
            const CountedGame game = gameOfLine(line);
            times[game.gameNumber] = game.time;
        } else if (line.starts_with("season ")) {
            times.clear();
        }
    }
    return times;
}

bool HistoryLog::playoffs(Files& files) {
    open(files);
    return last_.playoffs;
}

bool HistoryLog::knowsRoster(Files& files, const std::string& abbr, const std::string& content) {
    open(files);
    const std::string_view known = lastLineWith(index_, "roster " + abbr + " ");
    return !known.empty() && rosterLine(abbr, content).starts_with(known);
}

std::string HistoryLog::setAside(Files& files, const std::string& time) {
    std::string name = paths::History + "/Kept aside " + time;
    std::ranges::replace(name, ':', '-');
    for (const auto& [path, ending] :
         {std::pair(paths::HistoryLog, " Log.jsonl"), std::pair(paths::HistoryBaseline, " Baseline.json")}) {
        if (!files.isFile(path))
            continue;
        files.write(name + ending, files.read(path));
        files.remove(path);
    }
    files.remove(paths::HistoryIndex);
    index_.clear();
    last_ = {};
    return name + " Log.jsonl";
}

std::vector<Entry> readLog(Files& files) {
    if (files.size(paths::HistoryLog) == 0)
        return {};
    std::string checksum;
    return readEntries(files, checksum);
}

std::vector<Step> readHistory(Files& files) {
    return chronicle(readLog(files));
}

FileContents readBaseline(Files& files) {
    if (!files.isFile(paths::HistoryBaseline))
        throw DamagedHistory("the copy that it begins from, " + paths::HistoryBaseline + ", is missing");
    const std::string copy = files.read(paths::HistoryBaseline);
    const std::string log = files.readFirst(paths::HistoryLog, BaselineLineLimit);
    if (log.find(checksumText(copy)) == std::string::npos)
        throw DamagedHistory(paths::HistoryBaseline + " is not the copy that it begins from");
    return filesOfText(paths::HistoryBaseline, copy);
}

} // namespace iceline
