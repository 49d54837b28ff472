#include "samples/SampleGames.h"

#include "league/DefaultRosters.h"
#include "samples/GameSimulation.h"
#include "samples/SaveStateWriter.h"
#include "samples/SeededRandom.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace iceline {

namespace {

/// In a round one team stays at the top while the others sit around a circle that turns by one a round.
constexpr int TopPlace = LeagueTeams - 1;
constexpr int Rounds = LeagueTeams - 1;
constexpr int GamesPerRound = LeagueTeams / 2;

/// The places that meet in game `game` of round `round`, both from 0. Home and away are dealt so that each
/// place has both within rounds 0 and 1, 2 and 3 and so on.
Pairing placesMeeting(int round, int game) {
    if (game == 0)
        return round % 2 == 0 ? Pairing{round, TopPlace} : Pairing{TopPlace, round};
    const int ahead = (round + game) % Rounds;
    const int behind = (round + Rounds - game) % Rounds;
    return game % 2 == 1 ? Pairing{ahead, behind} : Pairing{behind, ahead};
}

/// The teams in the places, shuffled.
std::array<TeamIndex, LeagueTeams> seatTeams(std::uint64_t seed) {
    std::array<TeamIndex, LeagueTeams> teams{};
    std::iota(teams.begin(), teams.end(), 0);
    SeededRandom random(seed);
    for (int left = LeagueTeams; left > 1; --left)
        std::swap(teams[left - 1], teams[random.below(left)]);
    return teams;
}

/// "game-0001.gs0"; with more digits where `games` has more.
std::string fileName(int number, int games) {
    const std::size_t width = std::max<std::size_t>(4, std::to_string(games).size());
    const std::string digits = std::to_string(number);
    return "game-" + std::string(width - digits.size(), '0') + digits + ".gs0";
}

} // namespace

LeagueRosters builtInRosters() {
    LeagueRosters rosters;
    for (TeamIndex team = 0; team < LeagueTeams; ++team)
        rosters[team] =
            rosterFromText("built-in roster of " + std::string(TeamName[team]), defaultRoster(team));
    return rosters;
}

std::vector<Pairing> sampleSchedule(int games, std::uint64_t seed) {
    const auto teams = seatTeams(seed);
    std::vector<Pairing> schedule;
    for (int game = 0; game < games; ++game) {
        const int round = game / GamesPerRound;
        const Pairing places = placesMeeting(round % Rounds, game % GamesPerRound);
        Pairing pairing{teams[places.home], teams[places.away]};
        const bool exchanged = round / Rounds % 2 == 1;
        if (exchanged)
            std::swap(pairing.home, pairing.away);
        schedule.push_back(pairing);
    }
    return schedule;
}

GameSheet sampleGame(std::uint64_t seed, int number, const Pairing& pairing, const LeagueRosters& rosters) {
    const std::uint64_t gameSeed = SeededRandom(seed).next() + static_cast<std::uint64_t>(number);
    const SampleTeam home{pairing.home, rosters[pairing.home]};
    const SampleTeam away{pairing.away, rosters[pairing.away]};
    return GameSimulation(gameSeed, home, away).play();
}

void writeSampleGames(Files& files, const std::string& directory, int games, std::uint64_t seed) {
    const LeagueRosters rosters = builtInRosters();
    files.makeFolder(directory);
    int number = 0;
    for (const Pairing& pairing : sampleSchedule(games, seed)) {
        ++number;
        files.write(directory + "/" + fileName(number, games),
                    saveStateBytes(sampleGame(seed, number, pairing, rosters)), Durability::Later);
    }
    files.sync();
}

} // namespace iceline
