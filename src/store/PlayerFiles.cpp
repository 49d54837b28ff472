#include "store/PlayerFiles.h"

#include "store/LeaguePaths.h"

#include <array>

namespace iceline {

template <>
std::span<const Field<RosterRow>> fieldsOf<RosterRow>() {
    static constexpr std::array Fields{
        item("Name", &RosterRow::Name),
        i16("Number", &RosterRow::Number),
        i16("Rating", &RosterRow::Rating),
        item("Position", &RosterRow::Position),
    };
    return Fields;
}

template <>
std::span<const Field<SkaterStats>> fieldsOf<SkaterStats>() {
    using R = SkaterStats;
    static constexpr std::array Fields{
        i16("GP", &R::GP),          i16("G", &R::G),
        item("GPG", &R::GPG),       i16("A", &R::A),
        item("APG", &R::APG),       i16("Pts", &R::Pts),
        item("PtsPG", &R::PtsPG),   i16("SOG", &R::SOG),
        item("SOGPG", &R::SOGPG),   item("ShotPct", &R::ShotPct),
        i16("PIM", &R::PIM),        i16("PPG", &R::PPG),
        i16("SHG", &R::SHG),        item("PIMPG", &R::PIMPG),
        item("Rating", &R::Rating), i16("StarPoints", &R::StarPoints),
    };
    return Fields;
}

template <>
std::span<const Field<GoalieStats>> fieldsOf<GoalieStats>() {
    using R = GoalieStats;
    static constexpr std::array Fields{
        i16("GP", &R::GP),
        i16("GA", &R::GA),
        i16("SO", &R::SO),
        i16("A", &R::A),
        i16("GW", &R::GW),
        i16("GL", &R::GL),
        i16("GT", &R::GT),
        i16("SA", &R::SA),
        item("GAA", &R::GAA),
        item("SvPct", &R::SvPct),
        item("Unused11", &R::Unused11),
        i16("PPG", &R::PPG),
        i16("SHG", &R::SHG),
        item("Unused14", &R::Unused14),
        item("Rating", &R::Rating),
        i16("StarPoints", &R::StarPoints),
    };
    return Fields;
}

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
