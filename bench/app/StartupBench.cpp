#include "app/Catalogue.h"
#include "app/Startup.h"
#include "files/DiskFiles.h"
#include "support/TemporaryFolder.h"
#include "support/TestLeague.h"

#include <benchmark/benchmark.h>

namespace iceline {
namespace {

/// The start of the program on a whole league that lies on the disk.
void startLeague(benchmark::State& state) {
    const test::TemporaryFolder folder;
    DiskFiles disk(folder.path());
    test::TestLeague().files.copyTo(disk);
    test::MemoryFiles siteTemplate = test::smallSiteTemplate();
    test::TestPlatform platform;
    for (auto _ : state) {
        Application app(disk, siteTemplate, platform, windowCatalogue());
        if (!startUp(app) || !platform.messages.empty())
            state.SkipWithError("the league is not whole");
    }
}
BENCHMARK(startLeague)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace iceline
