#include "app/Catalogue.h"
#include "files/DiskFiles.h"
#include "site/GenerateWebpages.h"
#include "support/TemporaryFolder.h"
#include "support/TestLeague.h"

#include <benchmark/benchmark.h>

#include <ctime>
#include <deque>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <unistd.h>

namespace iceline {
namespace {

namespace fs = std::filesystem;
using test::MemoryFiles;

/// Figures that make every table as long and its numbers as wide as they get.
SkaterStats skater(int n) {
    SkaterStats stats{.GP = 82, .G = 10 + n % 41, .A = 20 + n % 53, .Pts = 30 + n % 83, .SOG = 100 + n % 211};
    stats.GPG = 0.37;
    stats.APG = 0.61;
    stats.PtsPG = 0.01 * (n % 131);
    stats.SOGPG = 2.44;
    stats.ShotPct = 0.1 * (n % 197);
    stats.PIM = n % 171;
    stats.PPG = n % 17;
    stats.SHG = n % 5;
    stats.PIMPG = 0.73;
    stats.Rating = 0.001 * (n % 4999);
    stats.StarPoints = n % 37;
    return stats;
}

GoalieStats goalie(int n) {
    GoalieStats stats{
        .GP = 41, .GA = 100 + n, .SO = n % 7, .A = n % 5, .GW = 20, .GL = 15, .GT = 6, .SA = 1200};
    stats.GAA = 2.5 + 0.01 * n;
    stats.SvPct = 0.9 - 0.001 * n;
    stats.Rating = 3.125;
    stats.StarPoints = n % 29;
    return stats;
}

/// A full league at the end of its season: 24 skaters or goalies and more a team, all of whom have played.
MemoryFiles fullLeague() {
    test::TestLeague league;
    for (const TeamIndex team : AllLeagueTeams) {
        Roster roster = league.roster(team);
        TeamPlayerStats stats;
        for (const RosterIndex row : AllRosterRows) {
            const int n = team.number() * RosterRows + row.number();
            if (roster[row].isEmpty())
                roster[row].Name = "Called Up " + std::to_string(row.number());
            if (roster[row].isGoalie())
                stats[row] = goalie(n);
            else
                stats[row] = skater(n);
        }
        league.setRoster(team, roster);
        for (const PartOfYear part : {PartOfYear::Season, PartOfYear::Playoffs}) {
            league.files.files[paths::teamFile(team, part, paths::PlayerStats)] =
                playerStatsText(paths::PlayerStats, stats);
            TeamRecord record = league.record(team, part);
            record.GP = 82;
            record.Points = 60 + team.number();
            record.WinPercent = 0.512;
            league.setRecord(team, part, record);
        }
    }
    return league.files;
}

using Pages = std::vector<std::pair<std::string, std::string>>; ///< path within the site, content

Pages pagesOf(const fs::path& site) {
    Pages pages;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(site)) {
        if (!entry.is_regular_file())
            continue;
        std::ifstream in(entry.path(), std::ios::binary);
        pages.emplace_back(entry.path().lexically_relative(site).string(),
                           std::string(std::istreambuf_iterator<char>(in), {}));
    }
    return pages;
}

void require(bool done) {
    if (!done)
        throw std::runtime_error("a file could not be written");
}

/// What publishing is measured against: each file opened, written and closed.
void writePlainly(const Pages& pages, const fs::path& folder) {
    for (const auto& [path, content] : pages) {
        const int file = ::open((folder / path).c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        require(file >= 0);
        require(::write(file, content.data(), content.size()) == static_cast<ssize_t>(content.size()));
        require(::close(file) == 0);
    }
}

/// Processor time of an action. Nothing here waits for the disk, so other programs' load leaves it alone.
template <class Action>
double seconds(Action action) {
    const std::clock_t begin = std::clock();
    action();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

/// The first "Generate Webpages" of a full league on the disk. first/plain compares it with writing the same
/// bytes to the same files and nothing else; again/first is a second press with nothing changed.
void publishLeague(benchmark::State& state) {
    const MemoryFiles league = fullLeague();
    double first = 0;
    double again = 0;
    double plain = 0;
    // Kept to the end: a disk that has just removed files is slow to make new ones.
    std::deque<test::TemporaryFolder> folders;
    for (auto _ : state) {
        const test::TemporaryFolder& folder = folders.emplace_back();
        DiskFiles disk(folder.path());
        league.copyTo(disk);
        MemoryFiles siteTemplate = test::smallSiteTemplate();
        test::TestPlatform platform;
        Application app(disk, siteTemplate, platform, windowCatalogue());
        app.state.SeasonLength = 164;
        app.state.ShowWindows = true;

        const double firstPublish = seconds([&] { generateWebpages(app); });
        again += seconds([&] { generateWebpages(app); });

        const Pages pages = pagesOf(folder.path() / paths::WebRoot);
        const test::TemporaryFolder& beside = folders.emplace_back();
        for (const auto& [path, content] : pages)
            fs::create_directories((beside.path() / path).parent_path());
        plain += seconds([&] { writePlainly(pages, beside.path()); });
        first += firstPublish;
        state.SetIterationTime(firstPublish);
        state.counters["files"] = static_cast<double>(pages.size());
    }
    state.counters["first/plain"] = first / plain;
    state.counters["again/first"] = again / first;
}
BENCHMARK(publishLeague)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

} // namespace
} // namespace iceline
