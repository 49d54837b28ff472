#include "app/Catalogue.h"
#include "app/Startup.h"
#include "files/FileError.h"
#include "games/ImportLeague.h"
#include "support/FailingFiles.h"

namespace iceline {
namespace {

using namespace test;
using Contents = std::map<std::string, std::string>;

/// One run of the program that imports the game lying in the league, on files that may fail.
class FaultyRun {
public:
    explicit FaultyRun(const MemoryFiles& league) : memory_(league) {
        startUp(app_);
        StatExtractor& window = StatExtractor::in(app_);
        window.Exhibition = false;
        window.Season = true;
        window.T1Coach = 1;
        platform_.chosen.push_back("Games/game.gs0");
        window.LoadStats_Click();
    }

    void importFailingAt(int n, FailingFiles::Failure failure) {
        platform_.messages.clear();
        failing_.failAt(n, failure);
        try {
            StatExtractor::in(app_).ImportStats_Click();
        } catch (const FileError&) {
            threw = true;
        }
        failed = failing_.hasFailed();
    }

    /// The league as the next start finds it.
    Contents afterRestart() {
        Journal(memory_).recover();
        return withoutHistory(memory_.files);
    }

    std::vector<std::string> said() const { return platform_.said(); }

    bool threw = false;
    bool failed = false;

private:
    MemoryFiles memory_;
    MemoryFiles siteTemplate_ = smallSiteTemplate();
    TestPlatform platform_;
    FailingFiles failing_{memory_};
    Application app_{failing_, siteTemplate_, platform_, windowCatalogue()};
};

class ImportFaults : public testing::TestWithParam<FailingFiles::Failure> {};

TEST_P(ImportFaults, LeaveTheLeagueAsBeforeOrAsAfterWhicheverUseOfTheDiskFails) {
    TestLeague league;
    league.addCoach("Ann");
    league.files.files["Games/game.gs0"] = saveStateBytes(lovelyGame());
    const Contents before = FaultyRun(league.files).afterRestart();
    Contents numberRaised = before;
    numberRaised[paths::OverallGameNumber] = "1\r\n";
    FaultyRun whole(league.files);
    whole.importFailingAt(0, GetParam());
    const Contents after = whole.afterRestart();
    ASSERT_NE(after, before);

    int asBefore = 0;
    int asAfter = 0;
    for (int n = 1;; ++n) {
        FaultyRun run(league.files);
        run.importFailingAt(n, GetParam());
        if (!run.failed)
            break;
        EXPECT_TRUE(run.threw) << "use " << n << " failed unseen";
        EXPECT_TRUE(run.said().empty()) << "use " << n << " failed after the game was said to be imported";
        const Contents found = run.afterRestart();
        const bool untouched = found == before || found == numberRaised;
        ASSERT_TRUE(untouched || found == after) << "use " << n << " left the league between";
        ++(untouched ? asBefore : asAfter);
    }
    EXPECT_GT(asBefore, 20);
    EXPECT_GT(asAfter, 20);
}

INSTANTIATE_TEST_SUITE_P(Faults, ImportFaults,
                         testing::Values(FailingFiles::Failure::Once, FailingFiles::Failure::Crash));

} // namespace
} // namespace iceline
