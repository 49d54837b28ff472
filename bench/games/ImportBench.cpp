#include "app/Catalogue.h"
#include "files/DiskFiles.h"
#include "games/GameReport.h"
#include "games/GameSheetReader.h"
#include "games/StatExtractor.h"
#include "samples/SampleGames.h"
#include "samples/SaveStateWriter.h"
#include "support/TemporaryFolder.h"
#include "support/TestLeague.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace iceline {
namespace {

using test::MemoryFiles;
using Clock = std::chrono::steady_clock;

constexpr std::uint64_t Seed = 1;
constexpr const char* GamePath = "Games/game.gs0";

/// A new league with a game in it.
MemoryFiles leagueWithGame() {
    test::TestLeague league;
    const LeagueRosters rosters = builtInRosters();
    league.files.makeFolder("Games");
    league.files.files[GamePath] =
        saveStateBytes(sampleGame(Seed, 1, sampleSchedule(1, Seed).front(), rosters));
    return league.files;
}

StatExtractor& gameWindow(Application& app) {
    StatExtractor& window = StatExtractor::in(app);
    window.Exhibition = false;
    window.Season = true;
    return window;
}

void readGame(benchmark::State& state) {
    MemoryFiles files = leagueWithGame();
    for (auto _ : state) {
        benchmark::DoNotOptimize(gameReport(iceline::readGame(files, GamePath), 0));
    }
}
BENCHMARK(readGame)->Unit(benchmark::kMicrosecond);

/// More games would have the same players' totals outgrow their files.
constexpr int GamesPlayed = 500;

/// One press of "Import Game" after the other on the same league, which grows by a game each time.
void importGames(benchmark::State& state, Files& files) {
    MemoryFiles siteTemplate = test::smallSiteTemplate();
    test::TestPlatform platform;
    Application app(files, siteTemplate, platform, windowCatalogue());
    app.state.SeasonLength = 32767;
    app.state.ShowWindows = true;
    StatExtractor& window = gameWindow(app);
    app.state.SaveStatePath = GamePath;
    for (auto _ : state) {
        window.GameLoaded = true;
        window.ImportStats_Click();
    }
}

void importInMemory(benchmark::State& state) {
    MemoryFiles files = leagueWithGame();
    importGames(state, files);
}
BENCHMARK(importInMemory)->Iterations(GamesPlayed)->Unit(benchmark::kMillisecond);

void importOnDisk(benchmark::State& state) {
    const test::TemporaryFolder folder;
    DiskFiles disk(folder.path());
    leagueWithGame().copyTo(disk);
    importGames(state, disk);
}
BENCHMARK(importOnDisk)->Iterations(GamesPlayed)->Unit(benchmark::kMillisecond);

/// Notes when each file of a run is begun.
class TimingPlatform : public test::TestPlatform {
public:
    bool showProgress(const Progress&) override {
        begun.push_back(Clock::now());
        return true;
    }

    double seconds(std::size_t from, std::size_t to) const {
        return std::chrono::duration<double>(begun.at(to) - begun.at(from)).count();
    }

    std::vector<Clock::time_point> begun;
};

/// A folder of games into a new league on the disk. last/first compares the last hundred games with the
/// first.
void importFolder(benchmark::State& state) {
    const auto games = static_cast<int>(state.range(0));
    const auto count = static_cast<std::size_t>(games);
    for (auto _ : state) {
        state.PauseTiming();
        const test::TemporaryFolder folder;
        DiskFiles disk(folder.path());
        test::TestLeague().files.copyTo(disk);
        writeSampleGames(disk, "Games", games, Seed);
        MemoryFiles siteTemplate = test::smallSiteTemplate();
        TimingPlatform platform;
        Application app(disk, siteTemplate, platform, windowCatalogue());
        app.state.SeasonLength = games;
        app.state.ShowWindows = true;
        platform.chosen.push_back("Games");
        StatExtractor& window = gameWindow(app);
        state.ResumeTiming();

        window.ImportFolder_Click();

        platform.begun.push_back(Clock::now());
        if (window.ImportCount != games)
            state.SkipWithError("not all games were imported");
        state.counters["last/first"] = platform.seconds(count - 100, count - 1) / platform.seconds(0, 99);
    }
}
BENCHMARK(importFolder)->Arg(1000)->Unit(benchmark::kSecond)->Iterations(1)->UseRealTime();

} // namespace
} // namespace iceline
