#include "app/Catalogue.h"
#include "app/Startup.h"
#include "files/DiskFiles.h"
#include "games/ImportLeague.h"
#include "support/TemporaryFolder.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace iceline {
namespace {

using namespace test;
using Contents = std::map<std::string, std::string>;

constexpr int Kills = 40;
constexpr int LongestRunMicroseconds = 25'000;

/// The program on a league, ready to import the game lying in it again and again.
class Program {
public:
    explicit Program(Files& league) : app_(league, siteTemplate_, platform_, windowCatalogue()) {
        startUp(app_);
        window().Exhibition = false;
        window().Season = true;
    }

    void importGame() {
        platform_.chosen.push_back("Games/game.gs0");
        window().LoadStats_Click();
        window().ImportStats_Click();
    }

private:
    StatExtractor& window() { return StatExtractor::in(app_); }

    MemoryFiles siteTemplate_ = smallSiteTemplate();
    TestPlatform platform_;
    Application app_;
};

void copy(const MemoryFiles& from, Files& to) {
    for (const std::string& folder : from.folders)
        to.makeFolder(folder);
    for (const auto& [path, content] : from.files)
        to.write(path, content);
}

Contents contentsOf(Files& files, const Contents& like) {
    Contents contents;
    for (const auto& [path, content] : like)
        contents[path] = files.isFile(path) ? files.read(path) : "(missing)";
    return contents;
}

/// The league in memory after every number of imports.
class Expected {
public:
    explicit Expected(const MemoryFiles& league) : memory_(league), program_(memory_) {}

    const Contents& after(int imports) {
        for (; done_ < imports; ++done_)
            program_.importGame();
        return memory_.files;
    }

private:
    MemoryFiles memory_;
    Program program_;
    int done_ = 0;
};

/// A process that imports until it is killed, `microseconds` after it has begun.
void importUntilKilled(const std::filesystem::path& league, int microseconds) {
    std::array<int, 2> begun{};
    ASSERT_EQ(pipe(begun.data()), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        DiskFiles disk(league);
        Program program(disk);
        const bool told = write(begun[1], "!", 1) == 1;
        while (told)
            program.importGame();
        _exit(0);
    }
    char byte = 0;
    const bool hasBegun = read(begun[0], &byte, 1) == 1;
    usleep(static_cast<useconds_t>(microseconds));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    close(begun[0]);
    close(begun[1]);
    ASSERT_TRUE(hasBegun);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the imports ended by themselves";
}

TEST(ImportKilled, LeavesWholeGamesWheneverTheProcessDies) {
    TestLeague league;
    league.files.files["Games/game.gs0"] = saveStateBytes(lovelyGame());
    league.files.makeFolder("Games");
    const TemporaryFolder folder;
    DiskFiles disk(folder.path());
    copy(league.files, disk);
    Expected expected(league.files);

    std::mt19937 random(20261122);
    std::uniform_int_distribution<int> microseconds(0, LongestRunMicroseconds);
    int imported = 0;
    for (int i = 0; i < Kills; ++i) {
        importUntilKilled(folder.path(), microseconds(random));
        DiskFiles found(folder.path());
        Program restarted(found);
        const int games = readTeamRecord(found, paths::teamFolder(Boston)).GP;
        ASSERT_GE(games, imported);
        imported = games;
        const Contents& whole = expected.after(games);
        ASSERT_EQ(contentsOf(found, whole), whole) << "after kill " << i << ", game " << games;
        ASSERT_FALSE(found.isFile(Journal::FileName));
    }
    EXPECT_GT(imported, 0);
}

} // namespace
} // namespace iceline
