// Faults that only a real disk has: full, read-only, forbidden, cut off. Each test takes them in a process of
// its own, so that nothing of the machine is changed.

#include "files/DiskFiles.h"
#include "files/Journal.h"
#include "files/JournalFormat.h"
#include "files/LeagueLock.h"
#include "files/OpenFile.h"
#include "support/TemporaryFolder.h"
#include "support/Test.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif

namespace iceline::test {

namespace {

namespace fs = std::filesystem;

constexpr int Skipped = 77;

/// Runs `body` in a child process. The child's failed expectations fail the test here; a `body` that gives
/// false could not make the fault that it wants.
void inChild(const std::function<bool()>& body) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const bool made = body();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : made ? 0 : Skipped);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == Skipped)
        GTEST_SKIP() << "this fault cannot be made here";
    EXPECT_EQ(WEXITSTATUS(status), 0) << "see the failures above";
}

/// Mounts a small disk over the folder, which this process alone sees.
bool mountSmallDisk(const fs::path& folder) {
#ifdef __linux__
    return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
#else
    return folder.empty();
#endif
}

bool makeReadOnly(const fs::path& folder) {
#ifdef __linux__
    return mount("none", folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
#else
    return folder.empty();
#endif
}

class DiskFaultsTest : public testing::Test {
protected:
    TemporaryFolder folder;
    DiskFiles disk{folder.path()};
    Files& files = disk;
};

} // namespace

