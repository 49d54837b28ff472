#pragma once

#include "files/Files.h"
#include "league/GameSheet.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace iceline {

using LeagueRosters = std::array<Roster, LeagueTeams>;

/// The rosters that are built into the program.
LeagueRosters builtInRosters();

/// Who plays whom.
struct Pairing {
    TeamIndex home;
    TeamIndex away;

    friend bool operator==(const Pairing&, const Pairing&) = default;
};

/// The first `games` games of a made-up schedule in playing order. A round is 12 games, one for each team,
/// and two rounds give each team one game at home and one away. 23 rounds, 276 games, are a cycle in which
/// every pair meets once; the next cycle has home and away exchanged. The seed decides who begins against
/// whom.
std::vector<Pairing> sampleSchedule(int games, std::uint64_t seed);

/// A plausible game whose figures agree with each other, the same on every machine for the same arguments.
/// Every counter is below 256. `number` is the game's place in the schedule, from 1. A roster has its goalies
/// in its first rows, one at least, and twelve skaters or more after them.
GameSheet sampleGame(std::uint64_t seed, int number, const Pairing& pairing, const LeagueRosters& rosters);

/// Games of the schedule that are written when nobody says how many: one at home and one away for each team.
inline constexpr int DefaultSampleGames = LeagueTeams;

/// Writes `games` games of the schedule with the built-in rosters as save states into `directory`, which is
/// made when missing: game-0001.gs0, game-0002.gs0 and so on, names in playing order. Files of those names
/// are replaced. Throws FileError when one cannot be written.
void writeSampleGames(Files& files, const std::string& directory, int games, std::uint64_t seed);

} // namespace iceline
