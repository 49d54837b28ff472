#include "files/DiskFiles.h"
#include "files/Journal.h"
#include "files/StagedFiles.h"
#include "files/UnsyncedDisk.h"
#include "support/ErrorMessage.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace iceline::test {

namespace {

using testing::ElementsAre;

/// Files and folders.
using State = std::pair<std::map<std::string, std::string>, std::set<std::string>>;

MemoryFiles league() {
    MemoryFiles files;
    files.folders = {"BOS"};
    files.files = {{"BOS/Records.txt", "0,0"}, {"BoxScores.htm", "head\n"}, {"Number.txt", "0"}};
    return files;
}

/// What is done to the league, by an operation or past the journal.
struct Step {
    bool journalled = true;
    std::function<void(Files&)> changes;
};

/// A game, a coach who comes and goes, and a game that touches many files, so that the whole disk is synced.
std::vector<Step> operations() {
    const auto game = [](Files& files) {
        files.write("BOS/Records.txt", "1,0");
        files.write("Number.txt", files.read("Number.txt") + "1");
        files.append("BoxScores.htm", "game\n");
    };
    const auto coachComes = [](Files& files) {
        files.write("BOS/Records.txt", "3,3");
        files.makeFolder("Coaches/Lee");
        files.write("Coaches/Lee/Records.txt", "0");
    };
    const auto coachGoes = [](Files& files) {
        files.write("BOS/Records.txt", "4,4");
        files.remove("Coaches/Lee/Records.txt");
        files.removeFolder("Coaches/Lee");
    };
    const auto manyFiles = [](Files& files) {
        for (int file = 0; file < 20; ++file)
            files.write("BOS/" + std::to_string(file) + ".htm", "page");
        files.write("BOS/Records.txt", "5,5");
    };
    return {{true, game},      {true, coachComes}, {true, game},
            {true, coachGoes}, {true, manyFiles},  {true, game}};
}

/// The operations, after each of which a file is written past the journal, as by one who copies a backup
/// back.
std::vector<Step> operationsAndCopies() {
    std::vector<Step> steps;
    for (const Step& operation : operations()) {
        steps.push_back(operation);
        steps.push_back(
            {false, [](Files& files) { files.write("BOS/Records.txt", "9,9", Durability::Now); }});
    }
    return steps;
}

std::vector<State> statesBetween(const std::vector<Step>& steps) {
    MemoryFiles files = league();
    std::vector<State> states{{files.files, files.folders}};
    for (const Step& step : steps) {
        step.changes(files);
        states.emplace_back(files.files, files.folders);
    }
    return states;
}

/// Carries steps out, and before each change of the disk sees what a power cut would leave of them.
class CutRun {
    TemporaryFolder folder_;

public:
    explicit CutRun(bool inOneRun, int skippedSync = 0)
        : skippedSync_(skippedSync), steps_(inOneRun ? operations() : operationsAndCopies()),
          states_(statesBetween(steps_)) {
        DiskFiles plain(folder_.path());
        league().copyTo(plain);
        calls.begin(league());
        if (skippedSync > 0)
            calls.skipSync(skippedSync);
        calls.beforeChange = [this] { cutPower(); };
        if (inOneRun)
            journal_.beginRun();
        for (const Step& step : steps_)
            take(step);
        journal_.endRun();
        cutPower();
    }

    UnsyncedDisk calls{folder_.path()};
    int cuts = 0;
    int between = 0; ///< 1 once a cut has left the league neither as before the step in hand nor as after it

private:
    void take(const Step& step) {
        if (step.journalled) {
            StagedFiles staged(disk_);
            step.changes(staged);
            journal_.commit(staged.changes());
        } else {
            step.changes(disk_);
        }
        ++done_;
        cutPower();
    }

    void cutPower() {
        const bool asInWholeRun = skippedSync_ > 0 && calls.skipped.empty();
        if (between > 0 || asInWholeRun)
            return;
        for (const auto leaves : UnsyncedDisk::AllThatItLeaves) {
            MemoryFiles found = calls.afterPowerCut(leaves);
            ++cuts;
            const bool recovered = errorMessage([&] { Journal(found).recover(); }) == "no error";
            const State state{found.files, found.folders};
            if (!recovered ||
                (state != states_[done_] && (done_ + 1 == states_.size() || state != states_[done_ + 1])))
                ++between;
        }
    }

    int skippedSync_;
    DiskFiles disk_{folder_.path(), calls};
    Journal journal_{disk_};
    std::vector<Step> steps_;
    std::vector<State> states_;
    std::size_t done_ = 0;
};

} // namespace

TEST(PowerCut, LeavesTheLeagueBeforeOrAfterAnOperation) {
    for (const bool inOneRun : {false, true}) {
        const CutRun run(inOneRun);
        EXPECT_EQ(run.between, 0) << "in one run: " << inOneRun;
        EXPECT_GT(run.cuts, 200);
    }
}

TEST(PowerCut, WouldBeNoticedIfAnySyncWereMissing) {
    for (const bool inOneRun : {false, true}) {
        const int syncs = CutRun(inOneRun).calls.syncs;
        for (int sync = 1; sync <= syncs; ++sync) {
            const CutRun run(inOneRun, sync);
            // Within a run the next journal's making syncs the league folder again.
            if (inOneRun && run.calls.skipped == "folder ")
                continue;
            EXPECT_GT(run.between, 0) << "sync " << sync << " of \"" << run.calls.skipped
                                      << "\" is not needed, in one run: " << inOneRun;
        }
    }
}

TEST(PowerCut, FindsAFileSyncedBeforeItHasItsName) {
    const TemporaryFolder folder;
    UnsyncedDisk calls(folder.path());
    DiskFiles files(folder.path(), calls);
    files.write("a.txt", "text", Durability::Now);
    files.extend("list.txt", 0, "text", Durability::Now);
    EXPECT_THAT(calls.made, ElementsAre("make a.txt.new~", "write a.txt.new~", "sync a.txt.new~",
                                        "rename a.txt.new~", "sync folder ", "make list.txt",
                                        "write list.txt", "sync list.txt", "sync folder "));
}

} // namespace iceline::test