TEST_F(DiskFaultsTest, AFullDiskLeavesEverythingAsItWas) {
    inChild([&] {
        if (!mountSmallDisk(folder.path()))
            return false;
        files.write("Records.txt", "0,0");
        files.write("BoxScores.htm", "game 1\n");
        const std::string big(100'000, 'x');
        for (const auto durability : {Durability::Now, Durability::Later, Durability::Unsynced}) {
            EXPECT_EQ(errorMessage([&] { files.write("Records.txt", big, durability); }),
                      "Records.txt: cannot be written: the disk is full");
            EXPECT_EQ(errorMessage([&] { files.extend("BoxScores.htm", 7, big, durability); }),
                      "BoxScores.htm: cannot be written: the disk is full");
            EXPECT_EQ(errorMessage([&] { files.write("New.htm", big, durability); }),
                      "New.htm: cannot be written: the disk is full");
        }
        Journal journal(files);
        EXPECT_EQ(errorMessage([&] {
                      journal.commit({{Change::Kind::Write, "Records.txt", 0, big}});
                  }),
                  "Unfinished Changes.journal: cannot be written: the disk is full");
        EXPECT_EQ(files.read("Records.txt"), "0,0");
        EXPECT_EQ(files.read("BoxScores.htm"), "game 1\n");
        EXPECT_THAT(files.filesIn(""), ElementsAre("BoxScores.htm", "Records.txt"));
        EXPECT_FALSE(fs::exists(folder.path() / "Records.txt.new~"));

        journal.commit({{Change::Kind::Write, "Records.txt", 0, "1,0"}});
        EXPECT_EQ(files.read("Records.txt"), "1,0");
        return true;
    });
}

/// The journal fits on the disk and the file does not: the change is finished when there is room.
TEST_F(DiskFaultsTest, AChangeThatFoundNoRoomIsFinishedLater) {
    inChild([&] {
        if (!mountSmallDisk(folder.path()))
            return false;
        files.write("ballast", std::string(20'000, 'x'));
        const std::string page(24'000, 'p');
        Journal journal(files);
        EXPECT_EQ(
            errorMessage([&] {
                journal.commit({{Change::Kind::Write, "page.htm", 0, page}});
            }),
            "page.htm: cannot be written: the disk is full. The change is noted in \"Unfinished "
            "Changes.journal\" and will be finished before the next one or at the next start; where that "
            "cannot be, \"iceline recover\" sets it aside");
        EXPECT_FALSE(files.isFile("page.htm"));
        files.remove("ballast");
        EXPECT_EQ(Journal(files).recover(), Recovery::Finished);
        EXPECT_EQ(files.read("page.htm"), page);
        return true;
    });
}

TEST_F(DiskFaultsTest, AReadOnlyDiskIsReadAndNotWritten) {
    inChild([&] {
        if (!mountSmallDisk(folder.path()))
            return false;
        files.write("Records.txt", "0,0");
        if (!makeReadOnly(folder.path()))
            return false;
        EXPECT_EQ(files.read("Records.txt"), "0,0");
        EXPECT_EQ(errorMessage([&] { files.write("Records.txt", "1,0"); }),
                  "Records.txt: cannot be written: the disk is read-only");
        EXPECT_EQ(errorMessage([&] { files.extend("Records.txt", 3, "x"); }),
                  "Records.txt: cannot be written: the disk is read-only");
        EXPECT_EQ(errorMessage([&] { files.remove("Records.txt"); }),
                  "Records.txt: cannot be removed: the disk is read-only");
        EXPECT_EQ(errorMessage([&] { files.makeFolder("BOS"); }),
                  "BOS: cannot be made: the disk is read-only");
        EXPECT_EQ(errorMessage([&] { LeagueLock(folder.path(), "iceline"); }),
                  "League in use.lock: the league folder cannot be written: the disk is read-only");
        const LeagueLock lock(folder.path(), "iceline", LeagueLock::For::Looking);
        EXPECT_FALSE(lock.canWrite()) << "who only looks needs no lock";
        return true;
    });
}

TEST_F(DiskFaultsTest, APartWrittenToTheLimitIsTakenBack) {
    inChild([&] {
        const rlimit limit{1000, 1000};
        std::signal(SIGXFSZ, SIG_IGN);
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return false;
        files.write("BoxScores.htm", "game 1\n");
        const std::string big(2000, 'x');
        EXPECT_EQ(errorMessage([&] { files.extend("BoxScores.htm", 7, big); }),
                  "BoxScores.htm: cannot be written: it would be too large");
        EXPECT_EQ(errorMessage([&] { files.write("BoxScores.htm", big); }),
                  "BoxScores.htm: cannot be written: it would be too large");
        EXPECT_EQ(files.read("BoxScores.htm"), "game 1\n");
        EXPECT_FALSE(fs::exists(folder.path() / "BoxScores.htm.new~"));
        return true;
    });
}

TEST_F(DiskFaultsTest, PermissionsAreKeptAndHeeded) {
    files.write("shared.txt", "old");
    ASSERT_EQ(chmod((folder.path() / "shared.txt").c_str(), 0664), 0);
    files.write("shared.txt", "new");
    EXPECT_EQ(fs::status(folder.path() / "shared.txt").permissions(), fs::perms(0664));

    files.makeFolder("BOS");
    files.write("secret.txt", "x");
    files.write("fixed.txt", "x");
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    ASSERT_EQ(chmod((folder.path() / "secret.txt").c_str(), 0), 0);
    ASSERT_EQ(chmod((folder.path() / "fixed.txt").c_str(), 0444), 0);
    ASSERT_EQ(chmod((folder.path() / "BOS").c_str(), 0555), 0);
    inChild([&] {
        if (geteuid() == 0 && seteuid(65534) != 0)
            return false;
        EXPECT_EQ(errorMessage([&] { files.read("secret.txt"); }),
                  "secret.txt: cannot be read: permission denied");
        EXPECT_EQ(errorMessage([&] { files.write("fixed.txt", "y"); }),
                  "fixed.txt: cannot be written: permission denied");
        EXPECT_EQ(errorMessage([&] { files.write("BOS/Records.txt", "y"); }),
                  "BOS/Records.txt: cannot be written: permission denied");
        EXPECT_EQ(errorMessage([&] { files.makeFolder("BOS/Post Season"); }),
                  "BOS/Post Season: cannot be made: permission denied");
        EXPECT_EQ(errorMessage([&] { LeagueLock(folder.path() / "BOS", "iceline"); }),
                  "League in use.lock: the league folder cannot be written: permission denied");
        EXPECT_EQ(files.read("fixed.txt"), "x");
        return true;
    });
}

/// What cannot be carried out is refused before it is noted, so that the league can still be opened.
TEST_F(DiskFaultsTest, AChangeThatCannotBeMadeIsRefusedAsAWhole) {
    files.write("Records.txt", "0,0", Durability::Now);
    files.makeFolder("Coaches/Lee");
    files.makeFolder("BOS");
    fs::create_symlink("nowhere", folder.path() / "Coaches/Lee/link");
    files.write("fixed.txt", "x", Durability::Now);
    ASSERT_EQ(chmod((folder.path() / "fixed.txt").c_str(), 0444), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    ASSERT_EQ(chmod((folder.path() / "BOS").c_str(), 0555), 0);
    for (const char* name : {"Records.txt", "Coaches", "Coaches/Lee"})
        ASSERT_EQ(chmod((folder.path() / name).c_str(), 0777), 0);
    using enum Change::Kind;
    const std::string longName(252, 'n');
    const Change record{Write, "Records.txt", 0, "1,0"};
    const std::vector<std::pair<Change, std::string>> refused{
        {{Write, longName, 0, "x"}, longName + ": cannot be written: its name is too long"},
        {{Write, "Coaches/" + longName + "/Records.txt", 0, "x"}, "its folder is missing"},
        {{MakeFolder, "Coaches/" + longName, 0, ""}, "cannot be made: its name is too long"},
        {{MakeFolder, "Coaches/Lee/link", 0, ""}, "cannot be made: something else has its name"},
        {{RemoveFolder, "Coaches/Lee", 0, ""}, "Coaches/Lee: cannot be removed: it still holds \"link\""},
        {{Write, "fixed.txt", 0, "y"}, "fixed.txt: cannot be written: permission denied"},
        {{Extend, "fixed.txt", 1, "y"}, "fixed.txt: cannot be written: permission denied"},
        {{Write, "BOS/Records.txt", 0, "y"}, "BOS/Records.txt: cannot be written: permission denied"},
        {{Write, "BOS", 0, "y"}, "BOS: is a folder, not a file"}};
    inChild([&] {
        if (geteuid() == 0 && seteuid(65534) != 0)
            return false;
        for (const auto& [change, message] : refused) {
            Journal journal(files);
            EXPECT_THAT(errorMessage([&] { journal.commit({record, change}); }), HasSubstr(message));
            EXPECT_EQ(journal.recover(), Recovery::Nothing);
        }
        EXPECT_EQ(files.read("Records.txt"), "0,0");
        EXPECT_THAT(files.filesIn(""), ElementsAre("fixed.txt", "Records.txt"));
        return true;
    });
}

TEST_F(DiskFaultsTest, ATriedChangeLeavesNothingAndNewFoldersAreTriedToo) {
    const std::string name(252, 'n');
    Journal journal(files);
    EXPECT_THAT(errorMessage([&] {
                    journal.commit({{Change::Kind::MakeFolder, "Coaches", 0, ""},
                                    {Change::Kind::MakeFolder, "Coaches/Lee", 0, ""},
                                    {Change::Kind::Write, "Coaches/Lee/" + name, 0, "x"}});
                }),
                HasSubstr("its name is too long"));
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(DiskFaultsTest, ALinkLeadsNobodyOut) {
    const TemporaryFolder outside;
    std::ofstream(outside.path() / "mine.txt") << "mine";
    const auto mine = [&] { return DiskFiles(outside.path()).read("mine.txt"); };
    fs::create_symlink(outside.path() / "mine.txt", folder.path() / LeagueLock::FileName);
    EXPECT_EQ(errorMessage([&] { LeagueLock(folder.path(), "iceline"); }),
              "League in use.lock: the league folder cannot be written: it is a link");
    EXPECT_EQ(mine(), "mine");

    fs::create_symlink(outside.path() / "mine.txt", folder.path() / "list.txt");
    files.extend("list.txt", 2, "x", Durability::Now);
    EXPECT_EQ(files.read("list.txt"), "mix");
    EXPECT_EQ(mine(), "mine");

    fs::create_directory_symlink(outside.path(), folder.path() / "BOS");
    const std::vector<Change> changes{{Change::Kind::Write, "BOS/mine.txt", 0, "theirs"}};
    files.write(Journal::FileName, std::string(JournalHeading) + journalEntry(changes, {FileMark()}),
                Durability::Now);
    EXPECT_THAT(errorMessage([&] { Journal(files).recover(); }),
                HasSubstr("BOS/mine.txt: a link leads out of the league folder"));
    EXPECT_EQ(mine(), "mine");
}

TEST_F(DiskFaultsTest, AHugeFileIsNamedAndNotRead) {
    std::ofstream(folder.path() / "Records.txt") << "x";
    fs::resize_file(folder.path() / "Records.txt", Files::LargestFile + 1);
    EXPECT_EQ(errorMessage([&] { files.read("Records.txt"); }),
              "Records.txt: the file is too large: more than 64 MiB");
    EXPECT_EQ(files.readFirst("Records.txt", 1), "x");
}

namespace {

/// A disk that can neither lock nor sync folders.
class PlainDisk : public disk::Calls {
public:
    bool lock(int) override {
        errno = ENOLCK;
        return false;
    }
    bool syncFolder(const fs::path&) override {
        errno = EINVAL;
        return false;
    }
};

} // namespace

TEST_F(DiskFaultsTest, ADiskThatCanDoLessIsNamedOnceAndUsed) {
    PlainDisk calls;
    DiskFiles plain(folder.path(), calls);
    Journal journal(plain);
    EXPECT_EQ(plain.takeLimit(), "");
    for (const char* content : {"0,0", "1,0"})
        journal.commit({{Change::Kind::Write, "Records.txt", 0, content}});
    EXPECT_EQ(files.read("Records.txt"), "1,0");
    EXPECT_THAT(plain.takeLimit(), HasSubstr("cannot bring the names of files to the disk"));
    journal.commit({{Change::Kind::Write, "Records.txt", 0, "2,0"}});
    EXPECT_EQ(plain.takeLimit(), "");
    disk::OpenFile file(calls, folder.path() / "lock", disk::Purpose::Change);
    EXPECT_EQ(file.lock(), disk::OpenFile::Locked::Unsupported);
}

TEST_F(DiskFaultsTest, WhatIsNoRegularFileIsNeitherReadNorListed) {
    ASSERT_EQ(mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    fs::create_symlink("nowhere", folder.path() / "dangling");
    fs::create_symlink("/etc/hostname", folder.path() / "Records.txt.new~");
    EXPECT_THAT(files.filesIn(""), IsEmpty());
    EXPECT_EQ(errorMessage([&] { files.read("pipe"); }), "pipe: cannot be read: it is not a regular file");
    EXPECT_EQ(errorMessage([&] { files.read("dangling"); }), "dangling: the file is missing");
    files.write("Records.txt", "0,0");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder.path() / "Records.txt")));
}

TEST_F(DiskFaultsTest, ALockGoesWithItsProcess) {
    const fs::path taken = folder.path() / "taken";
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        alarm(30);
        const LeagueLock lock(folder.path(), "iceline");
        std::ofstream(taken) << "yes";
        pause();
    }
    while (!fs::exists(taken))
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    EXPECT_THAT(errorMessage([&] { LeagueLock(folder.path(), "iceline"); }),
                HasSubstr("(process " + std::to_string(child) + " on "));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_EQ(errorMessage([&] { LeagueLock(folder.path(), "iceline"); }), "no error");
}

} // namespace iceline::test
