#include "files/Journal.h"

#include "files/DiskFiles.h"
#include "files/FileError.h"
#include "files/JournalFormat.h"
#include "support/FailingFiles.h"
#include "support/MemoryFiles.h"
#include "support/TemporaryFolder.h"
#include "support/Test.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>

namespace iceline::test {

namespace {

using Failure = FailingFiles::Failure;

constexpr int Games = 4;

/// A league of two teams, as far as a journal is concerned: records, a list and a coach.
MemoryFiles league() {
    MemoryFiles files;
    files.folders = {"BOS", "MTL"};
    files.files = {{"BOS/Records.txt", "BOS 0"}, {"MTL/Records.txt", "MTL 0"}, {"BoxScores.htm", "head\n"}};
    return files;
}

/// What importing the n-th game changes; the first two games come with a coach who is new and then goes.
void playGame(Files& files, int n) {
    const std::string game = std::to_string(n);
    files.write("BOS/Records.txt", "BOS " + game);
    files.write("MTL/Records.txt", "MTL " + game + std::string(static_cast<std::size_t>(n) * 10, '.'));
    files.append("BoxScores.htm", "game " + game + "\n");
    if (n == 1) {
        files.makeFolder("Coaches/Lee");
        files.write("Coaches/Lee/Records.txt", "0");
    }
    if (n == 2)
        files.remove("Coaches/Lee/Records.txt");
}

void commitGame(Files& files, Journal& journal, int n) {
    StagedFiles staged(files);
    playGame(staged, n);
    journal.commit(staged.changes());
}

/// Files and folders as they must be after n games.
using State = std::pair<std::map<std::string, std::string>, std::set<std::string>>;

State stateOf(const MemoryFiles& files) {
    return {files.files, files.folders};
}

State afterGames(int n) {
    MemoryFiles files = league();
    for (int game = 1; game <= n; ++game)
        playGame(files, game);
    return stateOf(files);
}

std::vector<State> afterAnyNumberOfGames() {
    std::vector<State> states;
    for (int n = 0; n <= Games; ++n)
        states.push_back(afterGames(n));
    return states;
}

/// The journal of a run of games that stopped before the files were brought to the disk.
std::string journalOfRun() {
    MemoryFiles files = league();
    Journal journal(files);
    journal.beginRun();
    for (int game = 1; game <= Games; ++game)
        commitGame(files, journal, game);
    return files.files.at(Journal::FileName);
}

} // namespace

TEST(JournalTest, CutAnywhereRecoversAWholeNumberOfGames) {
    const std::string journal = journalOfRun();
    const std::vector<State> whole = afterAnyNumberOfGames();
    std::size_t games = 0;
    for (std::size_t length = 0; length <= journal.size(); ++length) {
        MemoryFiles files = league();
        files.files[Journal::FileName] = journal.substr(0, length);
        const Recovery recovery = Journal(files).recover();
        if (games < Games && stateOf(files) == whole[games + 1])
            ++games;
        ASSERT_EQ(stateOf(files), whole[games]) << "cut at " << length;
        EXPECT_EQ(recovery, games == 0 ? Recovery::Dropped : Recovery::Finished);
    }
    EXPECT_EQ(games, Games);
}

/// On a disk that regards case the names are two, on another one.
TEST(JournalTest, GivesAFolderAnotherSpellingOnceOrAgain) {
    const TemporaryFolder folder;
    DiskFiles disk(folder.path());
    Files& files = disk;
    files.makeFolder("Coaches/Åke");
    files.write("Coaches/Åke/Records.txt", "9", Durability::Now);
    files.makeFolder("Probe");
    files.rename("Probe", "probe");
    if (files.foldersIn("").back() != "probe")
        GTEST_SKIP() << "this system takes another spelling for the same name, as Wine does";
    const Change respelt{Change::Kind::RenameFolder, "Coaches/Åke", 0, "Coaches/åke"};
    Journal(files).commit({respelt});
    for (const bool again : {false, true}) {
        EXPECT_THAT(files.foldersIn("Coaches"), ElementsAre("åke")) << again;
        EXPECT_EQ(files.read("Coaches/åke/Records.txt"), "9") << again;
        files.write(Journal::FileName,
                    std::string(JournalHeading) + journalEntry({respelt}, {FileMark{true, 0, 0}}),
                    Durability::Now);
        EXPECT_EQ(Journal(files).recover(), Recovery::Finished);
    }
}

TEST(JournalTest, ADamagedByteEndsTheJournalThere) {
    const std::string journal = journalOfRun();
    const std::vector<State> whole = afterAnyNumberOfGames();
    for (std::size_t at = 0; at < journal.size(); ++at) {
        MemoryFiles files = league();
        std::string damaged = journal;
        damaged[at] = static_cast<char>(damaged[at] ^ (1 << at % 8));
        files.files[Journal::FileName] = damaged;
        if (at == journal.find('3')) {
            EXPECT_THAT(errorMessage([&] { Journal(files).recover(Doubts::Ignore); }),
                        HasSubstr("later version of the program"));
            EXPECT_EQ(files.files[Journal::FileName], damaged) << "neither made nor dropped";
            continue;
        }
        Journal(files).recover();
        const auto state = std::ranges::find(whole, stateOf(files));
        ASSERT_NE(state, whole.end()) << "damaged at " << at;
        EXPECT_NE(state, whole.end() - 1) << "damaged at " << at;
    }
}

/// A power cut in a run leaves each file as it was after any of the games, cut short or with zeros; of a list
/// at least what it held before the run.
TEST(JournalTest, DoneAgainGivesTheSameFiles) {
    const std::string journal = journalOfRun();
    const std::vector<State> whole = afterAnyNumberOfGames();
    for (const State& record : whole)
        for (const State& list : whole)
            for (const std::string& torn : {std::string(), std::string("MTL"), std::string("MTL \0\0", 6)}) {
                MemoryFiles files = league();
                files.files["BOS/Records.txt"] = record.first.at("BOS/Records.txt");
                files.files["MTL/Records.txt"] = torn;
                files.files["BoxScores.htm"] = list.first.at("BoxScores.htm") + torn;
                files.files[Journal::FileName] = journal;
                EXPECT_EQ(Journal(files).recover(), Recovery::Finished);
                EXPECT_EQ(stateOf(files), whole.back());
            }
}

TEST(JournalTest, ACrashAnywhereLeavesTheFilesBeforeOrAfter) {
    for (const bool run : {false, true}) {
        bool crashed = true;
        for (int n = 1; crashed; ++n) {
            MemoryFiles disk = league();
            FailingFiles files(disk);
            Journal journal(files);
            if (run)
                journal.beginRun();
            int committed = 0;
            files.failAt(n, Failure::Crash);
            errorMessage([&] {
                for (; committed < Games; ++committed)
                    commitGame(files, journal, committed + 1);
                journal.endRun();
            });
            crashed = files.hasFailed();
            Journal(disk).recover();
            ASSERT_THAT(stateOf(disk),
                        AnyOf(afterGames(committed), afterGames(std::min(committed + 1, Games))))
                << "crash at use " << n << ", run: " << run;
        }
    }
}

/// After any single failure the user repeats what was refused, and every game is in the books once.
TEST(JournalTest, AFailureHarmsNoLaterChange) {
    for (const bool run : {false, true}) {
        bool failed = true;
        for (int n = 1; failed; ++n) {
            MemoryFiles disk = league();
            FailingFiles files(disk);
            Journal journal(files);
            if (run)
                journal.beginRun();
            files.failAt(n, Failure::Once);
            const auto played = [&] { return std::ranges::count(disk.files["BoxScores.htm"], '\n') - 1; };
            for (int tries = 0; tries < Games + 2; ++tries)
                errorMessage([&] {
                    journal.recover();
                    if (played() < Games)
                        commitGame(files, journal, static_cast<int>(played()) + 1);
                });
            errorMessage([&] { journal.endRun(); });
            failed = files.hasFailed();
            journal.endRun();
            ASSERT_EQ(stateOf(disk), afterGames(Games)) << "failure at use " << n << ", run: " << run;
        }
    }
}

TEST(JournalTest, SaysThatAChangeIsNotedAndFinishesItFirst) {
    MemoryFiles disk = league();
    FailingFiles files(disk);
    Journal journal(files);
    journal.recover();
    StagedFiles first(files), second(files);
    playGame(first, 1);
    playGame(second, 1);
    const std::vector<Change> changes = first.changes();
    const std::vector<Change> late = second.changes();

    files.failAt(13, Failure::Once);
    EXPECT_EQ(errorMessage([&] { journal.commit(changes); }),
              "Coaches/Lee: the disk fails for the test. The change is noted in \"Unfinished "
              "Changes.journal\" and will be finished before the next one or at the next start; where that "
              "cannot be, \"iceline recover\" sets it aside");
    EXPECT_THAT(errorMessage([&] { journal.commit(late); }), HasSubstr("please do it again"))
        << "they were worked out before the first were finished";
    EXPECT_EQ(stateOf(disk), afterGames(1));
    commitGame(files, journal, 2);
    EXPECT_EQ(stateOf(disk), afterGames(2));
}

TEST(JournalTest, ARunSharesOneJournalUntilItHasGrown) {
    MemoryFiles disk = league();
    FailingFiles files(disk);
    Journal journal(files);
    journal.beginRun();
    commitGame(files, journal, 1);
    const auto length = disk.size(Journal::FileName);
    EXPECT_GT(length, 0u);
    commitGame(files, journal, 2);
    EXPECT_GT(disk.size(Journal::FileName), length);

    journal.commit({{Change::Kind::Write, "big.txt", 0, std::string(Journal::CheckpointBytes, 'x')}});
    EXPECT_FALSE(disk.isFile(Journal::FileName));
    commitGame(files, journal, 3);
    EXPECT_TRUE(disk.isFile(Journal::FileName));
    journal.endRun();
    EXPECT_FALSE(disk.isFile(Journal::FileName));
}

TEST(JournalTest, ARemovedFolderMayComeBackInTheSameRun) {
    MemoryFiles files = league();
    Journal journal(files);
    journal.beginRun();
    journal.commit({{Change::Kind::MakeFolder, "Coaches", 0, ""}});
    journal.commit({{Change::Kind::RemoveFolder, "Coaches", 0, ""}});
    journal.commit(
        {{Change::Kind::MakeFolder, "Coaches", 0, ""}, {Change::Kind::Write, "Coaches/Lee.txt", 0, "0"}});
    EXPECT_EQ(Journal(files).recover(), Recovery::Finished);
    EXPECT_EQ(files.read("Coaches/Lee.txt"), "0");
}

namespace {

/// A disk that reports an error although it has kept all that was written, as at a failed sync.
class LyingFiles : public MemoryFiles {
public:
    using MemoryFiles::MemoryFiles;
    explicit LyingFiles(const MemoryFiles& files) : MemoryFiles(files) {}

