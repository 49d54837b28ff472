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
constexpr std::size_t TopPlace = LeagueTeams - 1;
constexpr std::size_t Rounds = LeagueTeams - 1;
constexpr std::size_t GamesPerRound = LeagueTeams / 2;

struct Places {
    std::size_t home;
    std::size_t away;
};

/// The places that meet in game `game` of round `round`, both from 0. Home and away are dealt so that each
/// place has both within rounds 0 and 1, 2 and 3 and so on.
Places placesMeeting(std::size_t round, std::size_t game) {
    if (game == 0)
        return round % 2 == 0 ? Places{round, TopPlace} : Places{TopPlace, round};
    const std::size_t next = (round + game) % Rounds;
    const std::size_t previous = (round + Rounds - game) % Rounds;
    return game % 2 == 1 ? Places{next, previous} : Places{previous, next};
}

/// The teams in the places, shuffled.
std::array<TeamIndex, LeagueTeams> seatTeams(std::uint64_t seed) {
    std::array<TeamIndex, LeagueTeams> teams{};
    std::iota(teams.begin(), teams.end(), TeamIndex(0));
    SeededRandom random(seed);
    for (TeamIndex last(LeagueTeams - 1); last > TeamIndex(0); last = TeamIndex(last.number() - 1))
        std::swap(teams[last], teams[TeamIndex(random.below(last.number() + 1))]);
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
    for (const TeamIndex team : AllLeagueTeams)
        rosters[team] =
            rosterFromText("built-in roster of " + std::string(TeamName[team]), defaultRoster(team));
    return rosters;
}

std::vector<Pairing> sampleSchedule(int games, std::uint64_t seed) {
    const auto teams = seatTeams(seed);
    std::vector<Pairing> schedule;
    for (std::size_t game = 0; game < static_cast<std::size_t>(games); ++game) {
        const std::size_t round = game / GamesPerRound;
        const Places places = placesMeeting(round % Rounds, game % GamesPerRound);
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
