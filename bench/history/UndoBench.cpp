#include "app/Catalogue.h"
#include "games/StatExtractor.h"
#include "history/HistoryChanges.h"
#include "samples/SampleGames.h"
#include "support/TestLeague.h"

#include <benchmark/benchmark.h>

namespace iceline {
namespace {

/// Undo of the first of many games: all others are worked out anew, twice.
void undoFirstGame(benchmark::State& state) {
    const auto games = static_cast<int>(state.range(0));
    test::TestLeague league;
    writeSampleGames(league.files, "Games", games, 1);
    league.app.state.SeasonLength = games;
    league.files.files[paths::GamesUntilPlayoffs] = numberLine(games);
    league.platform.chosen.push_back("Games");
    StatExtractor& window = StatExtractor::in(league.app);
    window.Exhibition = false;
    window.Season = true;
    window.ImportFolder_Click();
    for (auto _ : state)
        benchmark::DoNotOptimize(undo(league.app, 1));
}
BENCHMARK(undoFirstGame)->Arg(1000)->Unit(benchmark::kSecond)->Iterations(1);

} // namespace
} // namespace iceline