    void extend(const std::string& path, std::uintmax_t length, std::string_view content,
                Durability durability) override {
        MemoryFiles::extend(path, length, content, durability);
        if (lies && path == Journal::FileName && !content.empty())
            throw FileError::cannotWrite(path, "the disk reports an error");
    }
    void remove(const std::string& path) override {
        if (keepsJournal && path == Journal::FileName)
            throw FileError::cannotRemove(path, "the disk reports an error");
        MemoryFiles::remove(path);
    }

    bool lies = true;
    bool keepsJournal = false;
};

std::string number(std::uint64_t value) {
    std::string bytes;
    for (int i = 0; i < 8; ++i)
        bytes += static_cast<char>(value >> (8 * i));
    return bytes;
}

std::string text(const std::string& value) {
    return number(value.size()) + value;
}

/// A journal of the first version that holds this.
std::string firstVersionOf(const std::string& body) {
    return "Iceline Scorebook journal 1: changes that were begun, to be finished at the next start.\n" +
           number(checksum(body)) + text(body);
}

/// A journal of the first version that writes one file.
std::string firstVersion(const std::string& path, const std::string& content) {
    return firstVersionOf(number(1) + text(path) + number(0) + text(content));
}

} // namespace

TEST(JournalTest, AChangeReportedAsNotMadeIsNeverMade) {
    for (const bool run : {false, true}) {
        LyingFiles files(league());
        Journal journal(files);
        files.lies = false;
        if (run) {
            journal.beginRun();
            commitGame(files, journal, 1);
        }
        files.lies = true;
        EXPECT_EQ(errorMessage([&] { commitGame(files, journal, 2); }),
                  "Unfinished Changes.journal: cannot be written: the disk reports an error");
        Journal(files).recover();
        EXPECT_EQ(stateOf(files), afterGames(run ? 1 : 0));
    }
    LyingFiles files(league());
    files.keepsJournal = true;
    Journal journal(files);
    EXPECT_THAT(errorMessage([&] { commitGame(files, journal, 1); }), HasSubstr("may still make it"));
}

TEST(JournalTest, ABackupCopiedOverTheLeagueIsNoticed) {
    const std::string journal = journalOfRun();
    const std::vector<std::function<void(MemoryFiles&)>> copies{
        [](MemoryFiles& files) { files.files["BOS/Records.txt"] = "BOS of the backup"; },
        [](MemoryFiles& files) { files.files.erase("MTL/Records.txt"); },
        [](MemoryFiles& files) { files.files["BoxScores.htm"] = "he"; }};
    for (const auto& copy : copies) {
        MemoryFiles files = league();
        files.files[Journal::FileName] = journal;
        copy(files);
        const State before = stateOf(files);
        EXPECT_THAT(errorMessage([&] { Journal(files).recover(); }), HasSubstr("has been changed since"));
        EXPECT_EQ(stateOf(files), before);

        MemoryFiles aside = files;
        Journal(aside).setAside("old.journal");
        EXPECT_EQ(Journal(aside).recover(), Recovery::Nothing);
        EXPECT_EQ(aside.read("old.journal"), journal);

        Journal(files).recover(Doubts::Ignore);
        EXPECT_EQ(files.read("BOS/Records.txt"), "BOS 4");
    }
}

TEST(JournalTest, FinishesAJournalOfTheFirstVersion) {
    MemoryFiles files = league();
    files.files[Journal::FileName] = firstVersion("BOS/Records.txt", "BOS 7");
    files.files["BOS/Records.txt"] = "whatever it is now";
    EXPECT_EQ(Journal(files).recover(), Recovery::Finished);
    EXPECT_EQ(files.read("BOS/Records.txt"), "BOS 7");
}

TEST(JournalTest, StaysInTheLeagueFolderAlsoWhenMadeByHand) {
    for (const std::string path : {"", "../x", "/etc/passwd", "BOS/../../x", "./x", "BOS//x", "BOS/"}) {
        MemoryFiles files = league();
        EXPECT_THROW(Journal(files).commit({{Change::Kind::Write, path, 0, "x"}}), FileError) << path;
        files.files[Journal::FileName] = firstVersion(path, "x");
        EXPECT_EQ(Journal(files).recover(), Recovery::Dropped) << path;
        EXPECT_EQ(stateOf(files), afterGames(0)) << path;
    }
    MemoryFiles files = league();
    EXPECT_THROW(Journal(files).commit({{Change::Kind::Write, Journal::FileName, 0, "x"}}), FileError);
    files.files[Journal::FileName] = firstVersionOf(number(1) + number(99) + number(0) + text("x"));
    EXPECT_EQ(Journal(files).recover(), Recovery::Dropped) << "the path is cut short";
}

} // namespace iceline::test
