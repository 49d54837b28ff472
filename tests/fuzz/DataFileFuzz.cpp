#include "FuzzLeague.h"
#include "samples/SaveStateWriter.h"

#include <algorithm>
#include <fuzzer/FuzzedDataProvider.h>
#include <iterator>

namespace {

using namespace iceline;
using namespace iceline::test;

const std::string Game = "Games/game.gs0";
constexpr TeamIndex Boston{0};
constexpr TeamIndex Buffalo{1};

/// A league with a game in its books and another to be imported.
MemoryFiles playedLeague() {
    TestLeague league;
    league.addCoach("Ann");
    league.files.makeFolder("Games");
    GameSheet game(Boston, Buffalo);
    game.addGoal(1, 60, Side::Home, Strength::PowerPlay, 4, 6);
    league.files.files[Game] = saveStateBytes(game);
    require(!importFails(league, Game), "a whole league takes a game");
    return league.files;
}

/// One of the files, pages left aside, with some of its bytes replaced, cut out or added to.
void damage(MemoryFiles& files, FuzzedDataProvider& input) {
    const auto isData = [](const auto& file) {
        return !file.first.starts_with(paths::WebRoot) && file.first != Game;
    };
    const auto count = std::ranges::count_if(files.files, isData);
    auto file = std::ranges::find_if(files.files, isData);
    for (auto skip = input.ConsumeIntegralInRange<std::ptrdiff_t>(0, count - 1); skip > 0; --skip)
        file = std::find_if(std::next(file), files.files.end(), isData);
    std::string& content = file->second;
    const auto place = input.ConsumeIntegralInRange<std::size_t>(0, content.size());
    const auto length = input.ConsumeIntegralInRange<std::size_t>(0, content.size() - place);
    content.replace(place, length, input.ConsumeRemainingBytesAsString());
}

} // namespace

/// A damaged data file stops what needs it with a file error: the import then changes nothing but the game
/// number, and nothing ends the program.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const MemoryFiles start = playedLeague();
    FuzzedDataProvider input(data, size);
    MemoryFiles files = start;
    damage(files, input);
    try {
        TestLeague league(files);
        auto before = league.files.files;
        const bool failed = importFails(league, Game);
        before[paths::OverallGameNumber] = league.files.files[paths::OverallGameNumber];
        require(!failed || league.files.files == before, "an import is whole or does nothing");
        windowsFail(league);
    } catch (const FileError&) {
        return 0; // start-up names the file and ends
    }
    return 0;
}
