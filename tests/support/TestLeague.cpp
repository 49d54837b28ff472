#include "support/TestLeague.h"

#include "app/Catalogue.h"
#include "app/Startup.h"
#include "coaches/Coaches.h"

#include <fstream>
#include <stdexcept>

namespace iceline::test {

namespace {

/// A league that has just been made, made once for all tests of a program.
const MemoryFiles& newLeague() {
    static const MemoryFiles league = [] {
        MemoryFiles files;
        MemoryFiles siteTemplate = smallSiteTemplate();
        TestPlatform platform;
        Application app(files, siteTemplate, platform, windowCatalogue());
        startUp(app);
        return files;
    }();
    return league;
}

std::string recordFolder(TeamIndex team, PartOfYear part) {
    return paths::teamFolder(team) + seasonFolder(part);
}

} // namespace

MemoryFiles smallSiteTemplate() {
    MemoryFiles siteTemplate;
    for (const char* folder : {"Rankings", "PlayoffRankings", "PStats", "PlayoffPStats", "PlayerCards"})
        siteTemplate.makeFolder(folder);
    siteTemplate.files["styles.css"] = "body { margin: 0 }\n";
    siteTemplate.files["BoxScores.htm"] = "<table border =1><tr><th>#</th></tr>\r\n";
    siteTemplate.files["PStats/index.php"] = "<html></html>\n";
    return siteTemplate;
}

std::string rosterText(const Roster& roster) {
    std::string text;
    for (const RosterRow& row : roster)
        text += row.Name + "," + std::to_string(row.Number) + "," + std::to_string(row.Rating) + "," +
                row.Position + "\r\n";
    return text;
}

std::map<std::string, std::string> withoutHistory(std::map<std::string, std::string> files) {
    std::erase_if(files, [](const auto& file) { return file.first.starts_with("History/"); });
    return files;
}

void writeToDisk(const MemoryFiles& league, const std::filesystem::path& folder) {
    for (const std::string& path : league.folders)
        std::filesystem::create_directories(folder / path);
    for (const auto& [path, content] : league.files)
        std::ofstream(folder / path, std::ios::binary) << content;
}

TestLeague::TestLeague() : TestLeague(newLeague()) {}

TestLeague::TestLeague(const MemoryFiles& leagueFiles)
    : files(leagueFiles), siteTemplate(smallSiteTemplate()) {
    if (!startUp(app))
        throw std::logic_error("start-up was cancelled");
    platform.messages.clear();
}

TeamRecord TestLeague::record(TeamIndex team, PartOfYear part) {
    return readTeamRecord(files, recordFolder(team, part));
}

void TestLeague::setRecord(TeamIndex team, PartOfYear part, const TeamRecord& record) {
    writeTeamRecord(files, recordFolder(team, part), record);
}

Streak TestLeague::streak(TeamIndex team, PartOfYear part) {
    return readStreak(files, recordFolder(team, part));
}

void TestLeague::setStreak(TeamIndex team, PartOfYear part, const Streak& streak) {
    writeStreak(files, recordFolder(team, part), streak);
}

void TestLeague::setResults(TeamIndex team, PartOfYear part, std::string_view results) {
    files.files[paths::teamFile(team, part, paths::Last10Games)].clear();
    for (const char letter : results)
        appendResult(files, recordFolder(team, part), std::string(1, letter));
}

Roster TestLeague::roster(TeamIndex team) {
    return readRoster(files, paths::playersList(team));
}

void TestLeague::setRoster(TeamIndex team, const Roster& roster) {
    files.files[paths::playersList(team)] = rosterText(roster);
}

PlayerStatsLine TestLeague::playerStats(TeamIndex team, PartOfYear part, int row) {
    return readPlayerStats(files, paths::teamFile(team, part, paths::PlayerStats), roster(team))
        .at(RosterIndex(row));
}

void TestLeague::setPlayerStats(TeamIndex team, PartOfYear part, int row, const PlayerStatsLine& stats) {
    const std::string path = paths::teamFile(team, part, paths::PlayerStats);
    TeamPlayerStats all = readPlayerStats(files, path, roster(team));
    all.at(RosterIndex(row)) = stats;
    files.files[path] = playerStatsText(path, all);
}

void TestLeague::addCoach(const std::string& name, const TeamRecord& record, const Streak& streak) {
    createCoach(files, name);
    writeTeamRecord(files, paths::coachFolder(name), record);
    writeStreak(files, paths::coachFolder(name), streak);
}

TeamRecord TestLeague::coachRecord(const std::string& name) {
    return readTeamRecord(files, paths::coachFolder(name));
}

std::string TestLeague::page(const std::string& name) {
    return files.read(paths::page(name));
}

} // namespace iceline::test
