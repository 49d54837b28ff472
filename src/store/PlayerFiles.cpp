#include "store/PlayerFiles.h"

#include "store/LeaguePaths.h"

#include <array>

namespace iceline {

Roster readRoster(Files& files, const std::string& path) {
    return rosterFromText(path, files.read(path));
}

Roster rosterFromText(const std::string& file, std::string_view content) {
    ItemReader reader(file, content, LastLine::MayLackEnd);
    Roster roster;
    for (RosterRow& row : roster) {
        readFields(reader, row);
        if (row.Name.find('"') != std::string::npos)
            reader.reject("Name", "a player's name cannot hold a double quote");
    }
    return roster;
}

int gamesPlayed(const PlayerStatsLine& line) {
    return std::visit([](const auto& stats) { return stats.GP; }, line);
}

int starPoints(const PlayerStatsLine& line) {
    return std::visit([](const auto& stats) { return stats.StarPoints; }, line);
}

void addStarPoints(PlayerStatsLine& line, int points) {
    std::visit([points](auto& stats) { stats.StarPoints += points; }, line);
}

TeamPlayerStats readPlayerStats(Files& files, const std::string& path, const Roster& roster) {
    const std::string content = files.read(path);
    ItemReader reader(path, content);
    TeamPlayerStats stats;
    for (const RosterIndex row : AllRosterRows) {
        if (roster[row].isGoalie())
            stats[row] = GoalieStats();
        std::visit([&reader](auto& line) { readFields(reader, line); }, stats[row]);
    }
    return stats;
}

std::string playerStatsText(const std::string& file, const TeamPlayerStats& stats) {
    LineWriter writer(file);
    for (const PlayerStatsLine& line : stats) {
        std::visit([&writer](const auto& fields) { writeFields(writer, fields); }, line);
        writer.endLine();
    }
    return writer.content();
}

std::string initialPlayerStatsText() {
    return playerStatsText(paths::PlayerStats, {});
}

} // namespace iceline
