#include "FuzzLeague.h"

namespace {

using namespace iceline;
using namespace iceline::test;

const std::string Game = "Games/game.gs0";

MemoryFiles leagueForGames() {
    TestLeague league;
    league.addCoach("Ann");
    league.files.makeFolder("Games");
    return league.files;
}

} // namespace

/// Any bytes are a game that the league takes or refuses: an import that breaks off changes nothing but the
/// game number, and what one leaves can be read again.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const MemoryFiles start = leagueForGames();
    TestLeague league(start);
    league.files.files[Game].assign(data, data + size);
    auto before = league.files.files;
    const bool failed = importFails(league, Game);
    before[paths::OverallGameNumber] = league.files.files[paths::OverallGameNumber];
    require(!failed || league.files.files == before, "an import is whole or does nothing");
    TestLeague next(league.files);
    require(!windowsFail(next), "the league can be read after an import");
    return 0;
}
